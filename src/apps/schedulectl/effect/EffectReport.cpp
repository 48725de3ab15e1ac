#include "EffectReport.h"

#include "common/DisplayText.h"
#include "schedule/ScheduleWords.h"

#include <QStringList>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

constexpr int kMostIds = 20;

} // namespace

QString sinceText(const EffectStart& started, const MomentFormat& local)
{
    return QStringLiteral("since %1, save %2, started by %3")
        .arg(local.text(started.since), QString::number(started.saved), printable(started.by));
}

QJsonValue startJson(const std::optional<EffectStart>& started, const ScreenReport& words)
{
    if (!started) {
        return QJsonValue::Null;
    }
    return QJsonObject{{QStringLiteral("since"), words.jsonMoment(started->since)},
                       {QStringLiteral("save"), started->saved},
                       {QStringLiteral("startedBy"), started->by}};
}

QString insertionText(const ScreenInsertion& insertion, Instant besides, const ScreenReport& words)
{
    const MomentFormat& local = words.source().local;
    return QStringLiteral("%1 from %2 until %3, for task %4, plan %5")
        .arg(entriesText(insertion.plan.programs, words.source().programs),
             local.text(insertion.begins, besides), words.untilText(insertion.ends, besides),
             QString::number(insertion.taskId), QString::number(insertion.planId));
}

QJsonObject insertionJson(const ScreenInsertion& insertion, const ScreenReport& words)
{
    QJsonArray programs;
    for (const struProgInfo& entry : insertion.plan.programs) {
        programs.append(entry.progIndex);
    }
    return {{QStringLiteral("taskId"), insertion.taskId},
            {QStringLiteral("planId"), insertion.planId},
            {QStringLiteral("programs"), programs},
            {QStringLiteral("requested"), words.jsonMoment(insertion.requested)},
            {QStringLiteral("begins"), words.jsonMoment(insertion.begins)},
            {QStringLiteral("ends"), words.jsonMoment(insertion.ends)},
            {QStringLiteral("askedBy"), insertion.askedBy}};
}

QString taskIdsText(const std::set<int>& taskIds)
{
    QStringList ids;
    for (const int id : taskIds) {
        if (ids.size() == kMostIds) {
            break;
        }
        ids.append(QString::number(id));
    }
    const int left = static_cast<int>(taskIds.size()) - ids.size();
    const QString named = ids.join(QStringLiteral(", "));
    return left > 0 ? QStringLiteral("%1 and %2 more").arg(named, QString::number(left)) : named;
}

QJsonArray taskIdsJson(const std::set<int>& taskIds)
{
    QJsonArray ids;
    for (const int id : taskIds) {
        ids.append(id);
    }
    return ids;
}

} // namespace trel::console
