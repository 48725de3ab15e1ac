#pragma once

#include "trelprogramschedule/media/MediaProtocol.h"

namespace trel::mediareader {

class InputFile;
struct NameHint;

/// What a file turned out to be.
struct ProbedMedia
{
    trel::mediadispatch::wire::Verdict verdict;
    /// None unless it was taken.
    trel::mediadispatch::wire::Kind kind = trel::mediadispatch::wire::Kind::None;
    double durationMs = 0.0; ///< 0 for an image.
};

/// Reads what a file is and how long it plays, without decoding it.
ProbedMedia probeMedia(const InputFile& file, const NameHint& hint);

} // namespace trel::mediareader
