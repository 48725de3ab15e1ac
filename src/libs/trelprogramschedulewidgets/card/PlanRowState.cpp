#include "PlanRowState.h"

#include "ProgramNames.h"
#include "service/TimeText.h"
#include "service/scheduleManage.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

bool hasProgramWithoutLength(const PlayPlan& plan)
{
    return std::any_of(plan.programs.begin(), plan.programs.end(), [](const struProgInfo& entry) {
        return scheduleManage::getInstance().isNoDurationType(entry.progIndex);
    });
}

/// A text that does not parse leaves an editor at its default.
QTime shownTime(const std::string& text)
{
    const QTime time = timeFromText(text);
    return time.isValid() ? time : QTime(0, 0);
}

} // namespace

PlanRowState::PlanRowState(const PlayPlan& plan)
    : PlanRowState(plan, programSuffixes())
{}

PlanRowState::PlanRowState(const PlayPlan& plan, const ProgramSuffixes& suffixes)
    : planId(plan.id)
    , programs(programNames(plan.programs, suffixes))
    , isModeLocked(hasProgramWithoutLength(plan))
    , mode(isModeLocked ? TimeMode : plan.mode)
    , startTime(shownTime(plan.startTime))
    , endTime(shownTime(plan.endTime))
    , times(plan.times)
    , weeks(plan.weeks.empty() ? std::to_string(EveryDay) : plan.weeks)
    , endAction(plan.endAction)
{}

void PlanRowState::correct(PlayPlan& plan) const
{
    plan.mode = mode;
    plan.weeks = weeks;
}

} // namespace trel::mediadispatch
