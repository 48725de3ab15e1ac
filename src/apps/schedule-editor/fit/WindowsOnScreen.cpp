#include "fit/WindowsOnScreen.h"

#include <QCoreApplication>
#include <QEvent>
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

void keepOnScreen(QWidget& window)
{
    QSize room = window.screen()->availableGeometry().size();
    if (!window.windowFlags().testFlag(Qt::FramelessWindowHint)) {
        room -= kFrame;
    }
    const QSize fitting = window.size().boundedTo(room);
    if (fitting != window.size()) {
        window.resize(fitting);
    }
}

} // namespace

WindowsOnScreen::WindowsOnScreen(QCoreApplication& application)
    : QObject(&application)
{
    application.installEventFilter(this);
}

bool WindowsOnScreen::eventFilter(QObject* watched, QEvent* event)
{
    // Of every event of every object this one is asked first.
    if (event->type() == QEvent::Show && watched->isWidgetType() && !event->spontaneous()) {
        auto& widget = *static_cast<QWidget*>(watched);
        if (widget.isWindow() && isOrdinary(widget)) {
            keepOnScreen(widget);
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace trel::desktop::fit
