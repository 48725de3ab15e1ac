#include "service/NewPlan.h"

#include "service/NextId.h"
#include "service/PlanTiming.h"
#include "service/TimeText.h"

#include <QTime>

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr int kNewPlanSeconds = 3600;

// The plan that ends last need not stand in the last row.
std::string latestEnd(const PlayTask& task)
{
    std::string latest = kDayStart;
    for (const PlayPlan& plan : task.plans) {
        latest = std::max(latest, plan.endTime);
    }
    return latest;
}

} // namespace

PlayPlan planTemplate()
{
    PlayPlan plan;
    plan.id = kNoPlanId;
    plan.startTime = kDayStart;
    plan.endTime = "01:00:00";
    plan.times = 1;
    plan.serviceTime = kDayEnd;
    return plan;
}

std::optional<int> nextPlanId(const PlayTask& task)
{
    int largest = 0;
    for (const PlayPlan& plan : task.plans) {
        largest = std::max(largest, plan.id);
    }
    return idAfter(largest);
}

bool completeNewPlan(PlayPlan& plan, const PlayTask& task)
{
    const std::optional<int> id = nextPlanId(task);
    if (!id) {
        return false;
    }
    plan.id = *id;
    const QTime start = timeFromText(latestEnd(task));
    plan.startTime = start.isValid() ? timeToText(start) : kDayStart;
    if (plan.mode == TimeMode) {
        plan.endTime = addDuration(plan.startTime, kNewPlanSeconds);
    }
    return true;
}

std::optional<PlayPlan> followingCopy(const PlayPlan& source, const PlayTask& task)
{
    const std::optional<int> id = nextPlanId(task);
    if (!id) {
        return std::nullopt;
    }
    PlayPlan copy = source;
    copy.id = *id;
    copy.startTime = copy.endTime;
    copy.endTime = addDuration(copy.startTime, kNewPlanSeconds);
    return copy;
}

} // namespace trel::mediadispatch
