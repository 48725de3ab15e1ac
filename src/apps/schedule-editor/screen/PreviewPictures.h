#pragma once

#include "service/ScheduleRecords.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <optional>

namespace trel::desktop {

/// The pictures of programs, read by a thread of its own and kept, the youngest first, up to a
/// bound of memory. Of several that are asked for while one is being read only the last is read.
class PreviewPictures : public QObject
{
    Q_OBJECT

public:
    explicit PreviewPictures(QObject* parent = nullptr);
    /// Ends a read at once. One that is held up by a disk that does not answer is left to itself.
    ~PreviewPictures() override;

    /// What is known of a program's picture.
    struct Answer
    {
        bool isKnown = false; ///< False: it is being read, and ready() tells when it is there.
        QImage image;         ///< Null: the program has none that can be read.
    };
    /// The picture in a size for this room, in dots of the device. It may be larger, up to twice,
    /// so that a room that grows a little does not have it read again.
    /// Of a film it is the picture at a position, in milliseconds.
    Answer picture(const trel::mediadispatch::ProgramIten& program, const QSize& room,
                   qint64 positionMs = 0);

    /// Forgets every picture, as when files have changed.
    void clear();

signals:
    /// The picture that was asked for last is there.
    void ready();

private:
    struct Request
    {
        QString key;
        QString path;
        trel::mediadispatch::ProgramKind kind = trel::mediadispatch::ProgramKind::Other;
        QSize bound;
        qint64 positionMs = 0;
    };
    using Flag = std::shared_ptr<std::atomic<bool>>;
    struct Receiver;

    void start(const Request& request);
    void take(const Request& request, const QImage& image, const Flag& isCancelled);
    void cancelRunning();

    QCache<QString, QImage> m_known; ///< Cost in kilobytes.
    std::optional<Request> m_running;
    std::optional<Request> m_next;
    Flag m_isCancelled;
    std::unique_ptr<QThreadPool> m_pool;
    std::shared_ptr<Receiver> m_receiver;
};

} // namespace trel::desktop
