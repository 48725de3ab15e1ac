#pragma once

#include "trelscreen/Deck.h"
#include "trelscreen/ScreenPlay.h"

#include <QObject>

#include <optional>

namespace trel::screen {

/// A deck with the play that it was given, and how far it has come with it. Steady moments are
/// milliseconds that never leap.
class DeckSlot : public QObject
{
    Q_OBJECT

public:
    /// The deck outlives it.
    explicit DeckSlot(Deck& deck, QObject* parent = nullptr);

    /// Loads a play to be shown from an instant on, which has failed so many times in a row. What
    /// is frozen, and what has no position, can be shown at once.
    void load(const ScreenPlay& play, mediadispatch::Instant startsAt, qint64 steady, int failures);
    void clear();
    void start(qint64 steady);
    void pause();
    void seek(qint64 position) { m_deck.seek(position); }
    void setSpeed(double speed);

    /// Takes the picture that is there for another play, which it goes over into.
    void relabel(const ScreenPlay& play) { m_play = play; }

    const Deck& deck() const { return m_deck; }
    const ScreenPlay& play() const { return m_play; }
    mediadispatch::Instant startsAt() const { return m_startsAt; }

    bool isEmpty() const { return m_load == 0; }
    bool isLoading() const { return m_state == State::Loading; }
    bool isReady() const { return m_state == State::Ready; }
    bool isStarted() const { return m_isStarted; }

    /// What has become of it by a moment, with the instant at which the play is to be over.
    DeckFault trouble(mediadispatch::Instant now, mediadispatch::Instant until,
                      qint64 steady) const;
    /// When a load that does not get ready is given up.
    qint64 deadline() const;
    /// Looks where the play is; to be called a few times a second once it has been started.
    void watch(qint64 steady);
    /// Whether it was elsewhere at the last look than at the one before.
    bool hasMoved() const { return m_stillLooks == 0; }

signals:
    /// It is ready, has failed or has come to its end.
    void changed();

private:
    bool isCutShort() const;

    enum class State { Empty, Loading, Ready, Failed };

    Deck& m_deck;
    ScreenPlay m_play;
    mediadispatch::Instant m_startsAt = 0;
    quint64 m_load = 0;
    qint64 m_loadedAt = 0;
    State m_state = State::Empty;
    DeckFault m_fault;
    bool m_isStarted = false;
    bool m_hasEnded = false;
    double m_speed = 1.0;

    std::optional<qint64> m_position; ///< At the last look.
    qint64 m_movedAt = 0;
    int m_stillLooks = 0;
};

} // namespace trel::screen
