#include "fit/ScreenRoom.h"

#include <QScreen>
#include <QWidget>

namespace trel::desktop::fit {

namespace {

/// The frame that the desktop puts around a window is known only once the window is there. No
/// common one is larger.
constexpr QSize kFrame(12, 40);

bool isOrdinary(const QWidget& widget)
{
    const Qt::WindowType type = widget.windowType();
    return (type == Qt::Window || type == Qt::Dialog) && !widget.isFullScreen() &&
           !widget.isMaximized();
}

} // namespace

QSize roomFor(const QWidget& window)
{
    const QSize screen = window.screen()->availableGeometry().size();
    return window.windowFlags().testFlag(Qt::FramelessWindowHint) ? screen : screen - kFrame;
}

void keepWithinRoom(QWidget& window)
{
    const QSize fitting = window.size().boundedTo(roomFor(window));
    if (fitting != window.size() && isOrdinary(window)) {
        window.resize(fitting);
    }
}

} // namespace trel::desktop::fit
