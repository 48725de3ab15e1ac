#include "Sign.h"

#include <QImage>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace trel::widgets {

namespace {

constexpr qreal kSide = 16.0;
constexpr qreal kFine = 1.0;   ///< Upright lines between two pixels fill one.
constexpr qreal kSloped = 1.5; ///< Slanting lines of this width look as heavy.
constexpr qreal kTick = 1.8;
constexpr qreal kDimmed = 0.4;

/// A painted ground changes from pixel to pixel by less, also where it shades.
constexpr int kEdge = 24;
/// What of a widget belongs to its edges, as a part of its shorter side.
constexpr int kEdgePart = 8;

/// Draws in units of a pixel of a plain screen, with the origin in the middle.
class SignPainter
{
public:
    SignPainter(QPainter& painter, const QColor& color)
        : m_painter(painter)
        , m_color(color)
    {
        setLine(kFine);
    }

    void draw(Sign sign)
    {
        switch (sign) {
        case Sign::None:
            break;
        case Sign::Plus:
            fill(-5, -1, 10, 2);
            fill(-1, -5, 2, 4);
            fill(-1, 1, 2, 4);
            break;
        case Sign::Up:
            slope({{0, 5}, {0, -5}});
            slope({{-4, -1}, {0, -5}, {4, -1}});
            break;
        case Sign::Down:
            slope({{0, -5}, {0, 5}});
            slope({{-4, 1}, {0, 5}, {4, 1}});
            break;
        case Sign::Next:
            slope({{-5, 0}, {5, 0}});
            slope({{1, -4}, {5, 0}, {1, 4}});
            break;
        case Sign::Copy:
            m_painter.drawRect(QRectF(-5.5, -2.5, 8, 8));
            line({{-2.5, -3}, {-2.5, -5.5}, {5.5, -5.5}, {5.5, 2.5}, {3, 2.5}});
            break;
        case Sign::Delete:
            fill(-6, -5, 12, 1);
            fill(-2, -6, 4, 1);
            line({{-4.5, -4}, {-4.5, 6.5}, {4.5, 6.5}, {4.5, -4}});
            fill(-2, -2, 1, 6);
            fill(1, -2, 1, 6);
            break;
        case Sign::Close:
            slope({{-4.2, -4.2}, {4.2, 4.2}});
            slope({{-4.2, 4.2}, {4.2, -4.2}});
            break;
        case Sign::Minimise:
            fill(-5, 0, 10, 1);
            break;
        case Sign::Expand:
            m_painter.drawRect(QRectF(-4.5, -4.5, 9, 9));
            break;
        case Sign::Restore:
            m_painter.drawRect(QRectF(-4.5, -2.5, 7, 7));
            line({{-1.5, -3}, {-1.5, -4.5}, {4.5, -4.5}, {4.5, 1.5}, {3, 1.5}});
            break;
        case Sign::Folded:
            slope({{-2, -4}, {2, 0}, {-2, 4}});
            break;
        case Sign::Unfolded:
            slope({{-4, -2}, {0, 2}, {4, -2}});
            break;
        case Sign::Warning:
            slope({{0, -6}, {6.5, 5.5}, {-6.5, 5.5}, {0, -6}});
            fill(-0.75, -2, 1.5, 4);
            fill(-0.75, 3, 1.5, 1.5);
            break;
        case Sign::Refresh:
            setLine(kSloped);
            m_painter.drawArc(QRectF(-5, -5, 10, 10), 30 * 16, 285 * 16);
            line({{5, -6}, {5, -2}, {1, -2}});
            break;
        case Sign::Unchecked:
            box();
            break;
        case Sign::Checked:
            box();
            setLine(kTick);
            line({{-3.5, 0}, {-1, 2.7}, {3.5, -2.8}});
            break;
        }
    }

private:
    void setLine(qreal width)
    {
        QPen pen(m_color, width);
        pen.setCapStyle(Qt::FlatCap);
        pen.setJoinStyle(Qt::MiterJoin);
        m_painter.setPen(pen);
        m_painter.setBrush(Qt::NoBrush);
    }

    void line(const QVector<QPointF>& points) { m_painter.drawPolyline(points); }

    void slope(const QVector<QPointF>& points)
    {
        setLine(kSloped);
        line(points);
        setLine(kFine);
    }

    void fill(qreal x, qreal y, qreal width, qreal height)
    {
        m_painter.fillRect(QRectF(x, y, width, height), m_color);
    }

    void box() { m_painter.drawRect(QRectF(-5.5, -5.5, 11, 11)); }

    QPainter& m_painter;
    QColor m_color;
};

bool isStep(QRgb first, QRgb second)
{
    return std::max({std::abs(qRed(first) - qRed(second)), std::abs(qGreen(first) - qGreen(second)),
                     std::abs(qBlue(first) - qBlue(second)),
                     std::abs(qAlpha(first) - qAlpha(second))}) > kEdge;
}

bool hasSteps(const QImage& image, const QRect& part)
{
    for (int y = part.top() + 1; y <= part.bottom(); ++y) {
        for (int x = part.left() + 1; x <= part.right(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (isStep(pixel, image.pixel(x - 1, y)) || isStep(pixel, image.pixel(x, y - 1))) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

void paintSign(QPainter& painter, const QRectF& place, Sign sign, const QColor& color,
               Qt::LayoutDirection direction)
{
    const qreal unit = std::min({1.0, place.width() / kSide, place.height() / kSide});
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    // On a corner of pixels, or no upright line were sharp.
    painter.translate(std::floor(place.center().x()), std::floor(place.center().y()));
    const bool isTurned =
        direction == Qt::RightToLeft && (sign == Sign::Next || sign == Sign::Folded);
    painter.scale(isTurned ? -unit : unit, unit);
    SignPainter(painter, color).draw(sign);
    painter.restore();
}

QColor signColor(const QPalette& palette, QPalette::ColorRole role, bool isEnabled)
{
    QColor color = palette.color(isEnabled ? QPalette::Active : QPalette::Disabled, role);
    if (!isEnabled && color == palette.color(QPalette::Active, role)) {
        color.setAlphaF(color.alphaF() * kDimmed);
    }
    return color;
}

bool paintsPicture(const QSize& size, const std::function<void(QPainter&)>& paintBare)
{
    if (size.isEmpty()) {
        return false;
    }
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        paintBare(painter);
    }
    const int edge = std::min(size.width(), size.height()) / kEdgePart;
    return hasSteps(image, image.rect().adjusted(edge, edge, -edge, -edge));
}

} // namespace trel::widgets
