#include "PlayerStart.h"

#include "Player.h"
#include "PlayerScreen.h"
#include "deck/ThreadMail.h"
#include "media/PictureRequest.h"
#include "system/LoadNotes.h"
#include "system/ScreenLock.h"
#include "trelprogramschedule/store/StorePlace.h"
#include "trelscreen/media/MediaFetcher.h"

#include <QDir>
#include <QFileInfo>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace trel::player {

namespace {

/// The largest picture that any screen shows.
const QSize kLargest(8192, 8192);
/// How long the window may wait for the lock.
constexpr std::chrono::milliseconds kLockFirst{300};

/// Null where there is none to be read.
QImage standByPicture(const QString& path)
{
    const std::atomic<bool> isCancelled{false};
    const mediadispatch::MediaPicture read =
        mediadispatch::readPicture(QFileInfo(path).absoluteFilePath(),
                                   mediadispatch::ProgramKind::Image, kLargest, isCancelled);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): as the picture takes its dots
    const auto* const dots = reinterpret_cast<const uchar*>(read.dots.data());
    return QImage(dots, read.size.width(), read.size.height(), QImage::Format_ARGB32).copy();
}

ScreenWishes wishesOf(const PlayerOptions& options)
{
    ScreenWishes wishes;
    wishes.isFullScreen = !options.inWindow;
    wishes.monitor = options.monitor;
    wishes.turned = options.turned;
    wishes.isMute = options.isMute;
    wishes.title = options.screen;
    return wishes;
}

/// Of the schedule on a server that is followed; empty for a file.
QString addressOf(const PlayerOptions& options)
{
    const mediadispatch::StorePlace place(options.database);
    return place.isOnServer() ? place.text() : QString();
}

screen::MirrorSettings mirrorOf(const PlayerOptions& options)
{
    constexpr qint64 gibibyte = 1024LL * 1024 * 1024;
    screen::MirrorSettings settings;
    settings.address = addressOf(options);
    settings.media = options.media.isEmpty() || screen::MediaFetcher::isWeb(options.media)
                         ? options.media
                         : QFileInfo(options.media).absoluteFilePath();
    settings.mediaLimit = options.mediaLimit * gibibyte;
    return settings;
}

} // namespace

struct PlayerStart::Lock
{
    explicit Lock(QObject& receiver)
        : mail(receiver)
    {}

    ThreadMail mail;
    std::mutex mutex;
    std::condition_variable changed;
    std::unique_ptr<ScreenLock> lock; ///< Once it has been tried.
};

PlayerStart::PlayerStart(const PlayerOptions& options, const AsRunPlace& place, QObject* parent)
    : QObject(parent)
    , m_options(options)
    , m_place(place)
    , m_lock(std::make_shared<Lock>(*this))
{
    takeLock();
    std::unique_lock held(m_lock->mutex);
    const bool isTried =
        m_lock->changed.wait_for(held, kLockFirst, [this] { return m_lock->lock != nullptr; });
    const bool isRefused = isTried && !m_lock->lock->isTaken();
    held.unlock();
    if (isRefused) {
        return;
    }
    showWindow();
    readStandBy();
}

PlayerStart::~PlayerStart()
{
    m_lock->mail.close();
    // From here on an end comes with notice, however it goes on.
    m_notes.reset();
    m_player.reset();
    m_screen.reset();
}

void PlayerStart::takeLock()
{
    const bool isMirror = !addressOf(m_options).isEmpty();
    m_threads.start(
        [shared = m_lock, store = m_place.store, screen = m_options.screen, isMirror, this] {
            if (isMirror) {
                // The lock stands beside it.
                QDir().mkpath(QFileInfo(store).absolutePath());
            }
            auto lock = std::make_unique<ScreenLock>(store, screen);
            {
                const std::lock_guard held(shared->mutex);
                shared->lock = std::move(lock);
                shared->changed.notify_all();
            }
            shared->mail.post([this] { lockTried(); });
        });
}

void PlayerStart::showWindow()
{
    m_screen = std::make_unique<PlayerScreen>(wishesOf(m_options));
    connect(m_screen.get(), &PlayerScreen::closeAsked, this, &PlayerStart::closeAsked);
    connect(m_screen.get(), &PlayerScreen::openGlLost, this, [this] {
        tell(QStringLiteral("OpenGL has failed; all is drawn in memory from now on"));
    });
    if (!m_screen->hasItsMonitor()) {
        tell(QStringLiteral("the monitor is not there; the first one takes its place"));
    }
}

void PlayerStart::readStandBy()
{
    if (m_options.standBy.isEmpty()) {
        return;
    }
    m_threads.start([shared = m_lock, path = m_options.standBy, this] {
        const QImage picture = standByPicture(path);
        shared->mail.post([this, picture] { takeStandBy(picture); });
    });
}

void PlayerStart::takeStandBy(const QImage& picture)
{
    if (picture.isNull()) {
        tell(QStringLiteral("the stand-by picture cannot be read; black takes its place"));
    } else if (m_screen != nullptr) {
        m_screen->setStandBy(picture);
    }
}

void PlayerStart::lockTried()
{
    {
        const std::lock_guard held(m_lock->mutex);
        m_taken = std::move(m_lock->lock);
    }
    if (m_taken->isTaken()) {
        play();
    } else {
        emit refused(m_taken->refusal());
    }
}

void PlayerStart::play()
{
    m_notes = std::make_unique<LoadNotes>(m_place.store, m_options.screen);
    connect(m_screen.get(), &PlayerScreen::loadBegins, this,
            [this](int deck, const QString& media) {
                if (m_notes != nullptr) {
                    m_notes->note(deck, media);
                }
            });
    m_player = std::make_unique<Player>(m_place, m_screen->stage(), m_screen->firstDeck(),
                                        m_screen->secondDeck(), mirrorOf(m_options));
    if (m_notes->formerEnd()) {
        tell(LoadNotes::words(*m_notes->formerEnd()));
    }
    for (const QString& what : std::exchange(m_untold, {})) {
        tell(what);
    }
}

void PlayerStart::tell(const QString& what)
{
    if (m_player != nullptr) {
        m_player->tell(what);
    } else {
        m_untold.append(what);
    }
}

} // namespace trel::player
