#include "screen/PreviewDrawings.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

const QColor kGround(0x10, 0x13, 0x18);
const QColor kInk(0x8b, 0x96, 0xa8);

/// Drawings are made in a square of this side.
constexpr qreal kSide = 100.0;

QPainterPath note()
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addEllipse(QPointF(28, 76), 14, 11);
    path.addEllipse(QPointF(70, 68), 14, 11);
    path.addRect(36, 22, 6, 54);
    path.addRect(78, 14, 6, 54);
    path.addPolygon(QPolygonF({{36, 22}, {84, 12}, {84, 27}, {36, 37}, {36, 22}}));
    return path;
}

QPainterPath sheet()
{
    QPainterPath path;
    path.addPolygon(QPolygonF({{22, 8}, {62, 8}, {80, 26}, {80, 92}, {22, 92}, {22, 8}}));
    path.addRect(34, 44, 34, 5);
    path.addRect(34, 58, 34, 5);
    path.addRect(34, 72, 22, 5);
    return path;
}

QPainterPath film()
{
    QPainterPath path;
    path.addRoundedRect(10, 18, 80, 64, 6, 6);
    for (int i = 0; i < 5; ++i) {
        path.addRect(17 + i * 15.0, 24, 7, 7);
        path.addRect(17 + i * 15.0, 69, 7, 7);
    }
    path.addPolygon(QPolygonF({{42, 38}, {42, 62}, {62, 50}, {42, 38}}));
    return path;
}

QPainterPath picture()
{
    QPainterPath path;
    path.addRoundedRect(10, 20, 80, 60, 6, 6);
    path.addEllipse(QPointF(32, 38), 7, 7);
    path.addPolygon(QPolygonF({{20, 70}, {42, 48}, {54, 60}, {66, 46}, {82, 70}, {20, 70}}));
    return path;
}

void paintWaves(QPainter& painter)
{
    painter.setPen(QPen(kInk, 7, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    for (const qreal radius : {22.0, 38.0}) {
        const QRectF ring(50 - radius, 50 - radius, 2 * radius, 2 * radius);
        painter.drawArc(ring, -45 * 16, 90 * 16);
        painter.drawArc(ring, 135 * 16, 90 * 16);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(kInk);
    painter.drawEllipse(QPointF(50, 50), 8, 8);
}

QPainterPath pathOf(ProgramKind kind)
{
    switch (kind) {
    case ProgramKind::Audio:
        return note();
    case ProgramKind::Video:
        return film();
    case ProgramKind::Image:
        return picture();
    case ProgramKind::Live:
    case ProgramKind::Other:
        break;
    }
    return sheet();
}

/// Lets the square of a drawing stand in the middle of a room.
void moveTo(QPainter& painter, const QRectF& room, qreal share)
{
    const qreal scale = share * std::min(room.width(), room.height()) / kSide;
    painter.translate(room.center());
    painter.scale(scale, scale);
    painter.translate(-kSide / 2, -kSide / 2);
}

} // namespace

void paintPlaceholder(QPainter& painter, const QRect& room, ProgramKind kind)
{
    constexpr qreal kShare = 0.4;
    painter.save();
    painter.fillRect(room, kGround);
    moveTo(painter, room, kShare);
    if (kind == ProgramKind::Live) {
        paintWaves(painter);
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(kInk);
        painter.drawPath(pathOf(kind));
    }
    painter.restore();
}

void paintPause(QPainter& painter, const QRect& room)
{
    painter.save();
    moveTo(painter, room, 1.0);
    painter.setPen(QPen(Qt::white, 5));
    painter.setBrush(QColor(0, 0, 0, 170));
    painter.drawEllipse(QPointF(50, 50), 44, 44);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(34, 30, 11, 40));
    painter.drawRect(QRectF(55, 30, 11, 40));
    painter.restore();
}

} // namespace trel::desktop
