#pragma once

#include "trelscreen/media/MediaCache.h"
#include "trelscreen/media/MediaTransfer.h"
#include "trelscreen/media/NeededMedia.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <optional>

namespace trel::screen {

/// Fetches the files that a screen needs into its cache, one after the other, the one that is
/// needed soonest first. What is needed sooner takes the place of what is being fetched, of which
/// what came stays. A file is in the cache once it is whole and holds what it should.
///
/// What cannot be fetched is tried again, after pauses that grow up to half a minute, and holds up
/// nothing that can be. Lives in a thread of its own, since a share can keep one waiting for long.
class MediaFetcher : public QObject
{
    Q_OBJECT

public:
    /// How long is waited until what failed is tried again, at first and at most.
    struct Pauses
    {
        std::chrono::milliseconds first{1000};
        std::chrono::milliseconds most{30'000};

        Pauses();
    };

    /// From a folder, or from the address of a web server; see isWeb.
    MediaFetcher(QString place, QString cache, qint64 limit, Pauses pauses = {});
    ~MediaFetcher() override;

    /// Whether a place is the address of a web server, and no folder.
    static bool isWeb(const QString& place);

    /// Nothing is begun any more, and a file that is being looked through is left. From any thread.
    void leave() { m_isLeaving = true; }

    // In the thread that it lives in.

    /// To be called first; end before the thread ends.
    void begin();
    void end();
    /// What is needed from now on, soonest first.
    void need(const trel::screen::NeededFiles& files);

signals:
    /// A file has come into the cache.
    void arrived();
    /// One could not be fetched. Comes again for another reason alone, or after it had come.
    void failed(const QString& program, trel::screen::MediaTrouble trouble, const QString& words);

private:
    /// Of a file that failed.
    struct Failure
    {
        MediaTrouble trouble = MediaTrouble::None;
        std::chrono::milliseconds pause{0};
        QDeadlineTimer until;
        qint64 come = 0; ///< How much of it there was then.
    };

    void next();
    void forgetFailures();
    std::size_t wanted();
    void fetch(const NeededFile& file);
    void transferEnded(MediaTrouble trouble, const QString& words);
    MediaTrouble adopt(const NeededFile& file);
    void note(const NeededFile& file, MediaTrouble trouble, const QString& words);

    const QString m_place;
    const QString m_folder;
    const qint64 m_limit;
    const Pauses m_pauses;
    std::atomic<bool> m_isLeaving{false};
    std::unique_ptr<MediaCache> m_cache; ///< From begin to end, as what follows.
    std::unique_ptr<MediaTransfer> m_transfer;
    std::unique_ptr<QTimer> m_retry;
    NeededFiles m_needed;
    std::optional<NeededFile> m_current;      ///< What is being fetched.
    std::map<QByteArray, Failure> m_failures; ///< By hash.
};

} // namespace trel::screen
