#pragma once

#include "week/WeekGeometry.h"

#include <QColor>
#include <QDate>
#include <QLocale>

#include <optional>

class QPainter;

namespace trel::desktop::look {
struct ThemeColours;
} // namespace trel::desktop::look

namespace trel::desktop::week {

/// A block, by what stays the same when the week is laid out again.
struct BlockRef
{
    QDate date;
    int row = -1;

    friend bool operator==(const BlockRef& a, const BlockRef& b)
    {
        return a.date == b.date && a.row == b.row;
    }
    friend bool operator!=(const BlockRef& a, const BlockRef& b) { return !(a == b); }
};

/// A moment on the wall clock.
struct WallMoment
{
    QDate date;
    int second = 0;
};

/// All that is drawn.
struct WeekScene
{
    const WeekLayout& layout;
    const WeekGeometry& geometry;
    const look::ThemeColours& colours;
    QLocale locale;
    QRect visible; ///< What can be seen: texts are moved to where they stay in sight.
    WallMoment now;
    std::optional<BlockRef> selected;
    bool hasFocus = false;
};

/// A colour around or along a place, one device pixel wide or, on fine screens, as many as a
/// logical pixel has; sharp at any ratio.
void drawLine(QPainter& painter, const QPoint& from, const QPoint& to, const QColor& colour,
              Qt::PenStyle style = Qt::SolidLine);
/// The rectangle with its edges moved to borders of device pixels.
QRectF crisp(const QPainter& painter, const QRectF& rect);

/// A line of text where it fits, shortened at its end; on a ground of its own if one is given.
void drawLabel(QPainter& painter, const QRect& rect, const QString& text, const QColor& colour,
               const QColor& ground = QColor());

} // namespace trel::desktop::week
