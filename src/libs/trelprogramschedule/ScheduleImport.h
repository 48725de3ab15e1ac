#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <cstddef>
#include <map>
#include <vector>

namespace trel::mediadispatch {

/// A schedule from elsewhere, with the programs that the catalogue lacks.
struct ScheduleImport
{
    std::map<int, PlayTask> tasks;     ///< Their entries have numbers from where they come from.
    std::map<int, int> known;          ///< For these numbers, programs of the catalogue.
    std::vector<MediaSource> sources;  ///< What comes into the catalogue.
    std::map<int, std::size_t> coming; ///< For numbers that are not known, places in sources.
};

} // namespace trel::mediadispatch
