#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

#include <optional>

namespace trel::mediadispatch {

/// The id of a plan that has not been given one.
inline constexpr int kNoPlanId = -1;

/// What an operator starts from: one run in TimeMode, without id, days and programs.
SCHEDULECONTRACT_EXPORT PlayPlan planTemplate();

/// The largest id of a task's plans plus 1; 1 when none is above 0. None when there is no number
/// behind the largest id.
SCHEDULECONTRACT_EXPORT std::optional<int> nextPlanId(const PlayTask& task);

/// Gives a plan its id, and the place in the day that it has as the newest plan of the task: it
/// starts where the day's last plan ends, and in TimeMode lasts an hour or until the day ends.
/// False when the task has no id left; the plan stays as it is.
SCHEDULECONTRACT_EXPORT bool completeNewPlan(PlayPlan& plan, const PlayTask& task);

/// A copy of a plan for the same task, under an id of its own. It starts where its source ends and
/// lasts an hour or until the day ends. None when the task has no id left.
SCHEDULECONTRACT_EXPORT std::optional<PlayPlan> followingCopy(const PlayPlan& source,
                                                              const PlayTask& task);

} // namespace trel::mediadispatch
