#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/media/MediaPicture.h"
#include "trelprogramschedule_export.h"

#include <QtGlobal>

#include <atomic>

class QString;

namespace trel::mediadispatch {

/// What an image or a film looks like: the image upright, as the camera's mark in it says, or the
/// first picture of the film, in its own shape, scaled down so that it fits into the bound. Nothing
/// that a file names beside itself is read. None when there is nothing that can be read, when it
/// takes longer than mediaReading() allows, when the program that reads media cannot be started,
/// or, within a few hundredths of a second, once `isCancelled` is set. For any thread but that of
/// the windows.
TRELPROGRAMSCHEDULE_EXPORT MediaPicture readPicture(const QString& path, ProgramKind kind,
                                                    const QSize& bound,
                                                    const std::atomic<bool>& isCancelled);

/// As readPicture, of a film: its first picture from a position on, in milliseconds, or its last
/// one where there is none so late. Positions before its begin are that of its first picture.
TRELPROGRAMSCHEDULE_EXPORT MediaPicture readFilmPicture(const QString& path, qint64 positionMs,
                                                        const QSize& bound,
                                                        const std::atomic<bool>& isCancelled);

} // namespace trel::mediadispatch
