#include "ScheduleInEffect.h"

#include "PlanEnds.h"
#include "clock/Clock.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

Instant now()
{
    return Clock::current().msecsSinceEpoch();
}

/// The insertion that has the screen now; null without one.
const ScreenInsertion* insertionOnScreen(const ScreenInsertions& insertions)
{
    const Instant moment = now();
    const auto found =
        std::find_if(insertions.begin(), insertions.end(),
                     [moment](const ScreenInsertion& one) { return one.hasScreenAt(moment); });
    return found == insertions.end() ? nullptr : &*found;
}

} // namespace

bool ScheduleInEffect::takesInsertion() const
{
    const ScreenInsertions& insertions = m_dispatch.insertions();
    const Instant moment = now();
    const bool waits =
        std::any_of(insertions.begin(), insertions.end(),
                    [moment](const ScreenInsertion& one) { return one.isWaitingAt(moment); });
    return m_dispatch.isRunning() && !waits;
}

PlayPlan ScheduleInEffect::plan(int taskId, int planId, int& index) const
{
    PlayPlan found = findPlan(m_dispatch.tasks(), taskId, planId, index);
    const ScreenInsertion* inserted = insertionOnScreen(m_dispatch.insertions());
    if (inserted && inserted->taskId == taskId && inserted->planId == planId) {
        found = inserted->plan;
    }
    updatePlanEnd(found, m_catalogue);
    return found;
}

void ScheduleInEffect::insert(int taskId, int planId, const PlayPlan& plan, bool isDelayed)
{
    int index = -1;
    findPlan(m_dispatch.tasks(), taskId, planId, index);
    if (index >= 0) {
        ScreenInsertion request;
        request.taskId = taskId;
        request.planId = planId;
        request.plan = plan;
        m_dispatch.insert(std::move(request), isDelayed);
    }
}

} // namespace trel::mediadispatch
