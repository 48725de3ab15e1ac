#include "window/PlayerWindow.h"

#include <QCursor>
#include <QEvent>
#include <QPainter>

namespace trel::player {

PlayerWindow::PlayerWindow()
    : m_store(this)
{
    setSurfaceType(QSurface::RasterSurface);
    setCursor(Qt::BlankCursor);
}

PlayerWindow::~PlayerWindow() = default;

QSize PlayerWindow::dots() const
{
    return size() * devicePixelRatio();
}

void PlayerWindow::frame(const QImage& picture, mediadispatch::Instant /*moment*/)
{
    m_picture = picture;
    paint();
}

void PlayerWindow::paint()
{
    if (!isExposed() || size().isEmpty()) {
        return;
    }
    const QRect whole(QPoint(), size());
    if (m_store.size() != size()) {
        m_store.resize(size());
    }
    m_store.beginPaint(whole);
    {
        QPainter painter(m_store.paintDevice());
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        if (m_picture.isNull()) {
            painter.fillRect(whole, Qt::black);
        } else {
            painter.drawImage(whole, m_picture);
        }
    }
    m_store.endPaint();
    m_store.flush(whole);
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
