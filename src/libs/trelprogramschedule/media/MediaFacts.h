#pragma once

#include "service/ScheduleRecords.h"

#include <QString>

namespace trel::mediadispatch {

/// What a file turned out to be.
struct MediaFacts
{
    ProgramKind kind = ProgramKind::Other;
    double durationMs = 0.0; ///< 0 for an image.
    /// Why the file cannot become a program, a sentence; empty when it can.
    QString reason;
};

} // namespace trel::mediadispatch
