#pragma once

#include "PlayerOptions.h"
#include "asrun/AsRunKeeper.h"
#include "deck/PlaybackThreads.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace trel::player {

class LoadNotes;
class Player;
class PlayerScreen;
class ScreenLock;

/// Brings a player up so that no disk keeps the screen waiting: the lock and the stand-by picture
/// are read in threads of their own, and the window is there, black, while either hangs.
///
/// The lock is given a moment before the window, so that a player that finds its screen taken does
/// not come up above the one that has it.
class PlayerStart : public QObject
{
    Q_OBJECT

public:
    /// Begins. The application has to be there by then.
    PlayerStart(const PlayerOptions& options, const AsRunPlace& place, QObject* parent = nullptr);
    /// Ends the player in order.
    ~PlayerStart() override;

    /// Null until the window is there.
    const PlayerScreen* screen() const { return m_screen.get(); }
    /// Null until it plays.
    const Player* player() const { return m_player.get(); }

signals:
    /// Nothing plays, and never will; why, as a sentence.
    void refused(const QString& sentence);
    /// Somebody tried to close the window.
    void closeAsked();

private:
    struct Lock;

    void takeLock();
    void showWindow();
    void readStandBy();
    void takeStandBy(const QImage& picture);
    void lockTried();
    void play();
    void tell(const QString& what);

    const PlayerOptions m_options;
    const AsRunPlace m_place;
    PlaybackThreads m_threads;
    std::shared_ptr<Lock> m_lock; ///< What the thread that takes it has come to.
    std::unique_ptr<PlayerScreen> m_screen;
    std::unique_ptr<ScreenLock> m_taken;
    std::unique_ptr<LoadNotes> m_notes;
    std::unique_ptr<Player> m_player;
    QStringList m_untold; ///< For the log, once there is one.
};

} // namespace trel::player
