#pragma once

#include "week/moves/PlanMove.h"

#include <optional>
#include <set>
#include <vector>

namespace trel::desktop::week {

/// A new plan of a task that plays programs on days of the week, from a second of the day on, as
/// the add button and the fields of its row would make it.
///
/// It plays its list once. With a program that has no length of its own it lasts an hour, or until
/// the day ends. Nothing when the task has no id left, no program is given, one of them is not in
/// the catalogue or the second is not of a day.
std::optional<trel::mediadispatch::PlayPlan>
planOfPrograms(const std::vector<int>& progIndexes, int second, const std::set<int>& weekdays,
               const trel::mediadispatch::PlayTask& task, const Programs& programs,
               const trel::mediadispatch::NoDurationTest& hasNoDuration);

/// A new plan of a task with the programs, times, runs and end of another plan, on days of the
/// week. What the service carries with that plan stays there. Nothing when the task has no id left.
std::optional<trel::mediadispatch::PlayPlan>
planLike(const trel::mediadispatch::PlayPlan& other, const std::set<int>& weekdays,
         const trel::mediadispatch::PlayTask& task, const Programs& programs,
         const trel::mediadispatch::NoDurationTest& hasNoDuration);

} // namespace trel::desktop::week
