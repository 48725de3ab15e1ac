#include "AsRunSchedule.h"

#include "json/ScheduleJson.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

#include <set>

namespace trel::mediadispatch {

namespace {

constexpr quint32 kMark = 0x54724131; // "TrA1"
constexpr quint32 kMostItems = 1000000;

/// The tasks by which the plans of insertions travel: one for each, under its place.
std::map<int, PlayTask> insertedTasks(const ScreenInsertions& insertions)
{
    std::map<int, PlayTask> tasks;
    for (const ScreenInsertion& insertion : insertions) {
        const int place = static_cast<int>(tasks.size());
        PlayTask& task = tasks[place];
        task.id = place;
        task.plans.push_back(insertion.plan);
    }
    return tasks;
}

void addPrograms(const std::map<int, PlayTask>& tasks, std::set<int>& indexes)
{
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                indexes.insert(entry.progIndex);
            }
        }
    }
}

QByteArray bytesOf(const std::string& text)
{
    return QByteArray::fromStdString(text);
}

void setUp(QDataStream& stream)
{
    stream.setVersion(QDataStream::Qt_5_15);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
}

void writeInsertions(QDataStream& out, const ScreenInsertions& insertions)
{
    out << quint32(insertions.size());
    for (const ScreenInsertion& insertion : insertions) {
        out << qint32(insertion.taskId) << qint32(insertion.planId) << qint64(insertion.requested)
            << qint64(insertion.begins) << qint64(insertion.ends) << qint64(insertion.number)
            << insertion.askedBy.toUtf8();
    }
    out << scheduleToJson(insertedTasks(insertions));
}

bool readInsertions(QDataStream& in, ScreenInsertions& insertions)
{
    quint32 count = 0;
    in >> count;
    if (count > kMostItems) {
        return false;
    }
    for (quint32 at = 0; at < count && in.status() == QDataStream::Ok; ++at) {
        qint32 taskId = 0;
        qint32 planId = 0;
        QByteArray askedBy;
        ScreenInsertion& insertion = insertions.emplace_back();
        in >> taskId >> planId >> insertion.requested >> insertion.begins >> insertion.ends >>
            insertion.number >> askedBy;
        insertion.taskId = taskId;
        insertion.planId = planId;
        insertion.askedBy = QString::fromUtf8(askedBy);
    }
    QByteArray json;
    in >> json;
    const ScheduleFromJson plans = scheduleFromJson(json);
    if (plans.fault || plans.tasks.size() != insertions.size()) {
        return false;
    }
    for (std::size_t at = 0; at < insertions.size(); ++at) {
        const auto task = plans.tasks.find(static_cast<int>(at));
        if (task == plans.tasks.end() || task->second.plans.size() != 1) {
            return false;
        }
        insertions[at].plan = task->second.plans.front();
    }
    return true;
}

void writeCatalogue(QDataStream& out, const AsRunSchedule& schedule)
{
    std::set<int> indexes;
    addPrograms(schedule.tasks, indexes);
    addPrograms(insertedTasks(schedule.insertions), indexes);
    std::map<int, const ProgramIten*> programs;
    for (const int index : indexes) {
        if (const auto found = schedule.catalogue.find(index); found != schedule.catalogue.end()) {
            programs.emplace(index, &found->second);
        }
    }
    out << quint32(programs.size());
    for (const auto& [index, program] : programs) {
        out << qint32(index) << bytesOf(program->progName) << program->durationMs
            << qint32(program->kind) << program->isNull;
    }
}

bool readCatalogue(QDataStream& in, std::map<int, ProgramIten>& catalogue)
{
    quint32 count = 0;
    in >> count;
    for (quint32 at = 0; at < count && in.status() == QDataStream::Ok; ++at) {
        qint32 index = 0;
        qint32 kind = 0;
        QByteArray name;
        ProgramIten program;
        in >> index >> name >> program.durationMs >> kind >> program.isNull;
        program.progIndex = index;
        program.progName = name.toStdString();
        program.kind = static_cast<ProgramKind>(kind);
        catalogue.emplace(index, std::move(program));
    }
    return count <= kMostItems;
}

} // namespace

QByteArray asRunContents(const AsRunSchedule& schedule)
{
    QByteArray contents;
    QDataStream out(&contents, QIODevice::WriteOnly);
    setUp(out);
    out << kMark << schedule.zone << bool(schedule.start);
    const EffectStart start = schedule.start.value_or(EffectStart());
    out << qint64(start.since) << qint64(start.saved) << start.by.toUtf8();
    out << scheduleToJson(schedule.tasks);
    writeInsertions(out, schedule.insertions);
    writeCatalogue(out, schedule);
    return contents;
}

std::optional<AsRunSchedule> asRunSchedule(const QByteArray& contents)
{
    QDataStream in(contents);
    setUp(in);
    quint32 mark = 0;
    bool isStarted = false;
    EffectStart start;
    QByteArray by;
    QByteArray json;
    AsRunSchedule schedule;
    in >> mark >> schedule.zone >> isStarted >> start.since >> start.saved >> by >> json;
    if (in.status() != QDataStream::Ok || mark != kMark) {
        return std::nullopt;
    }
    start.by = QString::fromUtf8(by);
    if (isStarted) {
        schedule.start = start;
    }
    ScheduleFromJson tasks = scheduleFromJson(json);
    schedule.tasks = std::move(tasks.tasks);
    const bool isRead = !tasks.fault && readInsertions(in, schedule.insertions) &&
                        readCatalogue(in, schedule.catalogue);
    return isRead && in.status() == QDataStream::Ok && in.atEnd()
               ? std::optional(std::move(schedule))
               : std::nullopt;
}

QByteArray asRunScheduleHash(const QByteArray& contents)
{
    return QCryptographicHash::hash(contents, QCryptographicHash::Sha256);
}

} // namespace trel::mediadispatch
