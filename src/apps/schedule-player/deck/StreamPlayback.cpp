#include "deck/StreamPlayback.h"

#include <algorithm>
#include <utility>

namespace trel::player {

StreamPlayback::StreamPlayback(Line line, Room hasRoom, PlaybackNews news, int silence, int pause)
    : m_line(std::move(line))
    , m_hasRoom(std::move(hasRoom))
    , m_news(std::move(news))
    , m_pause(pause)
{
    m_silence.setInterval(silence);
    m_silence.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_silence, &QTimer::timeout, &m_silence, [this] { tryAgain(); });
    tryOnce();
    m_silence.start();
}

StreamPlayback::~StreamPlayback() = default;

void StreamPlayback::tryOnce()
{
    const int number = ++m_lastNumber;
    m_tries.push_back({number, false, m_line(newsOf(number))});
}

void StreamPlayback::tryAgain()
{
    if (m_hasRoom() && makeWay()) {
        tryOnce();
    }
}

/// Leaves lines until there may be one more, and tells whether there may.
bool StreamPlayback::makeWay()
{
    const std::size_t most = hasAnyStirred() ? kMostShared : kMostLines;
    while (m_tries.size() >= most) {
        const auto silent = std::find_if(m_tries.begin() + 1, m_tries.end(),
                                         [](const Try& one) { return !one.hasStirred; });
        if (silent == m_tries.end()) {
            return false;
        }
        m_tries.erase(silent);
    }
    return true;
}

bool StreamPlayback::hasAnyStirred() const
{
    return std::any_of(m_tries.begin(), m_tries.end(),
                       [](const Try& one) { return one.hasStirred; });
}

PlaybackNews StreamPlayback::newsOf(int number)
{
    PlaybackNews news;
    news.ready = [this, number] { becomeReady(number); };
    news.failed = [this, number](const screen::DeckFault& fault) { fail(number, fault); };
    news.ended = [ended = m_news.ended] { ended(); };
    news.pictureChanged = [this, number] {
        if (isWinner(number)) {
            m_news.pictureChanged();
        }
    };
    news.drawingFailed = m_news.drawingFailed;
    news.stirred = [this, number] { stir(number); };
    return news;
}

std::vector<StreamPlayback::Try>::iterator StreamPlayback::find(int number)
{
    return std::find_if(m_tries.begin(), m_tries.end(),
                        [number](const Try& one) { return one.number == number; });
}

bool StreamPlayback::isWinner(int number) const
{
    return m_isReady && m_tries.front().number == number;
}

void StreamPlayback::becomeReady(int number)
{
    m_silence.stop();
    Try winner = std::move(*find(number));
    m_tries.clear();
    m_tries.push_back(std::move(winner));
    m_isReady = true;
    // Its picture came before it was the winner's. What hears of that may take all of this away.
    const PlaybackNews news = m_news;
    news.pictureChanged();
    news.ready();
}

void StreamPlayback::stir(int number)
{
    if (!m_isReady) {
        find(number)->hasStirred = true;
        m_silence.start(m_pause);
    }
}

/// What is refused beside a line that may still answer, as a second one is by what takes only one,
/// says nothing about that. The first has had all the time that a line is given.
void StreamPlayback::fail(int number, const screen::DeckFault& fault)
{
    const auto failed = find(number);
    const bool isFirst = failed == m_tries.begin();
    if (!m_isReady) {
        m_tries.erase(failed);
        if (!m_tries.empty() && (!isFirst || hasAnyStirred())) {
            return;
        }
        m_silence.stop();
        m_tries.clear();
    }
    const auto tell = m_news.failed;
    tell(fault);
}

void StreamPlayback::play()
{
    if (m_isReady) {
        m_tries.front().playback->play();
    }
}

void StreamPlayback::pause()
{
    if (m_isReady) {
        m_tries.front().playback->pause();
    }
}

void StreamPlayback::seek(qint64 position)
{
    if (m_isReady) {
        m_tries.front().playback->seek(position);
    }
}

void StreamPlayback::setSpeed(double speed)
{
    if (m_isReady) {
        m_tries.front().playback->setSpeed(speed);
    }
}

void StreamPlayback::setShape(const ScreenShape& shape)
{
    for (Try& one : m_tries) {
        one.playback->setShape(shape);
    }
}

std::optional<qint64> StreamPlayback::position() const
{
    return m_isReady ? m_tries.front().playback->position() : std::nullopt;
}

std::optional<qint64> StreamPlayback::pictureLength() const
{
    return m_isReady ? m_tries.front().playback->pictureLength() : std::nullopt;
}

DeckPicture StreamPlayback::picture() const
{
    return m_isReady ? m_tries.front().playback->picture() : DeckPicture();
}

qint64 StreamPlayback::droppedFrames() const
{
    return m_isReady ? m_tries.front().playback->droppedFrames() : 0;
}

} // namespace trel::player
