#include "ScheduleFile.h"

#include <service/PlanTiming.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

using namespace trel::mediadispatch;

namespace {

constexpr double kSecond = 1000.0;
constexpr qint64 kLargestFile = 16 * 1024 * 1024;

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

ProgramIten readProgram(const QJsonObject& json)
{
    const QJsonValue seconds = json[QLatin1String("seconds")];
    ProgramIten program;
    program.progIndex = json[QLatin1String("index")].toInt(-1);
    program.progName = json[QLatin1String("name")].toString().toStdString();
    program.durationMs = seconds.isDouble() ? seconds.toDouble() * kSecond : -1.0;
    program.kind = seconds.isDouble() ? ProgramKind::Video : ProgramKind::Image;
    return program;
}

QJsonObject written(const ProgramIten& program)
{
    QJsonObject json{{QStringLiteral("index"), program.progIndex},
                     {QStringLiteral("name"), text(program.progName)}};
    if (hasOwnLength(program)) {
        json[QLatin1String("seconds")] = program.durationMs / kSecond;
    }
    return json;
}

struProgInfo readEntry(const QJsonObject& json, const ScheduleFile::Programs& programs)
{
    struProgInfo entry;
    entry.progIndex = json[QLatin1String("index")].toInt(kInvalidProgIndex);
    entry.progName = json[QLatin1String("name")].toString().toStdString();
    entry.playCount = json[QLatin1String("plays")].toInt(1);
    entry.isInvalid = programs.count(entry.progIndex) == 0;
    return entry;
}

QJsonObject written(const struProgInfo& entry)
{
    return {{QStringLiteral("index"), entry.progIndex},
            {QStringLiteral("name"), text(entry.progName)},
            {QStringLiteral("plays"), entry.playCount}};
}

PlayPlan readPlan(const QJsonObject& json, const ScheduleFile::Programs& programs)
{
    PlayPlan plan;
    plan.id = json[QLatin1String("id")].toInt();
    plan.mode = json[QLatin1String("mode")] == QLatin1String("runs") ? FrequencyMode : TimeMode;
    plan.startTime = json[QLatin1String("start")].toString().toStdString();
    plan.endTime = json[QLatin1String("end")].toString().toStdString();
    plan.times = json[QLatin1String("runs")].toInt();
    plan.weeks = json[QLatin1String("days")].toString().toStdString();
    plan.endAction =
        json[QLatin1String("atEnd")] == QLatin1String("freeze") ? FreezeCurrentFrame : BlackScreen;
    const auto hasNoLength = [&programs](int index) {
        const auto found = programs.find(index);
        return found != programs.end() && !hasOwnLength(found->second);
    };
    for (const QJsonValue& entry : json[QLatin1String("programs")].toArray()) {
        plan.programs.push_back(readEntry(entry.toObject(), programs));
        plan.hasNoDuration = plan.hasNoDuration || hasNoLength(plan.programs.back().progIndex);
    }
    if (plan.mode == FrequencyMode) {
        // The lengths may be others than when this was written.
        plan.endTime = plannedEnd(plan, programs, hasNoLength);
    }
    return plan;
}

QJsonObject written(const PlayPlan& plan)
{
    QJsonArray programs;
    for (const struProgInfo& entry : plan.programs) {
        programs.append(written(entry));
    }
    return {{QStringLiteral("id"), plan.id},
            {QStringLiteral("mode"),
             plan.mode == FrequencyMode ? QStringLiteral("runs") : QStringLiteral("time")},
            {QStringLiteral("start"), text(plan.startTime)},
            {QStringLiteral("end"), text(plan.endTime)},
            {QStringLiteral("runs"), plan.times},
            {QStringLiteral("days"), text(plan.weeks)},
            {QStringLiteral("atEnd"), plan.endAction == FreezeCurrentFrame
                                          ? QStringLiteral("freeze")
                                          : QStringLiteral("black")},
            {QStringLiteral("programs"), programs}};
}

PlayTask readTask(const QJsonObject& json, const ScheduleFile::Programs& programs)
{
    PlayTask task;
    task.id = json[QLatin1String("id")].toInt();
    task.startDate = json[QLatin1String("from")].toString().toStdString();
    task.endDate = json[QLatin1String("to")].toString().toStdString();
    for (const QJsonValue& plan : json[QLatin1String("plans")].toArray()) {
        task.plans.push_back(readPlan(plan.toObject(), programs));
    }
    return task;
}

QJsonObject written(const PlayTask& task)
{
    QJsonArray plans;
    for (const PlayPlan& plan : task.plans) {
        plans.append(written(plan));
    }
    return {{QStringLiteral("id"), task.id},
            {QStringLiteral("from"), text(task.startDate)},
            {QStringLiteral("to"), text(task.endDate)},
            {QStringLiteral("plans"), plans}};
}

template <typename Records>
QJsonArray writtenAll(const Records& records)
{
    QJsonArray json;
    for (const auto& [key, record] : records) {
        json.append(written(record));
    }
    return json;
}

QString tr(const char* words)
{
    return QCoreApplication::translate("ScheduleFile", words);
}

} // namespace

QString ScheduleFile::open(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return tr("%1: %2").arg(path, file.errorString());
    }
    const QByteArray content = file.read(kLargestFile + 1);
    if (content.size() > kLargestFile) {
        return tr("%1: larger than 16 MiB").arg(path);
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (!document.isObject()) {
        return tr("%1: no schedule: %2, at byte %3")
            .arg(path, error.errorString())
            .arg(error.offset);
    }
    Programs programs;
    for (const QJsonValue& json : document[QLatin1String("programs")].toArray()) {
        const ProgramIten program = readProgram(json.toObject());
        programs.insert_or_assign(program.progIndex, program);
    }
    Tasks tasks;
    for (const QJsonValue& json : document[QLatin1String("tasks")].toArray()) {
        const PlayTask task = readTask(json.toObject(), programs);
        tasks.insert_or_assign(task.id, task);
    }
    m_path = path;
    m_programs = std::move(programs);
    m_tasks = std::move(tasks);
    return QString();
}

QString ScheduleFile::save(const Tasks& tasks)
{
    const QJsonObject json{{QStringLiteral("programs"), writtenAll(m_programs)},
                           {QStringLiteral("tasks"), writtenAll(tasks)}};
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(json).toJson()) < 0 ||
        !file.commit()) {
        return tr("%1: %2").arg(m_path, file.errorString());
    }
    m_tasks = tasks;
    return QString();
}
