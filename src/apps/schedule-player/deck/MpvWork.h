#pragma once

#include "deck/MpvHandle.h"
#include "deck/MpvOptions.h"
#include "deck/PictureMaker.h"
#include "deck/PictureSlot.h"
#include "deck/Playback.h"
#include "deck/PlayedPosition.h"
#include "deck/ThreadMail.h"
#include "trelscreen/Deck.h"

#include <QByteArray>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace trel::player {

class PlayedFile;

/// The thread behind an MpvPlayback: it makes the handle, follows its events, draws its pictures
/// and takes it down again, so that the thread of the windows waits for none of it.
class MpvWork
{
public:
    MpvWork(const screen::DeckLoad& load, bool isMute, const ScreenShape& shape, QObject& receiver,
            PlaybackNews news, std::unique_ptr<PictureMaker> maker, bool copiesDecoded);
    ~MpvWork();
    Q_DISABLE_COPY(MpvWork)

    /// All of the thread. Returns some time after stop().
    void run();

    // For the thread of the windows.
    void stop();
    void play();
    void pause();
    void seek(qint64 position);
    void setSpeed(double speed);
    void setShape(const ScreenShape& shape);
    std::optional<qint64> position() const;
    DeckPicture picture() { return m_pictures.take(); }
    std::optional<qint64> pictureLength() const;
    qint64 droppedFrames() const { return m_droppedFrames; }

private:
    using Moment = std::chrono::steady_clock::time_point;

    bool open();
    bool openFile();
    bool isTriedAgain() const { return m_load.failures > 0; }
    void startLoading();
    void loop();
    bool waitForWork();
    void handleEvents();
    void handle(const mpv_event& event);
    void handleProperty(std::uint64_t observed, const mpv_event_property& property);
    void handleLog(const mpv_event_log_message& message);
    void stir();
    bool tellsOfItsReading() const;
    void fileLoaded();
    void restarted();
    void reachedEnd();
    void fileEnded(const mpv_event_end_file& end);
    void chooseStart(std::uint64_t hook);
    void readTracks();
    void refused(std::uint64_t asked, int error);
    void seekRefused(const QString& words);
    void cannotDraw();
    void draw(const ScreenShape& shape);
    void tellReadyOnce();
    void lookForStall();
    void reached(double seconds);
    void fail(screen::DeckTrouble trouble, const QString& words);
    QString lastWords(int error) const;
    double toFrame(qint64 position) const;
    void setPlays(bool plays);
    void setAsync(const char* property, const char* value, std::uint64_t asked);
    void commandAsync(const char** command, std::uint64_t asked);
    bool isSeeking() const;
    Moment::duration silence(Moment now) const;

    static void eventsCame(void* self);
    static void drawingIsDue(void* self);

    const screen::DeckLoad m_load;
    const bool m_isMute;
    const bool m_isStream;
    const bool m_copiesDecoded;
    PlaybackNews m_news;
    ThreadMail m_mail;
    PictureSlot m_pictures;
    std::unique_ptr<PlayedFile> m_file;
    std::atomic<qint64> m_droppedFrames{0};
    std::atomic<double> m_framesPerSecond{0.0};

    // Of the thread alone.
    std::unique_ptr<PictureMaker> m_maker;
    MpvHandle m_handle;
    MpvRenderer m_renderer;
    int m_fileTurned = 0;
    bool m_hasVideo = false;
    bool m_hasRestarted = false;
    bool m_hasDrawn = false;
    bool m_isReady = false;
    bool m_isOver = false; ///< It has failed or ended, which is told once.
    QByteArray m_lastLog;
    Moment m_begun;
    Moment m_restartedAt;

    // The library calls back while it holds locks of its own, which its commands take as well: so
    // what a callback takes is never held over a command.
    std::mutex m_commandMutex;
    mpv_handle* m_commanded = nullptr; ///< The handle while it takes commands from other threads.

    mutable std::mutex m_mutex; ///< Of all below.
    std::condition_variable m_work;
    bool m_isStopped = false;
    bool m_hasEvents = false;
    bool m_hasDrawing = false;
    ScreenShape m_shape;
    bool m_hasNewShape = false;
    bool m_plays = false;
    bool m_isSeeking = false;
    PlayedPosition m_position;
    Moment m_lastProgress;
};

} // namespace trel::player
