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

/// Reads what a local file is and how long it plays, from its own words where it has any, and
/// without decoding it. Never reaches over the network, even if the file asks for it. May run on
/// any thread.
///
/// With isNamedAsMedia the name speaks for the file as well, so that content which is hard to tell
/// from noise, such as a few frames of sound, is taken for what the name says.
MediaFacts probeMedia(const QString& path, bool isNamedAsMedia);

} // namespace trel::mediadispatch
