#include "catalogue/PreviewPicture.h"

#include "screen/PreviewDrawings.h"

#include <QPainter>

using namespace trel::mediadispatch;

namespace trel::desktop {

PreviewPicture::PreviewPicture(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(320, 180);
}

void PreviewPicture::setImage(const QImage& image)
{
    m_image = image;
    update();
}

void PreviewPicture::setKind(ProgramKind kind)
{
    m_kind = kind;
    update();
}

void PreviewPicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_image.isNull()) {
        paintPlaceholder(painter, rect(), m_kind);
        return;
    }
    painter.fillRect(rect(), Qt::black);
    // In dots of the device, and never larger than it is.
    const QSize whole = (QSizeF(m_image.size()) / devicePixelRatioF()).toSize();
    const bool fits = whole.width() <= width() && whole.height() <= height();
    QRect place(QPoint(), fits ? whole : whole.scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    painter.drawImage(place, m_image);
}

} // namespace trel::desktop
