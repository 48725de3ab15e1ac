#include "ScheduleJson.h"

#include "JsonRecord.h"
#include "Utf8.h"

#include <QDir>
#include <QSaveFile>

#include <charconv>
#include <optional>

namespace trel::mediadispatch {

namespace {

using Layout = JsonWriter::Layout;

constexpr std::string_view kFormatName = "trel-schedule";
constexpr int kVersion = 1;

constexpr std::string_view kFormat = "format";
constexpr std::string_view kFormatVersion = "version";
constexpr std::string_view kTasks = "tasks";
constexpr std::string_view kTaskKey = "key";
constexpr std::string_view kBase64 = "base64";

// ---- numbers and words ----

void writeValue(JsonWriter& writer, int value)
{
    writer.number(value);
}

bool readValue(JsonReader& reader, int& value)
{
    return reader.readInt(value);
}

void writeValue(JsonWriter& writer, bool value)
{
    writer.boolean(value);
}

bool readValue(JsonReader& reader, bool& value)
{
    return reader.readBoolean(value);
}

/// A number that has a name.
struct Word
{
    int value;
    std::string_view text;
};

constexpr Word kModeWords[] = {{TimeMode, "time"}, {FrequencyMode, "frequency"}};
constexpr Word kEndActionWords[] = {{BlackScreen, "black"}, {FreezeCurrentFrame, "freeze"}};

/// Writes the word for a number, or the number itself when there is none.
template <std::size_t Count>
void writeWord(JsonWriter& writer, int value, const Word (&words)[Count])
{
    for (const Word& word : words) {
        if (word.value == value) {
            return writer.text(word.text);
        }
    }
    writer.number(value);
}

/// What may stand for the number, for people to read.
template <std::size_t Count>
QString knownWords(const Word (&words)[Count])
{
    QStringList known;
    for (const Word& word : words) {
        known.append(quotedName(word.text));
    }
    return known.join(QStringLiteral(", ")) + QStringLiteral(" or a number");
}

template <std::size_t Count>
bool readWord(JsonReader& reader, int& value, const Word (&words)[Count])
{
    if (reader.nextKind() == JsonReader::Kind::Number) {
        return reader.readInt(value);
    }
    if (reader.nextKind() != JsonReader::Kind::Text) {
        return reader.failKind(knownWords(words));
    }
    std::string text;
    if (!reader.readText(text)) {
        return false;
    }
    for (const Word& word : words) {
        if (word.text == text) {
            value = word.value;
            return true;
        }
    }
    return reader.fail(
        QStringLiteral("%1 is expected here, not %2").arg(knownWords(words), quotedName(text)));
}

// ---- texts ----

/// A text that is no UTF-8 could not stand in JSON; its bytes travel in an object instead.
void writeValue(JsonWriter& writer, const std::string& text)
{
    if (isUtf8(text)) {
        return writer.text(text);
    }
    const QByteArray bytes = QByteArray::fromStdString(text).toBase64();
    writer.beginObject(Layout::OneLine);
    writer.name(kBase64);
    writer.text({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    writer.end();
}

struct EncodedText
{
    std::string bytes;
};

bool readBase64(JsonReader& reader, EncodedText& text)
{
    std::string encoded;
    if (!reader.readText(encoded)) {
        return false;
    }
    const auto decoded = QByteArray::fromBase64Encoding(QByteArray::fromStdString(encoded),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    text.bytes = decoded.decoded.toStdString();
    return decoded || reader.fail(QStringLiteral("this text is not in Base64"));
}

constexpr JsonMember<EncodedText> kEncodedTextMembers[] = {{kBase64, nullptr, readBase64}};

bool readValue(JsonReader& reader, std::string& text)
{
    if (reader.nextKind() != JsonReader::Kind::Object) {
        return reader.readText(text);
    }
    EncodedText encoded;
    if (!readRecord(reader, encoded, kEncodedTextMembers)) {
        return false;
    }
    text = std::move(encoded.bytes);
    return true;
}

// ---- 64-bit numbers: many readers of JSON keep 53 bits of a number, but all of a text ----

void writeValue(JsonWriter& writer, std::int64_t value)
{
    writer.text(std::to_string(value));
}

bool readValue(JsonReader& reader, std::int64_t& value)
{
    std::string digits;
    if (reader.nextKind() != JsonReader::Kind::Text) {
        return reader.failKind(QStringLiteral("a whole number written as a text"));
    }
    if (!reader.readText(digits)) {
        return false;
    }
    const char* const end = digits.data() + digits.size();
    const auto [last, error] = std::from_chars(digits.data(), end, value);
    if (error == std::errc::result_out_of_range) {
        return reader.fail(QStringLiteral("%1 does not fit into 64 bits").arg(quotedName(digits)));
    }
    if (error != std::errc() || last != end) {
        return reader.fail(QStringLiteral("%1 is no whole number").arg(quotedName(digits)));
    }
    return true;
}

// ---- lists ----

void writeValue(JsonWriter& writer, const struProgInfo& entry);
bool readValue(JsonReader& reader, struProgInfo& entry);
void writeValue(JsonWriter& writer, const PlayPlan& plan);
bool readValue(JsonReader& reader, PlayPlan& plan);

template <typename Value>
void writeValue(JsonWriter& writer, const std::vector<Value>& values)
{
    writer.beginArray();
    for (const Value& value : values) {
        writeValue(writer, value);
    }
    writer.end();
}

template <typename Value>
bool readValue(JsonReader& reader, std::vector<Value>& values)
{
    return reader.readArray([&] { return readValue(reader, values.emplace_back()); });
}

// ---- records ----

template <typename Record, typename Value>
Record recordOf(Value Record::*);

template <auto Field>
using RecordOf = decltype(recordOf(Field));

/// A member of the JSON that is a field of the record.
template <auto Field>
constexpr JsonMember<RecordOf<Field>> field(std::string_view name)
{
    using Record = RecordOf<Field>;
    return {name,
            [](JsonWriter& writer, const Record& record) { writeValue(writer, record.*Field); },
            [](JsonReader& reader, Record& record) { return readValue(reader, record.*Field); }};
}

/// A field whose numbers have words.
template <auto Field, const auto& Words>
constexpr JsonMember<RecordOf<Field>> wordField(std::string_view name)
{
    using Record = RecordOf<Field>;
    return {
        name,
        [](JsonWriter& writer, const Record& record) { writeWord(writer, record.*Field, Words); },
        [](JsonReader& reader, Record& record) { return readWord(reader, record.*Field, Words); }};
}

constexpr JsonMember<struProgInfo> kEntryMembers[] = {
    field<&struProgInfo::progIndex>("progIndex"),
    field<&struProgInfo::progName>("progName"),
    field<&struProgInfo::playCount>("playCount"),
    field<&struProgInfo::isInvalid>("isInvalid"),
};

constexpr JsonMember<PlayPlan> kPlanMembers[] = {
    field<&PlayPlan::id>("id"),
    wordField<&PlayPlan::mode, kModeWords>("mode"),
    field<&PlayPlan::weeks>("weeks"),
    field<&PlayPlan::startTime>("startTime"),
    field<&PlayPlan::endTime>("endTime"),
    field<&PlayPlan::times>("times"),
    wordField<&PlayPlan::endAction, kEndActionWords>("endAction"),
    field<&PlayPlan::programs>("programs"),
    field<&PlayPlan::hasNoDuration>("hasNoDuration"),
    field<&PlayPlan::isConflict>("isConflict"),
    field<&PlayPlan::serviceCount>("serviceCount"),
    field<&PlayPlan::serviceList>("serviceList"),
    field<&PlayPlan::serviceTime>("serviceTime"),
    field<&PlayPlan::serviceFlagA>("serviceFlagA"),
    field<&PlayPlan::serviceFlagB>("serviceFlagB"),
};

constexpr JsonMember<PlayTask> kTaskMembers[] = {
    field<&PlayTask::id>("id"),
    field<&PlayTask::startDate>("startDate"),
    field<&PlayTask::endDate>("endDate"),
    field<&PlayTask::plans>("plans"),
};

void writeValue(JsonWriter& writer, const struProgInfo& entry)
{
    writer.beginObject(Layout::OneLine);
    writeMembers(writer, entry, kEntryMembers);
    writer.end();
}

bool readValue(JsonReader& reader, struProgInfo& entry)
{
    return readRecord(reader, entry, kEntryMembers);
}

void writeValue(JsonWriter& writer, const PlayPlan& plan)
{
    writer.beginObject();
    writeMembers(writer, plan, kPlanMembers);
    writer.end();
}

bool readValue(JsonReader& reader, PlayPlan& plan)
{
    return readRecord(reader, plan, kPlanMembers);
}

/// A key that differs from the task's id is written down, so that reading refuses it by name
/// instead of losing one of the two.
void writeTask(JsonWriter& writer, int key, const PlayTask& task)
{
    writer.beginObject();
    writeMembers(writer, task, kTaskMembers);
    if (key != task.id) {
        writer.name(kTaskKey);
        writer.number(key);
    }
    writer.end();
}

bool readTask(JsonReader& reader, PlayTask& task)
{
    std::optional<int> key;
    const std::size_t start = reader.mark();
    const bool read = readRecord(reader, task, kTaskMembers, [&](std::string_view name) {
        if (name != kTaskKey) {
            return failUnknown(reader, name);
        }
        return key ? failTwice(reader, name) : reader.readInt(key.emplace());
    });
    if (read && key && *key != task.id) {
        return reader.fail(
            QStringLiteral("the key %1 is not the task's id, which is %2").arg(*key).arg(task.id),
            start);
    }
    return read;
}

// ---- the file ----

/// The tasks by their ids, and where each was met first.
struct ReadTasks
{
    std::map<int, PlayTask> tasks;
    std::map<int, std::size_t> places;
};

bool readTasks(JsonReader& reader, ReadTasks& read)
{
    std::size_t place = 0;
    return reader.readArray([&] {
        PlayTask task;
        const std::size_t start = reader.mark();
        if (!readTask(reader, task)) {
            return false;
        }
        const int id = task.id;
        const auto [known, isNew] = read.places.emplace(id, place);
        if (!isNew) {
            return reader.fail(QStringLiteral("the id %1 is the one of tasks[%2] already")
                                   .arg(id)
                                   .arg(known->second),
                               start);
        }
        ++place;
        read.tasks.emplace_hint(read.tasks.end(), id, std::move(task));
        return true;
    });
}

/// What the top object says of itself. Read before everything else and wherever it stands, so that
/// a file of another kind or a newer version is not blamed for members that nobody here knows.
struct Heading
{
    bool isObject = false;
    std::optional<std::string> format;
    std::optional<int> version;
};

/// Checks that all of the text is JSON, and takes the heading from it.
bool readHeading(JsonReader& reader, Heading& heading)
{
    heading.isObject = reader.nextKind() == JsonReader::Kind::Object;
    if (!heading.isObject) {
        return reader.skipValue() && reader.readEnd();
    }
    const bool read = reader.readObject([&](std::string_view name) {
        if (name == kFormat && !heading.format) {
            return reader.readText(heading.format.emplace());
        }
        if (name == kFormatVersion && !heading.version) {
            return reader.readInt(heading.version.emplace());
        }
        return reader.skipValue();
    });
    return read && reader.readEnd();
}

/// Why a file with this heading is not read; empty when it is.
QString refusal(const Heading& heading)
{
    if (!heading.isObject) {
        return QStringLiteral("the top of a schedule is an object; this is JSON of another kind");
    }
    if (!heading.format) {
        return QStringLiteral("the member \"format\" is missing; this is no schedule");
    }
    if (*heading.format != kFormatName) {
        return QStringLiteral("format: this is %1, not %2")
            .arg(quotedName(*heading.format), quotedName(kFormatName));
    }
    if (!heading.version) {
        return QStringLiteral("the member \"version\" is missing");
    }
    if (*heading.version > kVersion) {
        return QStringLiteral("version: %1 is newer than %2, the newest that this program reads")
            .arg(*heading.version)
            .arg(kVersion);
    }
    if (*heading.version < 1) {
        return QStringLiteral("version: there is no version %1").arg(*heading.version);
    }
    return {};
}

struct TopObject
{
    std::string format;
    int version = 0;
    ReadTasks read;
};

constexpr JsonMember<TopObject> kTopMembers[] = {
    field<&TopObject::format>(kFormat),
    field<&TopObject::version>(kFormatVersion),
    {kTasks, nullptr,
     [](JsonReader& reader, TopObject& top) { return readTasks(reader, top.read); }},
};

} // namespace

QByteArray scheduleToJson(const std::map<int, PlayTask>& tasks)
{
    JsonWriter writer;
    writer.beginObject();
    writer.name(kFormat);
    writer.text(kFormatName);
    writer.name(kFormatVersion);
    writer.number(kVersion);
    writer.name(kTasks);
    writer.beginArray();
    for (const auto& [key, task] : tasks) {
        writeTask(writer, key, task);
    }
    writer.end();
    writer.end();
    return writer.take();
}

ScheduleFromJson scheduleFromJson(const QByteArray& json)
{
    Heading heading;
    JsonReader headingReader(json);
    if (!readHeading(headingReader, heading)) {
        return {{}, headingReader.error()};
    }
    const QString reason = refusal(heading);
    if (!reason.isEmpty()) {
        return {{}, reason};
    }
    TopObject top;
    JsonReader reader(json);
    if (!readRecord(reader, top, kTopMembers)) {
        return {{}, reader.error()};
    }
    return {std::move(top.read.tasks), {}};
}

QString writeScheduleFile(const QString& path, const std::map<int, PlayTask>& tasks)
{
    const QByteArray json = scheduleToJson(tasks);
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.commit()) {
        return {};
    }
    return QStringLiteral("%1 cannot be written: %2.")
        .arg(QDir::toNativeSeparators(path), file.errorString());
}

} // namespace trel::mediadispatch
