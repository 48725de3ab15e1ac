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

void moveOntoScreen(QWidget& window)
{
    if (!isOrdinary(window)) {
        return;
    }
    const QRect screen = window.screen()->availableGeometry();
    const QSize room = roomFor(window);
    const QSize frame = screen.size() - room;
    // As wide on both sides, and below as on a side.
    const int side = frame.width() / 2;
    const QRect inside(screen.topLeft() + QPoint(side, qMax(0, frame.height() - side)), room);
    const QSize size = window.size().boundedTo(room);
    const QPoint former = window.geometry().topLeft();
    const QPoint place(
        qBound(inside.left(), former.x(), inside.left() + room.width() - size.width()),
        qBound(inside.top(), former.y(), inside.top() + room.height() - size.height()));
    if (place != former) {
        window.setGeometry(QRect(place, window.size()));
    }
}

} // namespace trel::desktop::fit
