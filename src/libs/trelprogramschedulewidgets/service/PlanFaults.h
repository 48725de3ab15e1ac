#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

#include <string>

namespace trel::mediadispatch {

/// What keeps a plan from ever having the screen, whatever stands above it.
enum class PlanFault {
    None,
    NoDay,            ///< None of its days is a day of the week.
    UnreadableStart,  ///< Its start is no time of day; in FrequencyMode there is no end either.
    UnreadableEnd,    ///< Its end is no time of day.
    UnreadableTimes,  ///< Neither of them is.
    RunsLessThanOnce, ///< Its list is to run less than once, and so there is no span.
    EmptySpan,        ///< It ends as it starts.
    InvertedSpan,     ///< It ends before it starts.
};

/// Judges a plan by itself. The end is the one in force, which a plan in FrequencyMode does not
/// store.
SCHEDULECONTRACT_EXPORT PlanFault planFault(const PlayPlan& plan, const std::string& end);

/// Whether the list of a plan runs a number of times, and not until the plan ends. A mode that is
/// none counts as FrequencyMode, except that the end stays as it is set.
SCHEDULECONTRACT_EXPORT bool countsRuns(const PlayPlan& plan);

/// Whether its list is to run less than once, so that there is nothing to be seen of it.
SCHEDULECONTRACT_EXPORT bool runsLessThanOnce(const PlayPlan& plan);

/// Whether a `weeks` text stands for any day of the week.
SCHEDULECONTRACT_EXPORT bool namesAnyDay(const std::string& weeks);

} // namespace trel::mediadispatch
