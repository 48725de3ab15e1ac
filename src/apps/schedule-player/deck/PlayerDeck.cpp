#include "deck/PlayerDeck.h"

#include "deck/MpvOptions.h"
#include "deck/MpvPlayback.h"
#include "deck/StillPlayback.h"
#include "deck/StreamPlayback.h"

#include <clocale>

namespace trel::player {

using mediadispatch::ProgramKind;
using screen::DeckFault;
using screen::DeckTrouble;

namespace {

/// Lines of a stream that hang, in the search for its address for instance, leave threads enough
/// for other programs.
constexpr int kMostThreadsForMore = PlaybackThreads::kMost - 4;

} // namespace

PlayerDeck::PlayerDeck(bool isMute, GlSharing* sharing, QObject* parent)
    : Deck(parent)
    , m_isMute(isMute)
    , m_sharing(sharing)
{
    // The toolkit's application has taken the user's by now. Before any thread runs that asks.
    std::setlocale(LC_NUMERIC, "C");
    m_quiet = quietMpv();
}

PlayerDeck::~PlayerDeck() = default;

quint64 PlayerDeck::load(const screen::DeckLoad& load)
{
    forget();
    const quint64 number = ++m_number;
    emit loadBegins(load.media);
    m_stands = load.stands;
    PlaybackNews news;
    news.ready = [this] { becomeReady(); };
    news.failed = [this, number](const DeckFault& fault) { emit failed(number, fault); };
    news.ended = [this, number] { emit ended(number); };
    news.pictureChanged = [this] { emit pictureChanged(); };
    news.drawingFailed = [this] { emit drawingFailed(); };
    m_isByOpenGl = m_sharing != nullptr && load.kind != ProgramKind::Image;
    m_playback = playbackOf(load, news);
    return number;
}

std::unique_ptr<Playback> PlayerDeck::playbackOf(const screen::DeckLoad& load,
                                                 const PlaybackNews& news)
{
    if (load.kind == ProgramKind::Image) {
        return std::make_unique<StillPlayback>(load.media, m_shape, news, m_threads);
    }
    const auto play = [this, load](const PlaybackNews& heard) {
        return std::make_unique<MpvPlayback>(load, m_isMute, m_shape, heard, m_threads, m_sharing);
    };
    if (load.kind != ProgramKind::Live) {
        return play(news);
    }
    return std::make_unique<StreamPlayback>(
        play, [this] { return m_threads.running() < kMostThreadsForMore; }, news);
}

void PlayerDeck::clear()
{
    forget();
    ++m_number;
    emit loadBegins({});
}

void PlayerDeck::forget()
{
    m_droppedBefore = droppedFrames();
    m_playback.reset();
    m_isReady = false;
}

bool PlayerDeck::leave(std::chrono::steady_clock::time_point until)
{
    clear();
    return m_threads.leave(until);
}

void PlayerDeck::drawInMemory()
{
    m_sharing = nullptr;
    if (!m_isByOpenGl || m_playback == nullptr) {
        return;
    }
    forget();
    const auto lose = [this, number = m_number] {
        if (number == m_number) {
            emit failed(number,
                        {DeckTrouble::Unreadable, QStringLiteral("OpenGL does not draw any more")});
        }
    };
    QMetaObject::invokeMethod(this, lose, Qt::QueuedConnection);
}

void PlayerDeck::becomeReady()
{
    m_isReady = true;
    emit ready(m_number);
}

void PlayerDeck::play()
{
    if (m_isReady && !m_stands) {
        m_playback->play();
    }
}

void PlayerDeck::pause()
{
    if (m_isReady) {
        m_playback->pause();
    }
}

void PlayerDeck::seek(qint64 position)
{
    if (m_isReady) {
        m_playback->seek(position);
    }
}

void PlayerDeck::setSpeed(double speed)
{
    if (m_isReady) {
        m_playback->setSpeed(speed);
    }
}

bool PlayerDeck::hasPicture() const
{
    return m_isReady && !picture().isNull();
}

std::optional<qint64> PlayerDeck::position() const
{
    return m_isReady ? m_playback->position() : std::nullopt;
}

std::optional<qint64> PlayerDeck::pictureLength() const
{
    return m_isReady ? m_playback->pictureLength() : std::nullopt;
}

void PlayerDeck::setShape(const ScreenShape& shape)
{
    m_shape = shape;
    if (m_playback != nullptr) {
        m_playback->setShape(shape);
    }
}

DeckPicture PlayerDeck::picture() const
{
    return m_playback != nullptr ? m_playback->picture() : DeckPicture();
}

qint64 PlayerDeck::droppedFrames() const
{
    return m_droppedBefore + (m_playback != nullptr ? m_playback->droppedFrames() : 0);
}

} // namespace trel::player
