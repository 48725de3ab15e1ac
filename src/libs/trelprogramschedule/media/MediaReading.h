#pragma once

#include "trelprogramschedule_export.h"

#include <QString>

#include <chrono>

namespace trel::mediadispatch {

/// How media files are read: by which program, and with how much patience.
struct MediaReading
{
    /// The file of the program; empty for the one that belongs to this library, which stands in the
    /// folder "trelprogramschedulewidgets" beside it.
    QString program;
    /// How long one file may take. A file that takes longer is refused.
    std::chrono::milliseconds deadline{10000};
    /// How long the program may take to start, which it does with the first file.
    std::chrono::milliseconds startDeadline{10000};
};

/// How media files are read from now on by those who do not say it themselves. Any thread may call
/// it; what is under way goes on as it began.
TRELPROGRAMSCHEDULE_EXPORT void setMediaReading(const MediaReading& reading);
/// What was set last.
TRELPROGRAMSCHEDULE_EXPORT MediaReading mediaReading();

} // namespace trel::mediadispatch
