#pragma once

#include "trelprogramschedule/media/MediaPicture.h"
#include "trelprogramschedule_export.h"

#include <atomic>

class QString;

namespace trel::mediadispatch {

/// The first picture of a film, in its own shape, scaled down so that it fits into the bound once
/// it has been turned upright. None when the file holds none that can be read, when the module for
/// media files cannot be opened, or as soon as `isCancelled` is set. Takes as long as the disk and
/// the decoder do; for any thread but that of the windows.
TRELPROGRAMSCHEDULE_EXPORT MediaPicture firstPicture(const QString& path, const QSize& bound,
                                                     const std::atomic<bool>& isCancelled);

} // namespace trel::mediadispatch
