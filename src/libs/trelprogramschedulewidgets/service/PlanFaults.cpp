#include "service/PlanFaults.h"

#include "service/TimeText.h"
#include "service/WeekDays.h"

#include <algorithm>
#include <vector>

namespace trel::mediadispatch {

PlanFault planFault(const PlayPlan& plan, const std::string& end)
{
    if (!namesAnyDay(plan.weeks)) {
        return PlanFault::NoDay;
    }
    const QTime from = timeFromText(plan.startTime);
    const QTime to = timeFromText(end);
    if (!from.isValid()) {
        const bool hasEnd = plan.mode == FrequencyMode || to.isValid();
        return hasEnd ? PlanFault::UnreadableStart : PlanFault::UnreadableTimes;
    }
    if (!to.isValid()) {
        return PlanFault::UnreadableEnd;
    }
    if (from < to) {
        return PlanFault::None;
    }
    if (runsLessThanOnce(plan)) {
        return PlanFault::RunsLessThanOnce;
    }
    return from == to ? PlanFault::EmptySpan : PlanFault::InvertedSpan;
}

bool countsRuns(const PlayPlan& plan)
{
    return plan.mode != TimeMode;
}

bool runsLessThanOnce(const PlayPlan& plan)
{
    return countsRuns(plan) && plan.times < 1;
}

bool namesAnyDay(const std::string& weeks)
{
    std::vector<int> numbers;
    return parseWeeks(weeks, numbers) ||
           std::any_of(numbers.begin(), numbers.end(),
                       [](int number) { return number >= Monday && number <= Sunday; });
}

} // namespace trel::mediadispatch
