#pragma once

#include "service/ScheduleRecords.h"

#include <QImage>
#include <QSize>

#include <atomic>

namespace trel::desktop {

/// Whether a program has a picture of its own: images have one, and films their first.
bool hasPicture(trel::mediadispatch::ProgramKind kind);

/// What a program looks like, scaled down to fit into the bound: an image upright, as the camera's
/// mark in it says, or the picture of a film at a position, in milliseconds. A null image when
/// there is none that can be read, or soon after `isCancelled` is set. For any thread but that of
/// the windows.
QImage programPicture(const QString& path, trel::mediadispatch::ProgramKind kind,
                      const QSize& bound, const std::atomic<bool>& isCancelled,
                      qint64 positionMs = 0);

} // namespace trel::desktop
