#pragma once

#include "JsonTree.h"

#include <algorithm>
#include <bitset>
#include <iterator>

namespace trel::mediadispatch {

/// Why a value is not taken. Thrown while a record is read; the reader of the tree catches it.
struct JsonRefusal
{
    const JsonValue* value; ///< In the tree that is read.
    Fault fault;
};

[[noreturn]] void refuse(const JsonValue& value, const Fault& fault);

/// Refuses an object that lacks a member.
[[noreturn]] void refuseMissing(const JsonValue& object, std::string_view name);

/// The name of a kind, as OtherKind has it: "null", "boolean", "number", "text", "array" or
/// "object"; besides, "wholeNumber", "wholeNumberText", "programNumber", "hash" and "size" are
/// more than a kind that is expected, and "otherNumber" and "otherText" more than one that is
/// found.
QString jsonKindName(JsonValue::Kind kind);

/// Refuses a value of another kind, with a name for what belongs there.
void expect(const JsonValue& value, JsonValue::Kind kind, const QString& expected);
void expect(const JsonValue& value, JsonValue::Kind kind);

/// A text from the JSON for people to read, elided.
QString shown(std::string_view utf8);

/// One member of a record in JSON: its name and both directions. A record is described by one table
/// of these, so that what is written and what is read cannot come apart.
template <typename Record>
struct JsonMember
{
    std::string_view name;
    JsonValue (*write)(const Record& record);
    void (*read)(const JsonValue& value, Record& record);
};

/// A value that is to be printed.
JsonValue jsonValue(JsonValue::Kind kind, std::string text = {});

void addMember(JsonValue& object, std::string_view name, JsonValue value);

/// Writes the members in the order of the table.
template <typename Record, std::size_t Count>
JsonValue writeRecord(const Record& record, const JsonMember<Record> (&members)[Count])
{
    JsonValue object = jsonValue(JsonValue::Kind::Object);
    object.children.reserve(Count);
    for (const JsonMember<Record>& member : members) {
        addMember(object, member.name, member.write(record));
    }
    return object;
}

/// Reads an object with exactly the members of the table, in any order, and perhaps an optional one
/// that is the caller's to read.
template <typename Record, std::size_t Count>
void readRecord(const JsonValue& object, Record& record, const JsonMember<Record> (&members)[Count],
                std::string_view optional = {})
{
    expect(object, JsonValue::Kind::Object);
    std::bitset<Count + 1> seen;
    for (const JsonValue& child : object.children) {
        const auto named = [&child](const JsonMember<Record>& member) {
            return member.name == child.name;
        };
        const auto at = static_cast<std::size_t>(std::distance(
            std::begin(members), std::find_if(std::begin(members), std::end(members), named)));
        if (at == Count && (optional.empty() || child.name != optional)) {
            refuse(child, faultOf(FaultCode::MemberUnknown, shown(child.name)));
        }
        if (seen.test(at)) {
            refuse(child, faultOf(FaultCode::MemberTwice, shown(child.name)));
        }
        seen.set(at);
        if (at < Count) {
            members[at].read(child, record);
        }
    }
    for (std::size_t at = 0; at < Count; ++at) {
        if (!seen.test(at)) {
            refuseMissing(object, members[at].name);
        }
    }
}

} // namespace trel::mediadispatch
