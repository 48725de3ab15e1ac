#include "PlayerScreen.h"

#include "gl/GlSharing.h"
#include "window/GlWindow.h"
#include "window/MonitorPlace.h"
#include "window/RasterWindow.h"
#include "window/ScreenAwake.h"

#include <utility>

namespace trel::player {

namespace {

/// Null where pictures are drawn in memory.
std::unique_ptr<GlSharing> sharingFor(ScreenWishes::Drawing drawing)
{
    const bool isShared = drawing == ScreenWishes::Drawing::OpenGl
                              ? GlSharing::isPossible()
                              : drawing == ScreenWishes::Drawing::Best && GlSharing::isWorthwhile();
    auto sharing = isShared ? std::make_unique<GlSharing>() : nullptr;
    return sharing != nullptr && sharing->context() != nullptr ? std::move(sharing) : nullptr;
}

std::unique_ptr<PlayerWindow> windowFor(GlSharing* sharing)
{
    if (sharing == nullptr) {
        return std::make_unique<RasterWindow>();
    }
    return std::make_unique<GlWindow>(*sharing);
}

} // namespace

PlayerScreen::PlayerScreen(const ScreenWishes& wishes, QObject* parent)
    : QObject(parent)
    , m_wishes(wishes)
    , m_sharing(sharingFor(wishes.drawing))
    , m_window(windowFor(m_sharing.get()))
    , m_first(std::make_unique<PlayerDeck>(wishes.isMute, m_sharing.get()))
    , m_second(std::make_unique<PlayerDeck>(wishes.isMute, m_sharing.get()))
    , m_awake(std::make_unique<ScreenAwake>(wishes.title))
{
    m_window->setTitle(wishes.title);
    if (wishes.isFullScreen) {
        m_place = std::make_unique<MonitorPlace>(*m_window, wishes.monitor);
    } else {
        m_window->resize(wishes.windowSize);
        m_window->show();
    }
    m_stage = std::make_unique<SoftwareStage>(shape(), wishes.standBy);
    m_stage->add(*m_first);
    m_stage->add(*m_second);
    m_stage->add(*m_window);
    connect(m_window.get(), &PlayerWindow::dotsChanged, m_stage.get(),
            [this] { m_stage->setShape(shape()); });
    connect(m_window.get(), &PlayerWindow::closeAsked, this, &PlayerScreen::closeAsked);
}

PlayerScreen::~PlayerScreen() = default;

ScreenShape PlayerScreen::shape() const
{
    return {m_window->dots(), m_wishes.turned};
}

void PlayerScreen::add(FrameSink& sink)
{
    m_stage->add(sink);
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
