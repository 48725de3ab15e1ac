#pragma once

#include "JsonReader.h"
#include "JsonWriter.h"

#include <QString>

#include <bitset>
#include <cstddef>
#include <string_view>

namespace trel::mediadispatch {

/// One member of a record in JSON: its name and both directions. A record is described by one table
/// of these, so that what is written and what is read cannot come apart.
template <typename Record>
struct JsonMember
{
    std::string_view name;
    void (*write)(JsonWriter& writer, const Record& record);
    bool (*read)(JsonReader& reader, Record& record);
};

inline QString quotedName(std::string_view name)
{
    return QStringLiteral("\"%1\"").arg(
        QString::fromUtf8(name.data(), static_cast<int>(name.size())));
}

/// Refuses the member whose name was read last because it stands there a second time.
inline bool failTwice(JsonReader& reader, std::string_view name)
{
    return reader.fail(
        QStringLiteral("the member %1 stands here for the second time").arg(quotedName(name)));
}

/// Refuses the member whose name was read last because nobody knows it.
inline bool failUnknown(JsonReader& reader, std::string_view name)
{
    return reader.fail(QStringLiteral("there is no member %1 here").arg(quotedName(name)));
}

/// Refuses the object that begins at a mark because it lacks a member.
inline bool failMissing(JsonReader& reader, std::string_view name, std::size_t mark)
{
    return reader.fail(QStringLiteral("the member %1 is missing").arg(quotedName(name)), mark);
}

/// Writes the members in the order of the table, inside an object that the caller begins and ends.
template <typename Record, std::size_t Count>
void writeMembers(JsonWriter& writer, const Record& record,
                  const JsonMember<Record> (&members)[Count])
{
    for (const JsonMember<Record>& member : members) {
        writer.name(member.name);
        member.write(writer, record);
    }
}

/// Reads an object with exactly the members of the table, in any order. A name that the table lacks
/// goes to onOther, which reads the value or refuses it.
template <typename Record, std::size_t Count, typename OnOther>
bool readRecord(JsonReader& reader, Record& record, const JsonMember<Record> (&members)[Count],
                OnOther&& onOther)
{
    std::bitset<Count> seen;
    // Most files keep the order of the table, so each search begins behind the last find.
    std::size_t next = 0;
    const auto find = [&](std::string_view name) {
        for (std::size_t tried = 0; tried < Count; ++tried) {
            const std::size_t at = (next + tried) % Count;
            if (members[at].name == name) {
                return at;
            }
        }
        return Count;
    };
    const std::size_t start = reader.mark();
    const bool read = reader.readObject([&](std::string_view name) {
        const std::size_t found = find(name);
        if (found == Count) {
            return onOther(name);
        }
        if (seen.test(found)) {
            return failTwice(reader, name);
        }
        seen.set(found);
        next = found + 1;
        return members[found].read(reader, record);
    });
    for (std::size_t at = 0; read && at < Count; ++at) {
        if (!seen.test(at)) {
            return failMissing(reader, members[at].name, start);
        }
    }
    return read;
}

template <typename Record, std::size_t Count>
bool readRecord(JsonReader& reader, Record& record, const JsonMember<Record> (&members)[Count])
{
    return readRecord(reader, record, members,
                      [&reader](std::string_view name) { return failUnknown(reader, name); });
}

} // namespace trel::mediadispatch
