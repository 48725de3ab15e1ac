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

Fault excessOf(const std::map<int, PlayTask>& tasks)
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
        return faultOf(FaultCode::TooManyTasks, kMostTasks);
    }
    if (plans > kMostPlans) {
        return faultOf(FaultCode::TooManyPlans, kMostPlans);
    }
    if (entries > kMostEntries) {
        return faultOf(FaultCode::TooManyEntries, kMostEntries);
    }
    return values > kMostServiceValues ? faultOf(FaultCode::TooManyListNumbers, kMostServiceValues)
                                       : Fault();
}

Fault excessOf(const PlayTask& task)
{
    const bool isBeyond = isTooLong(task.startDate) || isTooLong(task.endDate) ||
                          std::any_of(task.plans.begin(), task.plans.end(), hasTooLongText);
    return isBeyond ? faultOf(FaultCode::TaskTextTooLong, task.id, kLongestText) : Fault();
}

} // namespace trel::mediadispatch
