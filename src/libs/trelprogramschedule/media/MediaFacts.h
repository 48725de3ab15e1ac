#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/faults/Fault.h"

namespace trel::mediadispatch {

/// What a file turned out to be.
struct MediaFacts
{
    ProgramKind kind = ProgramKind::Other;
    double durationMs = 0.0; ///< 0 for an image.
    Fault fault;             ///< Why the file cannot become a program; none when it can.
};

} // namespace trel::mediadispatch
