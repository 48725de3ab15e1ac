#include "ScheduleJson.h"

#include "FileReplacement.h"
#include "JsonRecord.h"
#include "ScheduleLimits.h"

#include <QIODevice>
#include <QTextCodec>

#include <charconv>
#include <new>

namespace trel::mediadispatch {

namespace {

using Kind = JsonValue::Kind;
using Schedule = std::map<int, PlayTask>;

constexpr std::string_view kFormatName = "trel-schedule";
constexpr int kVersion = 1;

constexpr std::string_view kFormat = "format";
constexpr std::string_view kFormatVersion = "version";
constexpr std::string_view kTasks = "tasks";
constexpr std::string_view kTaskKey = "key";

// ---- numbers and words ----

JsonValue writeValue(int number)
{
    return jsonValue(Kind::Number, std::to_string(number));
}

void readValue(const JsonValue& value, int& number)
{
    expect(value, Kind::Number, QStringLiteral("wholeNumber"));
    const std::string& digits = value.text;
    if (digits.find_first_of(".eE") != std::string::npos) {
        refuse(value, faultOf(FaultCode::NotWholeNumber, shown(digits)));
    }
    if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec != std::errc()) {
        refuse(value, faultOf(FaultCode::Beyond32Bits, shown(digits)));
    }
}

JsonValue writeValue(bool isTrue)
{
    return jsonValue(Kind::Boolean, isTrue ? "true" : "false");
}

void readValue(const JsonValue& value, bool& isTrue)
{
    expect(value, Kind::Boolean);
    isTrue = value.text == "true";
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
JsonValue writeWord(int number, const Word (&words)[Count])
{
    for (const Word& word : words) {
        if (word.value == number) {
            return jsonValue(Kind::Text, std::string(word.text));
        }
    }
    return writeValue(number);
}

/// The words that may stand for the number, for people to read.
template <std::size_t Count>
QString knownWords(const Word (&words)[Count])
{
    QStringList known;
    for (const Word& word : words) {
        known.append(QStringLiteral("\"%1\"").arg(shown(word.text)));
    }
    return known.join(QStringLiteral(", "));
}

template <std::size_t Count>
void readWord(const JsonValue& value, int& number, const Word (&words)[Count])
{
    if (value.kind == Kind::Number) {
        return readValue(value, number);
    }
    for (const Word& word : words) {
        if (value.kind == Kind::Text && value.text == word.text) {
            number = word.value;
            return;
        }
    }
    if (value.kind != Kind::Text) {
        refuse(value,
               faultOf(FaultCode::OtherKindThanWord, knownWords(words), jsonKindName(value.kind)));
    }
    refuse(value, faultOf(FaultCode::UnknownWord, knownWords(words), shown(value.text)));
}

// ---- texts ----

bool isUtf8(const std::string& text)
{
    constexpr int kMibOfUtf8 = 106;
    static const QTextCodec* const codec = QTextCodec::codecForMib(kMibOfUtf8);
    QTextCodec::ConverterState state;
    codec->toUnicode(text.data(), static_cast<int>(text.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

JsonValue writeBase64(const std::string& text)
{
    return jsonValue(Kind::Text, QByteArray::fromStdString(text).toBase64().toStdString());
}

void readBase64(const JsonValue& value, std::string& text)
{
    expect(value, Kind::Text);
    const auto bytes = QByteArray::fromBase64Encoding(QByteArray::fromStdString(value.text),
                                                      QByteArray::AbortOnBase64DecodingErrors);
    if (!bytes) {
        refuse(value, {FaultCode::NotBase64, {}});
    }
    text = bytes.decoded.toStdString();
}

/// A text that is no UTF-8 could not stand in JSON; its bytes travel in an object instead.
constexpr JsonMember<std::string> kEncodedTextMembers[] = {{"base64", writeBase64, readBase64}};

JsonValue writeValue(const std::string& text)
{
    return isUtf8(text) ? jsonValue(Kind::Text, text) : writeRecord(text, kEncodedTextMembers);
}

void readValue(const JsonValue& value, std::string& text)
{
    if (value.kind == Kind::Object) {
        readRecord(value, text, kEncodedTextMembers);
    } else {
        expect(value, Kind::Text);
        text = value.text;
    }
    if (text.size() > kLongestText) {
        refuse(value, faultOf(FaultCode::JsonTextTooLong, text.size(), kLongestText));
    }
}

// ---- 64-bit numbers: many readers of JSON keep 53 bits of a number, but all of a text ----

JsonValue writeValue(std::int64_t number)
{
    return jsonValue(Kind::Text, std::to_string(number));
}

void readValue(const JsonValue& value, std::int64_t& number)
{
    expect(value, Kind::Text, QStringLiteral("wholeNumberText"));
    const char* const end = value.text.data() + value.text.size();
    const auto [last, error] = std::from_chars(value.text.data(), end, number);
    if (error == std::errc::result_out_of_range) {
        refuse(value, faultOf(FaultCode::Beyond64Bits, shown(value.text)));
    }
    if (error != std::errc() || last != end) {
        refuse(value, faultOf(FaultCode::NumberTextUnreadable, shown(value.text)));
    }
}

// ---- lists ----

JsonValue writeValue(const struProgInfo& entry);
void readValue(const JsonValue& value, struProgInfo& entry);
JsonValue writeValue(const PlayPlan& plan);
void readValue(const JsonValue& value, PlayPlan& plan);

template <typename Element>
JsonValue writeValue(const std::vector<Element>& elements)
{
    JsonValue array = jsonValue(Kind::Array);
    array.children.reserve(elements.size());
    for (const Element& element : elements) {
        array.children.push_back(writeValue(element));
    }
    return array;
}

template <typename Element>
void readValue(const JsonValue& array, std::vector<Element>& elements)
{
    expect(array, Kind::Array);
    elements.reserve(array.children.size());
    for (const JsonValue& child : array.children) {
        readValue(child, elements.emplace_back());
    }
}

// ---- the records of a schedule ----

template <typename Record, typename Value>
Record recordOf(Value Record::*);

template <auto Field>
using RecordOf = decltype(recordOf(Field));

/// A member of the JSON that is a field of the record.
template <auto Field>
constexpr JsonMember<RecordOf<Field>> field(std::string_view name)
{
    using Record = RecordOf<Field>;
    return {name, [](const Record& record) { return writeValue(record.*Field); },
            [](const JsonValue& value, Record& record) { readValue(value, record.*Field); }};
}

/// A field whose numbers have words.
template <auto Field, const auto& Words>
constexpr JsonMember<RecordOf<Field>> wordField(std::string_view name)
{
    using Record = RecordOf<Field>;
    return {name, [](const Record& record) { return writeWord(record.*Field, Words); },
            [](const JsonValue& value, Record& record) { readWord(value, record.*Field, Words); }};
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

JsonValue writeValue(const struProgInfo& entry)
{
    return writeRecord(entry, kEntryMembers);
}

void readValue(const JsonValue& value, struProgInfo& entry)
{
    readRecord(value, entry, kEntryMembers);
}

JsonValue writeValue(const PlayPlan& plan)
{
    return writeRecord(plan, kPlanMembers);
}

void readValue(const JsonValue& value, PlayPlan& plan)
{
    readRecord(value, plan, kPlanMembers);
}

/// A key that differs from the task's id is written down, so that reading refuses it by name
/// instead of losing one of the two.
JsonValue writeTasks(const Schedule& tasks)
{
    JsonValue array = jsonValue(Kind::Array);
    array.children.reserve(tasks.size());
    for (const auto& [key, task] : tasks) {
        JsonValue& written = array.children.emplace_back(writeRecord(task, kTaskMembers));
        if (key != task.id) {
            addMember(written, kTaskKey, writeValue(key));
        }
    }
    return array;
}

PlayTask readTask(const JsonValue& value)
{
    PlayTask task;
    readRecord(value, task, kTaskMembers, kTaskKey);
    if (const JsonValue* const member = value.member(kTaskKey)) {
        int key = 0;
        readValue(*member, key);
        if (key != task.id) {
            refuse(value, faultOf(FaultCode::KeyIsNotId, key, task.id));
        }
    }
    return task;
}

void readTasks(const JsonValue& array, Schedule& tasks)
{
    expect(array, Kind::Array);
    std::map<int, std::size_t> places;
    for (std::size_t place = 0; place < array.children.size(); ++place) {
        PlayTask task = readTask(array.children[place]);
        const int id = task.id;
        const auto [known, isNew] = places.emplace(id, place);
        if (!isNew) {
            refuse(array.children[place], faultOf(FaultCode::IdTaken, id, known->second));
        }
        tasks.emplace_hint(tasks.end(), id, std::move(task));
    }
}

// ---- the file ----

void readFormat(const JsonValue& value, Schedule&)
{
    expect(value, Kind::Text);
    if (value.text != kFormatName) {
        refuse(value, faultOf(FaultCode::OtherFormat, shown(value.text), shown(kFormatName)));
    }
}

void readVersion(const JsonValue& value, Schedule&)
{
    int version = 0;
    readValue(value, version);
    if (version > kVersion) {
        refuse(value, faultOf(FaultCode::NewerVersion, version, kVersion));
    }
    if (version < 1) {
        refuse(value, faultOf(FaultCode::NoSuchVersion, version));
    }
}

constexpr JsonMember<Schedule> kTopMembers[] = {
    {kFormat, [](const Schedule&) { return jsonValue(Kind::Text, std::string(kFormatName)); },
     readFormat},
    {kFormatVersion, [](const Schedule&) { return writeValue(kVersion); }, readVersion},
    {kTasks, writeTasks, readTasks},
};

Schedule readSchedule(const JsonValue& top)
{
    if (top.kind != Kind::Object) {
        refuse(top, {FaultCode::NoObject, {}});
    }
    Schedule tasks;
    // Format and version come before everything else, wherever they stand: a file of another kind
    // or a newer version is not to be blamed for members that this version does not know.
    const JsonValue* const format = top.member(kFormat);
    if (format == nullptr) {
        refuse(top, {FaultCode::NoFormat, {}});
    }
    readFormat(*format, tasks);
    const JsonValue* const version = top.member(kFormatVersion);
    if (version == nullptr) {
        refuseMissing(top, kFormatVersion);
    }
    readVersion(*version, tasks);
    readRecord(top, tasks, kTopMembers);
    return tasks;
}

} // namespace

QByteArray scheduleToJson(const std::map<int, PlayTask>& tasks)
{
    return printJson(writeRecord(tasks, kTopMembers));
}

ScheduleFromJson scheduleFromJson(const QByteArray& json)
try {
    const ParsedJson parsed = parseJson(json);
    if (parsed.fault) {
        return {{}, parsed.fault, {}, 0};
    }
    try {
        ScheduleFromJson schedule;
        schedule.tasks = readSchedule(parsed.top);
        schedule.fault = excessOf(schedule.tasks);
        if (schedule.fault) {
            schedule.tasks.clear();
        }
        return schedule;
    } catch (const JsonRefusal& refusal) {
        return {{}, refusal.fault, jsonPath(parsed.top, *refusal.value), refusal.value->line};
    }
} catch (const std::bad_alloc&) {
    return {{}, {FaultCode::NoMemory, {}}, {}, 0};
}

QByteArray readScheduleJson(QIODevice& device)
{
    constexpr qint64 part = 1024 * 1024;
    QByteArray json;
    while (json.size() <= kLargestJson) {
        const QByteArray read = device.read(part);
        if (read.isEmpty()) {
            break;
        }
        json += read;
    }
    return json;
}

Fault writeScheduleFile(const QString& path, const std::map<int, PlayTask>& tasks)
{
    return replaceFile(path, scheduleToJson(tasks));
}

} // namespace trel::mediadispatch
