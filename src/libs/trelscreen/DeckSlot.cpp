#include "DeckSlot.h"

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

/// How long a file may take to be ready, and a stream, of which the deck itself tells sooner when
/// it does not answer.
constexpr qint64 kFileDeadline = 10'000;
constexpr qint64 kStreamDeadline = 20'000;
/// How long the position may stand still, and how often it has to be seen to do so: a program that
/// was held up itself knows nothing of the deck.
constexpr qint64 kStillAllowed = 1000;
constexpr int kStillLooks = 3;
/// How long a seek may take.
constexpr qint64 kSeekAllowed = 5000;
/// How much shorter than the catalogue says a file may be.
constexpr qint64 kShortfall = 500;

DeckLoad loadOf(const ScreenPlay& play, Instant startsAt, int failures)
{
    DeckLoad load;
    load.media = play.media;
    load.kind = play.kind;
    load.position = play.hasPosition() ? play.positionAt(startsAt) : 0;
    load.stands = play.isFrozen();
    load.failures = failures;
    return load;
}

DeckFault stalled(const char* words)
{
    return {DeckTrouble::Stalled, QString::fromLatin1(words)};
}

} // namespace

DeckSlot::DeckSlot(Deck& deck, QObject* parent)
    : QObject(parent)
    , m_deck(deck)
{
    connect(&deck, &Deck::ready, this, [this](quint64 load) {
        if (load == m_load && m_state == State::Loading) {
            m_state = State::Ready;
            emit changed();
        }
    });
    connect(&deck, &Deck::failed, this, [this](quint64 load, const DeckFault& fault) {
        if (load == m_load && !isEmpty()) {
            m_state = State::Failed;
            m_fault = fault;
            emit changed();
        }
    });
    connect(&deck, &Deck::ended, this, [this](quint64 load) {
        if (load == m_load && !isEmpty()) {
            m_hasEnded = true;
            emit changed();
        }
    });
}

void DeckSlot::load(const ScreenPlay& play, Instant startsAt, qint64 steady, int failures)
{
    m_play = play;
    m_startsAt = startsAt;
    m_loadedAt = steady;
    m_state = State::Loading;
    m_fault = {};
    m_isStarted = false;
    m_hasEnded = false;
    setSpeed(1.0);
    m_load = m_deck.load(loadOf(play, startsAt, failures));
}

void DeckSlot::clear()
{
    if (!isEmpty()) {
        m_load = 0;
        m_state = State::Empty;
        m_deck.clear();
    }
}

void DeckSlot::start(qint64 steady)
{
    m_isStarted = true;
    m_position.reset();
    m_movedAt = steady;
    m_stillLooks = 0;
    m_deck.play();
}

void DeckSlot::pause()
{
    m_isStarted = false;
    m_deck.pause();
}

void DeckSlot::setSpeed(double speed)
{
    if (speed != m_speed) {
        m_speed = speed;
        m_deck.setSpeed(speed);
    }
}

/// Its end lies before the place that was asked for: the deck stands on the last picture, which
/// would be over as soon as it was started.
bool DeckSlot::isCutShort() const
{
    if (m_state != State::Ready || !m_play.isPlaying() || !m_play.hasPosition()) {
        return false;
    }
    const std::optional<qint64> position = m_deck.position();
    return position && *position < m_play.positionAt(m_startsAt) - kShortfall;
}

DeckFault DeckSlot::trouble(Instant now, Instant until, qint64 steady) const
{
    if (m_state == State::Failed) {
        return m_fault;
    }
    if (m_state == State::Loading && steady >= deadline()) {
        return stalled("not ready in time");
    }
    if (!m_isStarted) {
        return isCutShort()
                   ? DeckFault{DeckTrouble::BrokeOff, QStringLiteral("shorter than it was")}
                   : DeckFault();
    }
    if (m_hasEnded) {
        return until - now > kShortfall
                   ? DeckFault{DeckTrouble::BrokeOff, QStringLiteral("over before its time")}
                   : DeckFault();
    }
    if (m_position && m_stillLooks >= kStillLooks && steady - m_movedAt >= kStillAllowed) {
        return stalled("no picture and no sound any more");
    }
    if (!m_position && m_play.hasPosition() && steady - m_movedAt >= kSeekAllowed) {
        return stalled("does not get where it was sent");
    }
    return {};
}

qint64 DeckSlot::deadline() const
{
    return m_loadedAt + (m_play.kind == ProgramKind::Live ? kStreamDeadline : kFileDeadline);
}

void DeckSlot::watch(qint64 steady)
{
    const std::optional<qint64> position = m_deck.position();
    if (position && position == m_position) {
        ++m_stillLooks;
        return;
    }
    if (position || m_position) {
        m_movedAt = steady;
        m_stillLooks = 0;
    }
    m_position = position;
}

} // namespace trel::screen
