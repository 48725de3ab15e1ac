#include "window/RasterWindow.h"

#include <QPainter>

namespace trel::player {

RasterWindow::RasterWindow()
    : PlayerWindow(QSurface::RasterSurface)
    , m_store(this)
{}

void RasterWindow::frame(const QImage& picture, mediadispatch::Instant /*moment*/)
{
    m_picture = picture;
    paint();
}

void RasterWindow::paint()
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

} // namespace trel::player
