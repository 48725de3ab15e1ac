#include "PlayerScreen.h"

#include "window/MonitorPlace.h"
#include "window/PlayerWindow.h"
#include "window/ScreenAwake.h"

namespace trel::player {

PlayerScreen::PlayerScreen(const ScreenWishes& wishes, QObject* parent)
    : QObject(parent)
    , m_wishes(wishes)
    , m_window(std::make_unique<PlayerWindow>())
    , m_first(std::make_unique<PlayerDeck>(wishes.isMute))
    , m_second(std::make_unique<PlayerDeck>(wishes.isMute))
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

bool PlayerScreen::hasItsMonitor() const
{
    return m_place == nullptr || m_place->isThere();
}

} // namespace trel::player
