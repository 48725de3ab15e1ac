#include "PlayerScreen.h"

#include "gl/GlSharing.h"
#include "window/GlWindow.h"
#include "window/MonitorPlace.h"
#include "window/RasterWindow.h"
#include "window/ScreenAwake.h"

#include <array>
#include <chrono>
#include <utility>

namespace trel::player {

namespace {

/// How long the decks may take to end. The whole program has a second.
constexpr std::chrono::milliseconds kFarewell{300};

/// Null where pictures are drawn in memory.
std::unique_ptr<GlSharing> sharingFor(ScreenWishes::Drawing drawing)
{
    const bool isShared = drawing == ScreenWishes::Drawing::OpenGl
                              ? GlSharing::isPossible()
                              : drawing == ScreenWishes::Drawing::Best && GlSharing::isWorthwhile();
    auto sharing = isShared ? std::make_unique<GlSharing>() : nullptr;
    return sharing != nullptr && sharing->context() != nullptr ? std::move(sharing) : nullptr;
}

} // namespace

PlayerScreen::PlayerScreen(const ScreenWishes& wishes, QObject* parent)
    : QObject(parent)
    , m_wishes(wishes)
    , m_sharing(sharingFor(wishes.drawing))
{
    if (m_sharing != nullptr) {
        auto window = std::make_unique<GlWindow>(*m_sharing);
        m_glWindow = window.get();
        // From within the drawing of a picture, to where the window may go.
        connect(m_glWindow, &GlWindow::drawingFailed, this, &PlayerScreen::drawInMemory,
                Qt::QueuedConnection);
        m_window = std::move(window);
    } else {
        m_window = std::make_unique<RasterWindow>();
    }
    showWindow();
    m_first = std::make_unique<PlayerDeck>(wishes.isMute, m_sharing.get());
    m_second = std::make_unique<PlayerDeck>(wishes.isMute, m_sharing.get());
    m_stage = std::make_unique<SoftwareStage>(shape(), wishes.standBy);
    m_stage->add(*m_window);
    const std::array<PlayerDeck*, 2> decks{m_first.get(), m_second.get()};
    for (std::size_t number = 0; number < decks.size(); ++number) {
        PlayerDeck* deck = decks[number];
        m_stage->add(*deck);
        connect(deck, &PlayerDeck::loadBegins, this, [this, number](const QString& media) {
            emit loadBegins(static_cast<int>(number), media);
        });
        connect(deck, &PlayerDeck::drawingFailed, this, &PlayerScreen::drawInMemory,
                Qt::QueuedConnection);
    }
    m_awake = std::make_unique<ScreenAwake>(wishes.title);
}

PlayerScreen::~PlayerScreen()
{
    m_stage.reset();
    for (PlayerDeck* deck : {m_first.get(), m_second.get()}) {
        deck->disconnect(this);
        deck->clear();
    }
    const auto until = std::chrono::steady_clock::now() + kFarewell;
    const bool isFirstOver = m_first->leave(until);
    const bool isSecondOver = m_second->leave(until);
    if (!isFirstOver || !isSecondOver) {
        // What hangs may draw still when it goes on.
        static_cast<void>(m_sharing.release());
    }
}

void PlayerScreen::showWindow()
{
    m_window->setTitle(m_wishes.title);
    if (m_wishes.isFullScreen) {
        m_place = std::make_unique<MonitorPlace>(*m_window, m_wishes.monitor);
    } else {
        m_window->resize(m_wishes.windowSize);
        m_window->show();
    }
    connect(m_window.get(), &PlayerWindow::dotsChanged, this, [this] {
        if (m_stage != nullptr) {
            m_stage->setShape(shape());
        }
    });
    connect(m_window.get(), &PlayerWindow::closeAsked, this, &PlayerScreen::closeAsked);
}

void PlayerScreen::drawInMemory()
{
    if (m_glWindow == nullptr) {
        return;
    }
    m_glWindow = nullptr;
    // What drew for the former window still has threads that share its context.
    m_first->drawInMemory();
    m_second->drawInMemory();
    m_stage->remove(*m_window);
    const std::unique_ptr<PlayerWindow> former =
        std::exchange(m_window, std::make_unique<RasterWindow>());
    m_place.reset();
    showWindow();
    if (!m_wishes.isFullScreen) {
        m_window->setGeometry(former->geometry());
    }
    m_stage->add(*m_window);
    m_stage->setShape(shape());
    emit openGlLost();
}

ScreenShape PlayerScreen::shape() const
{
    return {m_window->dots(), m_wishes.turned};
}

void PlayerScreen::add(FrameSink& sink)
{
    m_stage->add(sink);
}

void PlayerScreen::setStandBy(const QImage& standBy)
{
    m_stage->setStandBy(standBy);
}

qint64 PlayerScreen::droppedFrames() const
{
    return m_first->droppedFrames() + m_second->droppedFrames();
}

const QWindow& PlayerScreen::window() const
{
    return *m_window;
}

bool PlayerScreen::hasItsMonitor() const
{
    return m_place == nullptr || m_place->isThere();
}

} // namespace trel::player
