#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

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

} // namespace trel::mediadispatch
