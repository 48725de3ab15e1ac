#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/media/MediaPicture.h"

#include <QString>
#include <QtPlugin>

#include <atomic>

namespace trel::mediadispatch {

/// What a file turned out to be.
struct MediaFacts
{
    ProgramKind kind = ProgramKind::Other;
    double durationMs = 0.0; ///< 0 for an image.
    /// Why the file cannot become a program, a sentence; empty when it can.
    QString reason;
};

/// What the module for media files does for the service: all that needs to know the inside of such
/// a file. Every function may run on any thread, and on several at once.
class MediaReader
{
public:
    MediaReader() = default;
    virtual ~MediaReader() = default;

    /// Reads what a local file is and how long it plays, from its own words where it has any, and
    /// without decoding it. Never reaches over the network, even if the file asks for it.
    ///
    /// With isNamedAsMedia the name speaks for the file as well, so that content which is hard to
    /// tell from noise, such as a few frames of sound, is taken for what the name says.
    virtual MediaFacts facts(const QString& path, bool isNamedAsMedia) const = 0;

    /// As the function of the same name in PictureRequest.h.
    virtual MediaPicture firstPicture(const QString& path, const QSize& bound,
                                      const std::atomic<bool>& isCancelled) const = 0;

    Q_DISABLE_COPY(MediaReader)
};

} // namespace trel::mediadispatch

/// The number goes up with every change of the class above or of what its functions hand out, so
/// that a module of another version is refused and not misread.
#define MEDIA_READER_INTERFACE "trel.mediadispatch.MediaReader/1"
Q_DECLARE_INTERFACE(trel::mediadispatch::MediaReader, MEDIA_READER_INTERFACE)
