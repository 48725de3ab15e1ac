#pragma once

#include "trelprogramschedule/mirror/MirrorNews.h"
#include "trelscreen/MirrorSettings.h"
#include "trelscreen/ScreenFeed.h"
#include "trelscreen/media/MediaTransfer.h"

#include <QString>
#include <QThread>
#include <QTimeZone>
#include <QTimer>

#include <memory>
#include <optional>

namespace trel::mediadispatch {
class MirrorSource;
class ScheduleMirror;
} // namespace trel::mediadispatch

namespace trel::screen {

class MediaFetcher;

/// Follows a schedule on a server by way of a mirror on the screen's own disk, and tells of nothing
/// but what the mirror holds: at the start what it held before, so that nobody waits for a server,
/// and each change once it is in the mirror.
///
/// The server is asked in a thread beside the one of the feed. Where it is away, or the mirror
/// cannot be written, the screen goes on with what was told last, for as long as it takes.
class MirrorFeed : public ScreenFeed
{
    Q_OBJECT

public:
    /// In that file; see ScheduleMirror. Media that are fetched come into a folder "media" beside
    /// it.
    MirrorFeed(MirrorSettings settings, QString file);
    ~MirrorFeed() override;

    void start() override;
    /// Waits for what the server is just being asked, which takes some ten seconds where it does
    /// not answer.
    void stop() override;

signals:
    /// The file of a program could not be fetched; see MediaFetcher.
    void mediaFailed(const QString& program, trel::screen::MediaTrouble trouble,
                     const QString& words);

private:
    void startServer();
    void startMedia();
    void stopServer();
    void stopMedia();
    void tellNeeds();
    void take(const mediadispatch::MirrorNewsPointer& news);
    void look();
    void noteMirror(const mediadispatch::StoreResult& result);
    void tellLoss();
    void publishSoon();
    void publish();

    MirrorSettings m_settings;
    QString m_file;
    std::unique_ptr<mediadispatch::ScheduleMirror> m_mirror; ///< From start to stop.
    std::unique_ptr<mediadispatch::MirrorSource> m_source;   ///< In the thread, the same.
    QThread m_thread;
    std::unique_ptr<MediaFetcher> m_fetcher; ///< In another one; null where nothing is fetched.
    QThread m_mediaThread;
    QTimer m_needs; ///< Until it is worked out anew what is needed soonest.
    QTimer m_round;
    QTimer m_publishing;
    ScreenSchedule m_told;
    /// Why the mirror cannot be used, and why the server cannot be read.
    std::optional<mediadispatch::StoreResult> m_mirrorLoss;
    std::optional<mediadispatch::StoreResult> m_serverLoss;
    std::optional<mediadispatch::StoreResult> m_toldLoss;
};

} // namespace trel::screen
