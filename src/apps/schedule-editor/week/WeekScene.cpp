#include "week/WeekScene.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace trel::desktop::week {

void drawLine(QPainter& painter, const QPoint& from, const QPoint& to, const QColor& colour,
              Qt::PenStyle style)
{
    QPen pen(colour, 1, style);
    pen.setCosmetic(true);
    pen.setWidthF(std::max(1.0, std::floor(painter.device()->devicePixelRatioF())));
    painter.setPen(pen);
    painter.drawLine(from, to);
}

QRectF crisp(const QPainter& painter, const QRectF& rect)
{
    const QTransform& toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(rect);
    const QPointF topLeft(std::round(device.left()), std::round(device.top()));
    const QPointF bottomRight(std::round(device.right()), std::round(device.bottom()));
    return toDevice.inverted().mapRect(QRectF(topLeft, bottomRight));
}

void drawLabel(QPainter& painter, const QRect& rect, const QString& text, const QColor& colour,
               const QColor& ground)
{
    const QFontMetrics metrics = painter.fontMetrics();
    if (rect.height() < metrics.height() || rect.width() < metrics.averageCharWidth() * 3) {
        return;
    }
    const QString fitting = metrics.elidedText(text, Qt::ElideRight, rect.width());
    const QRect line(rect.left(), rect.top(), rect.width(), metrics.height());
    if (ground.isValid()) {
        const int width = std::min(metrics.horizontalAdvance(fitting), line.width());
        const QRect plate(line.left(), line.top(), width, line.height());
        painter.fillRect(
            QStyle::visualRect(painter.layoutDirection(), line, plate).adjusted(-2, 0, 2, 0),
            ground);
    }
    painter.setPen(colour);
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine, fitting);
}

} // namespace trel::desktop::week
