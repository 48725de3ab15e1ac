#pragma once

#include "LanguageTexts.h"

#include <QString>

#include <vector>

namespace trel::console {

/// Something in a language file that its translator should put right.
struct LanguageFinding
{
    enum class Kind {
        Missing,    ///< The editor looks the text up, and the file lacks it.
        Unknown,    ///< No code looks the text up.
        Repeated,   ///< The text stands in the file more than once.
        Empty,      ///< Nothing would be shown.
        Unfinished, ///< Its translator has marked it as not done.
        Same,       ///< The editor could not tell it from another one.
        Mark,       ///< It has a character that the editor would take for something else.
        TooLong,    ///< Its cell would cut it.
        PlaceMark,  ///< It loses or invents a place for a number or a name.
        Plural,     ///< It has not the forms of a plural that its language has.
        Letter,     ///< Its letter in a menu is missing, or that of another entry.
        Term,       ///< It calls a thing by another word than the other texts.
    };

    Kind kind;
    QString key;
    QString remark; ///< What there is to know beyond the kind; may be empty.
};

/// The word for a kind, such as "too long"; as it stands in JSON, such as "tooLong".
QString findingText(LanguageFinding::Kind kind);
QString findingName(LanguageFinding::Kind kind);

/// Puts findings into the order of the kinds, and leaves it alone within each.
void sortByKind(std::vector<LanguageFinding>& findings);

/// Everything to put right in a translator's file of the editor, in the order of the kinds, and
/// within each in the order of the texts.
std::vector<LanguageFinding> checkLanguage(const LanguageTexts& file);

} // namespace trel::console
