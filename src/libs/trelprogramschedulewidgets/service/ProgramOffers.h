#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

#include <map>
#include <vector>

namespace trel::mediadispatch {

/// What a plan would hold of each program of the catalogue that exists, in the order of the
/// catalogue: an entry that plays once. Takes the names out of the catalogue, so that giving it a
/// catalogue of its own copies none.
SCHEDULECONTRACT_EXPORT std::vector<struProgInfo>
offeredPrograms(std::map<int, ProgramIten> catalogue);

} // namespace trel::mediadispatch
