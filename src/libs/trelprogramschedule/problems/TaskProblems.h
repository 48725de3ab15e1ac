#pragma once

#include "trelprogramschedule/problems/ScheduleProblem.h"

#include <map>
#include <vector>

namespace trel::mediadispatch {

/// What a task is looked at for.
struct ProblemScope
{
    /// What is over before this day is left out; an invalid date for nothing.
    QDate from;
    /// The changes of the clocks that are looked at, in the order of time.
    std::vector<ClockChange> changes;
};

/// What is wrong with a task by itself, whatever other tasks there are, in the order of
/// comesBefore(). Costs n log n over its plans and entries.
///
/// A list that repeats is cut off somewhere nearly always; it counts as cut off where not even its
/// first run is through when the plan ends. What is black for less than a minute is the cut
/// between two plans. Whether it is black follows from the days of the week before, as in the midst
/// of a long period: what an earlier task left behind is not looked at.
TRELPROGRAMSCHEDULE_EXPORT std::vector<ScheduleProblem>
taskProblems(const PlayTask& task, const std::map<int, ProgramIten>& catalogue,
             const ProblemScope& scope);

} // namespace trel::mediadispatch
