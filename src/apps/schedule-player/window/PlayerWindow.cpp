#include "window/PlayerWindow.h"

#include <QCursor>
#include <QEvent>

namespace trel::player {

PlayerWindow::PlayerWindow(QSurface::SurfaceType surface)
{
    setSurfaceType(surface);
    setCursor(Qt::BlankCursor);
}

PlayerWindow::~PlayerWindow() = default;

QSize PlayerWindow::dots() const
{
    return size() * devicePixelRatio();
}

bool PlayerWindow::event(QEvent* event)
{
    if (event->type() == QEvent::Close) {
        event->ignore();
        emit closeAsked();
        return true;
    }
    return QWindow::event(event);
}

void PlayerWindow::exposeEvent(QExposeEvent* /*event*/)
{
    paint();
}

void PlayerWindow::resizeEvent(QResizeEvent* /*event*/)
{
    emit dotsChanged();
}

} // namespace trel::player
