#include "ScheduleLimits.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

bool isTooLong(const std::string& text)
{
    return text.size() > kLongestText;
}

bool hasTooLongText(const PlayPlan& plan)
{
    return isTooLong(plan.weeks) || isTooLong(plan.startTime) || isTooLong(plan.endTime) ||
           isTooLong(plan.serviceTime) ||
           std::any_of(plan.programs.begin(), plan.programs.end(),
                       [](const struProgInfo& entry) { return isTooLong(entry.progName); });
}

} // namespace

QString excessText(std::size_t most, const QString& noun)
{
    return QStringLiteral("there are more than %1 %2").arg(QString::number(most), noun);
}

QString excessOf(const std::map<int, PlayTask>& tasks)
{
    std::size_t plans = 0;
    std::size_t entries = 0;
    std::size_t values = 0;
    for (const auto& [id, task] : tasks) {
        plans += task.plans.size();
        for (const PlayPlan& plan : task.plans) {
            entries += plan.programs.size();
            values += plan.serviceList.size();
        }
    }
    if (tasks.size() > kMostTasks) {
        return excessText(kMostTasks, QStringLiteral("tasks"));
    }
    if (plans > kMostPlans) {
        return excessText(kMostPlans, QStringLiteral("plans"));
    }
    if (entries > kMostEntries) {
        return excessText(kMostEntries, QStringLiteral("entries of programs"));
    }
    return values > kMostServiceValues
               ? excessText(kMostServiceValues, QStringLiteral("numbers in the lists of plans"))
               : QString();
}

QString excessOf(const PlayTask& task)
{
    const bool isBeyond = isTooLong(task.startDate) || isTooLong(task.endDate) ||
                          std::any_of(task.plans.begin(), task.plans.end(), hasTooLongText);
    return isBeyond ? QStringLiteral("a text of task %1 has more than %2 bytes")
                          .arg(QString::number(task.id), QString::number(kLongestText))
                    : QString();
}

} // namespace trel::mediadispatch
