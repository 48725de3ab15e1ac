#include "ScheduleLines.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QVector>
#include <QtTest>

#include <algorithm>

namespace {

constexpr int kPatience = 60000; // milliseconds

QVector<QJsonObject> objects(const QJsonObject& owner, const char* list)
{
    QVector<QJsonObject> found;
    for (const QJsonValue value : owner.value(QLatin1String(list)).toArray()) {
        found.append(value.toObject());
    }
    return found;
}

int idOf(const QJsonObject& object)
{
    return object.value(QLatin1String("id")).toInt();
}

QJsonObject withId(const QVector<QJsonObject>& objects, int id)
{
    const auto found = std::find_if(objects.begin(), objects.end(),
                                    [id](const QJsonObject& object) { return idOf(object) == id; });
    return found == objects.end() ? QJsonObject() : *found;
}

QVector<QJsonObject> tasksOf(const QString& database)
{
    QProcess process;
    process.start(QStringLiteral(SCHEDULECTL), {QStringLiteral("show"), QStringLiteral("--json"),
                                                QStringLiteral("--database"), database});
    if (!process.waitForFinished(kPatience) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        QTest::qFail(process.readAllStandardError().constData(), __FILE__, __LINE__);
        return {};
    }
    return objects(QJsonDocument::fromJson(process.readAllStandardOutput()).object(), "tasks");
}

QStringList daysOf(const QJsonObject& plan)
{
    QStringList days;
    for (const QJsonValue day : plan.value(QLatin1String("days")).toArray()) {
        days.append(QString::number(day.toInt()));
    }
    return days;
}

QString namesOf(const QJsonObject& plan)
{
    QStringList names;
    for (const QJsonObject& entry : objects(plan, "programs")) {
        names.append(entry.value(QLatin1String("name")).toString());
    }
    return names.join(QLatin1Char(','));
}

QString lineOf(const QJsonObject& plan)
{
    PlanLine line;
    line.id = idOf(plan);
    line.mode = plan.value(QLatin1String("mode")).toInt();
    line.start = plan.value(QLatin1String("startTime")).toString();
    line.end = plan.value(QLatin1String("endTime")).toString();
    line.times = plan.value(QLatin1String("times")).toInt();
    line.days = daysOf(plan);
    line.endAction = plan.value(QLatin1String("endAction")).toInt();
    line.programs = namesOf(plan);
    line.collides = !plan.value(QLatin1String("collidesWithRow")).isNull();
    return line.text();
}

} // namespace

QString PlanLine::text() const
{
    const QString play =
        mode == 0 ? QStringLiteral("time") : QStringLiteral("frequency x%1").arg(times);
    return QStringLiteral("%1: %2-%3 %4 days %5 %6 [%7]%8")
        .arg(QString::number(id), start, end, play, days.join(QLatin1Char(',')),
             endAction == 0 ? QStringLiteral("black") : QStringLiteral("freeze"), programs,
             collides ? QStringLiteral(" collides") : QString());
}

QString taskLine(int id, const QString& firstDay, const QString& lastDay)
{
    return QStringLiteral("task %1: %2-%3").arg(QString::number(id), firstDay, lastDay);
}

QStringList shownBySchedulectl(const QString& database)
{
    QStringList lines;
    for (const QJsonObject& task : tasksOf(database)) {
        lines.append(taskLine(idOf(task), task.value(QLatin1String("startDate")).toString(),
                              task.value(QLatin1String("endDate")).toString()));
        for (const QJsonObject& plan : objects(task, "plans")) {
            lines.append(lineOf(plan));
        }
    }
    return lines;
}

QStringList entriesShownBySchedulectl(const QString& database, int taskId, int planId)
{
    QStringList entries;
    const QJsonObject plan = withId(objects(withId(tasksOf(database), taskId), "plans"), planId);
    for (const QJsonObject& entry : objects(plan, "programs")) {
        entries.append(QStringLiteral("%1 x%2").arg(
            entry.value(QLatin1String("name")).toString(),
            QString::number(entry.value(QLatin1String("playCount")).toInt())));
    }
    return entries;
}
