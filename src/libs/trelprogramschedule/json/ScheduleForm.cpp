#include "ScheduleForm.h"

#include "JsonValues.h"
#include "ScheduleLimits.h"
#include "TaskJson.h"

#include <algorithm>
#include <new>
#include <set>
#include <utility>

namespace trel::mediadispatch {

namespace {

using Kind = JsonValue::Kind;

constexpr std::string_view kFormatName = "trel-schedule";

constexpr std::string_view kFormat = "format";
constexpr std::string_view kFormatVersion = "version";
constexpr std::string_view kTasks = "tasks";

// ---- programs ----

constexpr JsonWord kKindWords[] = {
    {static_cast<int>(ProgramKind::Video), "video"},
    {static_cast<int>(ProgramKind::Audio), "audio"},
    {static_cast<int>(ProgramKind::Image), "image"},
    {static_cast<int>(ProgramKind::Live), "live"},
    {static_cast<int>(ProgramKind::Other), "other"},
};

JsonValue writeKind(const NamedProgram& program)
{
    return writeWord(static_cast<int>(program.kind), kKindWords);
}

/// A number that is no kind yet is some other kind.
void readKind(const JsonValue& value, NamedProgram& program)
{
    int number = 0;
    readWord(value, number, kKindWords);
    const bool isKnown = number >= 0 && number < static_cast<int>(ProgramKind::Other);
    program.kind = isKnown ? static_cast<ProgramKind>(number) : ProgramKind::Other;
}

template <qint64 NamedProgram::*Number>
JsonValue writeLarge(const NamedProgram& program)
{
    return writeValue(static_cast<std::int64_t>(program.*Number));
}

template <qint64 NamedProgram::*Number>
void readLarge(const JsonValue& value, NamedProgram& program)
{
    std::int64_t number = 0;
    readValue(value, number);
    program.*Number = number;
}

bool isHash(const std::string& text)
{
    constexpr std::size_t digits = 64;
    return text.size() == digits && std::all_of(text.begin(), text.end(), [](char digit) {
               return (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f');
           });
}

void readHash(const JsonValue& value, NamedProgram& program)
{
    expect(value, Kind::Text);
    if (!value.text.empty() && !isHash(value.text)) {
        refuse(value,
               faultOf(FaultCode::OtherKind, QStringLiteral("hash"), QStringLiteral("otherText")));
    }
    program.sha256 = value.text;
}

constexpr JsonMember<NamedProgram> kProgramMembers[] = {
    jsonField<&NamedProgram::progIndex>("index"),
    jsonField<&NamedProgram::name>("name"),
    jsonField<&NamedProgram::path>("path"),
    {"kind", writeKind, readKind},
    {"length", writeLarge<&NamedProgram::lengthMs>, readLarge<&NamedProgram::lengthMs>},
    {"size", writeLarge<&NamedProgram::size>, readLarge<&NamedProgram::size>},
    {"sha256", [](const NamedProgram& program) { return jsonValue(Kind::Text, program.sha256); },
     readHash},
};

JsonValue writePrograms(const ScheduleForm& form)
{
    JsonValue array = jsonValue(Kind::Array);
    array.children.reserve(form.programs.size());
    for (const NamedProgram& program : form.programs) {
        array.children.push_back(writeRecord(program, kProgramMembers));
    }
    return array;
}

/// An entry has to mean one program, so no two may have the same number.
void readPrograms(const JsonValue& array, ScheduleForm& form)
{
    expect(array, Kind::Array);
    std::set<int> taken;
    form.programs.reserve(array.children.size());
    for (const JsonValue& child : array.children) {
        NamedProgram& program = form.programs.emplace_back();
        readRecord(child, program, kProgramMembers);
        if (program.progIndex < 0 || program.progIndex >= kInvalidProgIndex ||
            !taken.insert(program.progIndex).second) {
            refuse(*child.member("index"),
                   faultOf(FaultCode::OtherKind, QStringLiteral("programNumber"),
                           QStringLiteral("otherNumber")));
        }
    }
}

// ---- the file ----

JsonValue writeFormat(const ScheduleForm&)
{
    return jsonValue(Kind::Text, std::string(kFormatName));
}

void readFormat(const JsonValue& value, ScheduleForm&)
{
    expect(value, Kind::Text);
    if (value.text != kFormatName) {
        refuse(value, faultOf(FaultCode::OtherFormat, shown(value.text), shown(kFormatName)));
    }
}

JsonValue writeVersion(const ScheduleForm& form)
{
    return writeValue(form.version);
}

void readVersion(const JsonValue& value, ScheduleForm& form)
{
    readValue(value, form.version);
    if (form.version > ScheduleForm::kNamed) {
        refuse(value, faultOf(FaultCode::NewerVersion, form.version, int(ScheduleForm::kNamed)));
    }
    if (form.version < ScheduleForm::kPlain) {
        refuse(value, faultOf(FaultCode::NoSuchVersion, form.version));
    }
}

JsonValue writeTaskList(const ScheduleForm& form)
{
    return writeTasks(form.tasks);
}

void readTaskList(const JsonValue& value, ScheduleForm& form)
{
    readTasks(value, form.tasks);
}

constexpr JsonMember<ScheduleForm> kPlainMembers[] = {
    {kFormat, writeFormat, readFormat},
    {kFormatVersion, writeVersion, readVersion},
    {kTasks, writeTaskList, readTaskList},
};

constexpr JsonMember<ScheduleForm> kNamedMembers[] = {
    {kFormat, writeFormat, readFormat},
    {kFormatVersion, writeVersion, readVersion},
    {"programs", writePrograms, readPrograms},
    {kTasks, writeTaskList, readTaskList},
};

ScheduleForm readTop(const JsonValue& top)
{
    if (top.kind != Kind::Object) {
        refuse(top, {FaultCode::NoObject, {}});
    }
    ScheduleForm form;
    // Format and version come before everything else, wherever they stand: a file of another kind
    // or a newer version is not to be blamed for members that this version does not know.
    const JsonValue* const format = top.member(kFormat);
    if (format == nullptr) {
        refuse(top, {FaultCode::NoFormat, {}});
    }
    readFormat(*format, form);
    const JsonValue* const version = top.member(kFormatVersion);
    if (version == nullptr) {
        refuseMissing(top, kFormatVersion);
    }
    readVersion(*version, form);
    if (form.version == ScheduleForm::kPlain) {
        readRecord(top, form, kPlainMembers);
    } else {
        readRecord(top, form, kNamedMembers);
    }
    return form;
}

ScheduleForm refused(const Fault& fault, const QString& place = {}, int line = 0)
{
    ScheduleForm form;
    form.fault = fault;
    form.place = place;
    form.line = line;
    return form;
}

} // namespace

QByteArray writeScheduleForm(const ScheduleForm& form)
{
    return printJson(form.version == ScheduleForm::kPlain ? writeRecord(form, kPlainMembers)
                                                          : writeRecord(form, kNamedMembers));
}

ScheduleForm readScheduleForm(const QByteArray& json)
try {
    const ParsedJson parsed = parseJson(json);
    if (parsed.fault) {
        return refused(parsed.fault);
    }
    try {
        ScheduleForm form = readTop(parsed.top);
        const Fault excess = excessOf(form.tasks);
        return excess ? refused(excess) : form;
    } catch (const JsonRefusal& refusal) {
        return refused(refusal.fault, jsonPath(parsed.top, *refusal.value), refusal.value->line);
    }
} catch (const std::bad_alloc&) {
    return refused({FaultCode::NoMemory, {}});
}

} // namespace trel::mediadispatch
