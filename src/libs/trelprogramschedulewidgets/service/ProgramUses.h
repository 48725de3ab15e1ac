#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

#include <cstddef>
#include <map>
#include <vector>

namespace trel::mediadispatch {

/// A plan that plays programs that were asked for.
struct ProgramUse
{
    int taskId = -1;           ///< The key of its task.
    std::size_t row = 0;       ///< Its place in the task, from 0.
    int planId = -1;           ///< PlayPlan::id
    std::vector<int> programs; ///< Those of the programs that it plays, each once, ascending.
    /// Nothing else is left of its list, so that without these programs it plays nothing.
    bool isAll = false;
};

/// Whether two uses are the same in every field.
inline bool operator==(const ProgramUse& a, const ProgramUse& b)
{
    return a.taskId == b.taskId && a.row == b.row && a.planId == b.planId &&
           a.programs == b.programs && a.isAll == b.isAll;
}

/// The plans that play any of these programs, by their tasks and rows. Entries that have gone bad,
/// or refer to no program, play nothing. Indexes may come in any order and several times. Costs a
/// step for each entry of each plan.
SCHEDULECONTRACT_EXPORT std::vector<ProgramUse> usesOf(const std::map<int, PlayTask>& tasks,
                                                       std::vector<int> progIndexes);

/// The programs that any plan plays, each once, ascending. Costs as usesOf().
SCHEDULECONTRACT_EXPORT std::vector<int> programsInUse(const std::map<int, PlayTask>& tasks);

} // namespace trel::mediadispatch
