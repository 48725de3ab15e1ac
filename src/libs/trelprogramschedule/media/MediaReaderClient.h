#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule/media/MediaPicture.h"
#include "trelprogramschedule/media/MediaProtocol.h"
#include "trelprogramschedule/media/MediaReading.h"
#include "trelprogramschedule/media/ReaderProcess.h"

#include <QStringList>

namespace trel::mediadispatch {

class MediaFile;

/// What a file turned out to be.
struct MediaFacts
{
    ProgramKind kind = ProgramKind::Other;
    double durationMs = 0.0; ///< 0 for an image.
    Fault fault;             ///< Why the file cannot become a program; none when it can.
};

/// Has media files read by a program of its own, since they come from anywhere, and the libraries
/// that read them are large. The program is started with the first file and serves all of them. One
/// that does not answer in time, dies or talks nonsense costs the file in hand; it is killed, and
/// another is started with the next.
///
/// All calls come from one thread, which must not be that of the windows: a call takes as long as
/// the file does, up to the deadline.
class MediaReaderClient
{
public:
    using Cancelled = ReaderProcess::Cancelled;

    enum class Purpose {
        Facts,    ///< For facts() alone.
        Pictures, ///< For picture() alone; the program takes a little longer to start.
    };

    MediaReaderClient(Purpose purpose, const MediaReading& reading);

    /// What a local file is and how long it plays, from its own words where it has any, and without
    /// decoding it.
    ///
    /// With isNamedAsMedia the name speaks for the file as well, so that content which is hard to
    /// tell from noise, such as a few frames of sound, is taken for what the name says.
    ///
    /// Returns within a few hundredths of a second, with no fault and no kind, once
    /// isCancelled says so.
    MediaFacts facts(const QString& path, bool isNamedAsMedia, const Cancelled& isCancelled);

    /// As readPicture() and readFilmPicture() in PictureRequest.h.
    MediaPicture picture(const QString& path, ProgramKind kind, const QSize& bound,
                         const Cancelled& isCancelled, qint64 positionMs = 0);

    /// Why no program runs; none when one does or was not needed yet. It is not tried again by this
    /// client.
    Fault problem() const { return m_problem; }

private:
    struct Reply
    {
        wire::Answer answer;
        std::vector<quint32> dots;
        Fault problem; ///< Why there is no answer.
        bool isCancelled = false;
    };

    bool start(const Cancelled& isCancelled);
    Fault greet(const QString& file, const Cancelled& isCancelled);
    Reply ask(wire::Question question, const MediaFile& file, const Cancelled& isCancelled);
    Reply read(const wire::Question& question, const Cancelled& isCancelled);
    Reply failure(ReaderProcess::Transfer transfer);

    const char* m_argument; ///< What the program is started for.
    const MediaReading m_reading;
    const QStringList m_places;
    ReaderProcess m_process;
    Fault m_problem;
    quint32 m_number = 0;
    int m_filesLeft = 0;
};

} // namespace trel::mediadispatch
