#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

#include <map>
#include <string>

namespace trel::mediadispatch {

/// Makes a tombstone of an entry that has gone bad: it gives up its program and takes the suffix
/// into its name for good. Does nothing to any other entry, and nothing to a tombstone. Tells
/// whether it did.
SCHEDULECONTRACT_EXPORT bool buryInvalidEntry(struProgInfo& entry, const std::string& suffix);

/// Whether an entry that was read back from a table has gone bad: its program is gone, under an
/// index from one below kInvalidProgIndex, the first number that no catalogue gives out. An entry
/// whose program is gone under a smaller number stays good, as the program may come back.
SCHEDULECONTRACT_EXPORT bool isInvalidReadBack(int progIndex, bool programIsNull);

/// Whether the plan holds the program as gone bad. It may stand there several times: its last entry
/// decides. A program that the plan does not hold is good.
SCHEDULECONTRACT_EXPORT bool holdsAsInvalid(const PlayPlan& plan, int progIndex);

/// Marks every entry whose program the catalogue does not have as gone bad. One that refers to
/// nothing in the first place stays as it is.
SCHEDULECONTRACT_EXPORT void markLostEntries(std::map<int, PlayTask>& tasks,
                                             const std::map<int, ProgramIten>& catalogue);

/// The programs that entries refer to and that the catalogue does not have, by their indexes, with
/// the name that the first of those entries remembers.
SCHEDULECONTRACT_EXPORT std::map<int, std::string>
lostPrograms(const std::map<int, PlayTask>& tasks, const std::map<int, ProgramIten>& catalogue);

} // namespace trel::mediadispatch
