#include "support/RecordedDeck.h"

#include "clock/Clock.h"

#include <cmath>
#include <utility>

#include <algorithm>

using namespace trel::mediadispatch;
using namespace trel::screen;

RecordedDeck::RecordedDeck(const QString& name, Tell tell)
    : m_name(name)
    , m_tell(std::move(tell))
    , m_alarm(Clock::current().makeAlarm([this] { arrive(); }))
{
    m_timer.start();
}

RecordedDeck::~RecordedDeck() = default;

quint64 RecordedDeck::load(const DeckLoad& load)
{
    m_loaded = load;
    m_loadedAt = Clock::current().msecsSinceEpoch();
    m_isReady = false;
    m_isPlaying = false;
    m_isStalled = false;
    m_hasEnded = false;
    m_position = static_cast<double>(std::min(load.position, m_mediaLength));
    m_since = now();
    m_soughtUntil = 0;
    tell(QStringLiteral("load %1 at %2%3")
             .arg(load.media)
             .arg(load.position)
             .arg(QLatin1String(load.stands ? " standing" : "")));
    if (m_readyAfter) {
        m_alarm->set(Clock::current().msecsSinceEpoch() + *m_readyAfter);
    }
    return ++m_load;
}

void RecordedDeck::clear()
{
    m_loaded = {};
    m_isReady = false;
    m_isPlaying = false;
    tell(QStringLiteral("clear"));
}

void RecordedDeck::play()
{
    settle();
    m_isPlaying = m_isReady && !m_loaded.stands;
    tell(QStringLiteral("play"));
}

void RecordedDeck::pause()
{
    settle();
    m_isPlaying = false;
    tell(QStringLiteral("pause"));
}

void RecordedDeck::seek(qint64 position)
{
    m_position = static_cast<double>(position);
    m_since = now() + m_seekTakes;
    m_soughtUntil = m_since;
    m_hasEnded = false;
    tell(QStringLiteral("seek %1").arg(position));
}

void RecordedDeck::setSpeed(double speed)
{
    settle();
    m_speed = speed;
    tell(QStringLiteral("speed %1").arg(speed));
}

bool RecordedDeck::hasPicture() const
{
    return m_isReady && m_loaded.kind != ProgramKind::Audio;
}

std::optional<qint64> RecordedDeck::position() const
{
    ++m_looks;
    const bool hasAny = m_isReady && m_loaded.kind != ProgramKind::Image;
    return hasAny && now() >= m_soughtUntil ? std::make_optional(std::llround(reached()))
                                            : std::nullopt;
}

void RecordedDeck::tellReady()
{
    m_isReady = true;
    emit ready(m_load);
}

void RecordedDeck::tellFailed(DeckTrouble trouble, const QString& words)
{
    settle();
    m_isPlaying = false;
    emit failed(m_load, {trouble, words});
}

void RecordedDeck::tellEnded()
{
    settle();
    m_hasEnded = true;
    emit ended(m_load);
}

void RecordedDeck::setStalled(bool isStalled)
{
    settle();
    m_isStalled = isStalled;
}

void RecordedDeck::arrive()
{
    if (m_isReady || m_loaded.media.isEmpty()) {
        return;
    }
    const DeckTrouble trouble = m_trouble ? m_trouble(m_loaded.media) : DeckTrouble::None;
    if (trouble == DeckTrouble::None) {
        tellReady();
    } else {
        tellFailed(trouble);
    }
}

void RecordedDeck::tell(const QString& what)
{
    m_tell(QStringLiteral("%1: %2").arg(m_name, what));
}

qint64 RecordedDeck::now() const
{
    return Clock::current().elapsed(m_timer);
}

double RecordedDeck::reached() const
{
    const bool isMoving = m_isPlaying && !m_isStalled && !m_hasEnded && now() > m_since;
    return isMoving ? m_position + m_speed * static_cast<double>(now() - m_since) : m_position;
}

void RecordedDeck::settle()
{
    if (now() > m_since) {
        m_position = reached();
        m_since = now();
    }
}
