#pragma once

#include "JsonRecord.h"

#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trel::mediadispatch {

// The values of records in JSON, each in both directions. What is read refuses what does not fit. A
// record that stands in lists has a pair of these functions of its own, in the namespace of the
// record.

JsonValue writeValue(int number);
void readValue(const JsonValue& value, int& number);

JsonValue writeValue(bool isTrue);
void readValue(const JsonValue& value, bool& isTrue);

/// A text that is no UTF-8 could not stand in JSON; its bytes travel in an object instead.
JsonValue writeValue(const std::string& text);
void readValue(const JsonValue& value, std::string& text);

/// A number of 64 bits is written as a text: many readers of JSON keep 53 bits of a number, but all
/// of a text.
JsonValue writeValue(std::int64_t number);
void readValue(const JsonValue& value, std::int64_t& number);

/// A number that has a name.
struct JsonWord
{
    int value;
    std::string_view text;
};

/// Writes the word for a number, or the number itself when there is none.
template <std::size_t Count>
JsonValue writeWord(int number, const JsonWord (&words)[Count])
{
    for (const JsonWord& word : words) {
        if (word.value == number) {
            return jsonValue(JsonValue::Kind::Text, std::string(word.text));
        }
    }
    return writeValue(number);
}

/// The words that may stand for the number, for people to read.
template <std::size_t Count>
QString knownWords(const JsonWord (&words)[Count])
{
    QStringList known;
    for (const JsonWord& word : words) {
        known.append(QStringLiteral("\"%1\"").arg(shown(word.text)));
    }
    return known.join(QStringLiteral(", "));
}

template <std::size_t Count>
void readWord(const JsonValue& value, int& number, const JsonWord (&words)[Count])
{
    if (value.kind == JsonValue::Kind::Number) {
        return readValue(value, number);
    }
    for (const JsonWord& word : words) {
        if (value.kind == JsonValue::Kind::Text && value.text == word.text) {
            number = word.value;
            return;
        }
    }
    if (value.kind != JsonValue::Kind::Text) {
        refuse(value,
               faultOf(FaultCode::OtherKindThanWord, knownWords(words), jsonKindName(value.kind)));
    }
    refuse(value, faultOf(FaultCode::UnknownWord, knownWords(words), shown(value.text)));
}

template <typename Element>
JsonValue writeValue(const std::vector<Element>& elements)
{
    JsonValue array = jsonValue(JsonValue::Kind::Array);
    array.children.reserve(elements.size());
    for (const Element& element : elements) {
        array.children.push_back(writeValue(element));
    }
    return array;
}

template <typename Element>
void readValue(const JsonValue& array, std::vector<Element>& elements)
{
    expect(array, JsonValue::Kind::Array);
    elements.reserve(array.children.size());
    for (const JsonValue& child : array.children) {
        readValue(child, elements.emplace_back());
    }
}

template <typename Record, typename Value>
Record recordOf(Value Record::*);

template <auto Field>
using RecordOf = decltype(recordOf(Field));

/// A member of the JSON that is a field of the record.
template <auto Field>
constexpr JsonMember<RecordOf<Field>> jsonField(std::string_view name)
{
    using Record = RecordOf<Field>;
    return {name, [](const Record& record) { return writeValue(record.*Field); },
            [](const JsonValue& value, Record& record) { readValue(value, record.*Field); }};
}

/// A field whose numbers have words.
template <auto Field, const auto& Words>
constexpr JsonMember<RecordOf<Field>> jsonWordField(std::string_view name)
{
    using Record = RecordOf<Field>;
    return {name, [](const Record& record) { return writeWord(record.*Field, Words); },
            [](const JsonValue& value, Record& record) { readWord(value, record.*Field, Words); }};
}

} // namespace trel::mediadispatch
