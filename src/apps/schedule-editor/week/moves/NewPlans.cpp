#include "week/moves/NewPlans.h"

#include "service/NewPlan.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"

#include <QTime>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

constexpr int kHour = 3600;

std::optional<PlayPlan> newPlan(const std::set<int>& weekdays, const PlayTask& task)
{
    PlayPlan plan = planTemplate();
    if (!completeNewPlan(plan, task)) {
        return std::nullopt;
    }
    plan.weeks = joinWeeks({weekdays.begin(), weekdays.end()});
    return plan;
}

bool hasAnyWithoutLength(const std::vector<struProgInfo>& entries,
                         const NoDurationTest& hasNoDuration)
{
    return std::any_of(entries.begin(), entries.end(),
                       [&](const struProgInfo& entry) { return hasNoDuration(entry.progIndex); });
}

} // namespace

std::optional<PlayPlan> planOfPrograms(const std::vector<int>& progIndexes, int second,
                                       const std::set<int>& weekdays, const PlayTask& task,
                                       const Programs& programs,
                                       const NoDurationTest& hasNoDuration)
{
    std::optional<PlayPlan> plan = newPlan(weekdays, task);
    const bool isOfDay = second >= 0 && second < kMidnight;
    if (!plan || !isOfDay || progIndexes.empty()) {
        return std::nullopt;
    }
    for (const int index : progIndexes) {
        const auto program = programs.find(index);
        if (program == programs.end()) {
            return std::nullopt;
        }
        struProgInfo entry;
        entry.progIndex = index;
        entry.progName = program->second.progName;
        plan->programs.push_back(std::move(entry));
    }
    plan->startTime = timeToText(QTime(0, 0).addSecs(second));
    plan->hasNoDuration = hasAnyWithoutLength(plan->programs, hasNoDuration);
    if (plan->hasNoDuration) {
        plan->endTime = addDuration(plan->startTime, kHour);
    } else {
        plan->mode = FrequencyMode;
        plan->endTime = plannedEnd(*plan, programs, hasNoDuration);
    }
    return plan;
}

std::optional<PlayPlan> planLike(const PlayPlan& other, const std::set<int>& weekdays,
                                 const PlayTask& task, const Programs& programs,
                                 const NoDurationTest& hasNoDuration)
{
    std::optional<PlayPlan> plan = newPlan(weekdays, task);
    if (!plan) {
        return std::nullopt;
    }
    plan->mode = other.mode;
    plan->startTime = other.startTime;
    plan->endTime =
        other.mode == FrequencyMode ? plannedEnd(other, programs, hasNoDuration) : other.endTime;
    plan->times = other.times;
    plan->endAction = other.endAction;
    plan->programs = other.programs;
    plan->hasNoDuration = other.hasNoDuration;
    return plan;
}

} // namespace trel::desktop::week
