#include "BoxPainting.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRect>

namespace trel::desktop::look {

void paintBox(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& line,
              qreal radius)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, radius > 0);
    const bool hasLine = line.alpha() > 0;
    painter.setPen(hasLine ? QPen(line, 1.0) : QPen(Qt::NoPen));
    const qreal inset = hasLine ? 0.5 : 0.0;
    const QRectF box = QRectF(rect).adjusted(inset, inset, -inset, -inset);
    if (radius > 0) {
        painter.setBrush(ground);
        painter.drawRoundedRect(box, radius, radius);
    } else {
        // The ground of a shape is blended dot by dot, even where it does not show, and this may be
        // as large as a window's table. A fill is not.
        if (ground.alpha() > 0) {
            painter.fillRect(box, ground);
        }
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(box);
    }
    painter.restore();
}

void paintFocusRing(QPainter& painter, const QRect& rect, const QColor& colour, qreal radius)
{
    constexpr qreal kWidth = 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, radius > 0);
    QPen pen(colour, kWidth);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const qreal inset = kWidth / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

} // namespace trel::desktop::look
