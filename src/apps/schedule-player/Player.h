#pragma once

#include "asrun/AsRunRecording.h"
#include "log/LogWriter.h"
#include "log/PlayerLog.h"
#include "system/ServiceManager.h"
#include "trelprogramschedule/screens/PlayerStatus.h"
#include "trelscreen/Conductor.h"
#include "trelscreen/MirrorSettings.h"
#include "trelscreen/media/MediaTransfer.h"

#include <QObject>
#include <QString>
#include <QThread>
#include <QTimer>

#include <memory>

namespace trel::screen {
class Deck;
class ScreenFeed;
class Stage;
} // namespace trel::screen

namespace trel::player {

class PlayerStatusWriter;
struct AsRunPlace;

/// Has on a stage what a store says is in effect, from construction to its end, writes what happens
/// to the standard error, and tells those who ask how it is.
///
/// The store and the status are read and written in a thread of their own, the log in another, and
/// the records of what was on the screen in a third, so that neither a disk nor a reader of the log
/// holds up a picture or each other.
class Player : public QObject
{
    Q_OBJECT

public:
    /// The store need not be there. Where the mirror has an address, it is that of the schedule
    /// there, which the player keeps itself. Stage and decks outlive it; there can be one player in
    /// a process.
    Player(const AsRunPlace& place, screen::Stage& stage, screen::Deck& first, screen::Deck& second,
           const screen::MirrorSettings& mirror = {});
    /// Waits a quarter of a second for each thread; the process ends at once where a disk holds one
    /// up for longer.
    ~Player() override;

    const screen::Conductor& conductor() const { return m_conductor; }
    const screen::ScreenTally& tally() const { return m_conductor.tally(); }
    /// Writes a line to the log.
    void tell(const QString& what) { m_log.tell(what); }

signals:
    /// For the thread beside.
    void statusDue(const trel::mediadispatch::PlayerStatus& status);

private:
    /// Tells all that have to do with what happens on the screen.
    class Events : public screen::ScreenLog
    {
    public:
        Events(PlayerLog& log, AsRunRecording& asRun)
            : m_log(log)
            , m_asRun(asRun)
        {}
        void note(const screen::ScreenEvent& event) override;

    private:
        PlayerLog& m_log;
        AsRunRecording& m_asRun;
    };

    /// What is followed, for the log.
    QString followed() const { return m_address.isEmpty() ? m_store : m_address; }
    void follow();
    void makeFeed(const screen::MirrorSettings& mirror);
    void tellOfMedia(const QString& program, screen::MediaTrouble trouble, const QString& words);
    void tellOfStore();
    void tellStatus();
    mediadispatch::PlayerStatus status() const;

    const QString m_store;
    const QString m_address; ///< Empty for a file.
    const QString m_screen;
    const mediadispatch::Instant m_started;
    LogWriter m_logWriter;
    PlayerLog m_log;
    AsRunRecording m_asRun;
    Events m_events{m_log, m_asRun};
    screen::Conductor m_conductor;
    ServiceManager m_manager;
    bool m_isReady = false;
    QTimer m_round;  ///< Since the status was told last.
    QTimer m_change; ///< Until a change is told.

    std::unique_ptr<screen::ScreenFeed> m_feed; ///< In the thread, as the one below.
    std::unique_ptr<PlayerStatusWriter> m_statusWriter;
    QThread m_thread;
};

} // namespace trel::player
