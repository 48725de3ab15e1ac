#pragma once

#include "schedulecontract_export.h"
#include "service/PlanTiming.h"
#include "service/ScheduleRecords.h"

#include <vector>

namespace trel::mediadispatch {

/// What of a plan in use an insertion may play.
enum class InsertionScope {
    Refused,    ///< Nothing: the plan will not run again.
    OneProgram, ///< The chosen program alone: today's window is over, but the plan runs again.
    WholeList,  ///< The whole list, from the chosen program on.
};

/// What may play, by how the last day of the task compares with today, and by whether the end of
/// the plan has passed for today.
SCHEDULECONTRACT_EXPORT InsertionScope insertionScope(DataCompareType lastDay, bool endPassed);

/// The list in the order in which it plays from the entry at row on, the entries before it at the
/// end. Only done when the list holds an entry equal to target, whichever row that has; returned as
/// it is otherwise.
SCHEDULECONTRACT_EXPORT std::vector<struProgInfo> listFromRow(std::vector<struProgInfo> list,
                                                              const struProgInfo& target, int row);

/// The plan with these programs in the form in which the service takes an insertion: it freezes its
/// last frame and carries the mark of an insertion, and of one outside the plan's own window.
SCHEDULECONTRACT_EXPORT PlayPlan insertedPlan(PlayPlan plan, std::vector<struProgInfo> programs,
                                              InsertionScope scope);

/// True when one of the entries is of a program without a length of its own. Asks about the entries
/// in order, and about none after the first that is.
SCHEDULECONTRACT_EXPORT bool containsNoDuration(const std::vector<struProgInfo>& entries,
                                                const NoDurationTest& test);

} // namespace trel::mediadispatch
