#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace trel::mediadispatch {

/// Two tasks whose periods of validity share a day; the first has the smaller id.
using TaskOverlap = std::pair<int, int>;

/// The overlap that a walk over all pairs in ascending id order meets first. Periods include both
/// their days and compare as bytes, so empty dates overlap each other and nothing else.
SCHEDULECONTRACT_EXPORT std::optional<TaskOverlap>
firstTaskOverlap(const std::map<int, PlayTask>& tasks);

/// Every overlap, in the order of that walk.
SCHEDULECONTRACT_EXPORT std::vector<TaskOverlap>
allTaskOverlaps(const std::map<int, PlayTask>& tasks);

} // namespace trel::mediadispatch
