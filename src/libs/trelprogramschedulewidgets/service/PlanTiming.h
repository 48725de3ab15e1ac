#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

#include <functional>
#include <map>
#include <string>

namespace trel::mediadispatch {

/// Tells whether the program of an index has no length of its own.
using NoDurationTest = std::function<bool(int progIndex)>;

/// A time of day, in kTimeFormat, the given number of seconds after start. A start from 23:00:00 on
/// gives kDayEnd. A start that does not parse gives an empty text.
SCHEDULECONTRACT_EXPORT std::string addDuration(const std::string& start, int seconds);

/// The end of a plan from its start, its programs and its number of runs, in kTimeFormat, kDayEnd
/// at the latest. The plan's mode and endTime are not looked at.
///
/// A program that the catalogue lacks counts for nothing, and so does a negative length. A program
/// without a length of its own fills the day. A start that does not parse gives kDayEnd, or an
/// empty text when there is nothing to add.
SCHEDULECONTRACT_EXPORT std::string plannedEnd(const PlayPlan& plan,
                                               const std::map<int, ProgramIten>& catalogue,
                                               const NoDurationTest& hasNoDuration);

} // namespace trel::mediadispatch
