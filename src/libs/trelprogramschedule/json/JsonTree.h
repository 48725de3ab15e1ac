#pragma once

#include "faults/Fault.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace trel::mediadispatch {

/// A value in JSON with all that it holds. Members keep their order, and a name that is repeated
/// stands there as often, so that a reader of the tree can refuse it.
struct JsonValue
{
    enum class Kind { Null, Boolean, Number, Text, Array, Object };

    Kind kind = Kind::Null;
    int line = 0;                    ///< The line on which it begins, from 1; 0 when not parsed.
    std::string name;                ///< Its name as a member of an object.
    std::string text;                ///< A text in UTF-8; otherwise true, false, null or a number
                                     ///< with all its digits, as JSON writes it.
    std::vector<JsonValue> children; ///< The elements of an array, the members of an object.

    /// The first member of an object that has the name; null when there is none.
    const JsonValue* member(std::string_view memberName) const;
};

/// The tree of a text in JSON, or why it is none.
struct ParsedJson
{
    JsonValue top;
    Fault fault; ///< None on success.
};

/// What is nested deeper than this, counted in arrays and objects, is checked for its form and left
/// out of the tree: the tree stays shallow enough to be walked by recursion, whatever the text.
constexpr std::size_t kDeepestJson = 32;

/// Parses a text in UTF-8, which may begin with a byte order mark. More than kLargestJson bytes,
/// more than kMostJsonValues values and a name or a text that no schedule has room for are errors,
/// so that the tree takes a bounded amount of memory.
ParsedJson parseJson(const QByteArray& json);

/// The tree as text: indented by two blanks a level, every member and element on a line of its own,
/// but an object that holds no array on one line. Texts must be in well-formed UTF-8, and names in
/// plain ASCII.
QByteArray printJson(const JsonValue& top);

/// A text from the JSON as a message has room for it: what is longer than 60 characters ends in an
/// ellipsis.
QString elided(const QString& text);

/// Where a value stands in a tree, such as tasks[2].plans[0].startTime; empty for the top. Walks
/// the tree, which the few values that somebody complains about are worth.
QString jsonPath(const JsonValue& top, const JsonValue& value);

} // namespace trel::mediadispatch
