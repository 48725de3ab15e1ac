#pragma once

#include "week/WeekLayout.h"

#include <QRect>

namespace trel::desktop::week {

/// Where the seconds of seven days lie in a picture of a given size. Days stand in the reading
/// direction, hours go down. Pixels are logical ones, from the top left of midnight.
class WeekGeometry
{
public:
    /// The least and the most that an hour is high; the latter is ten pixels a minute.
    static constexpr double kLeastHour = 4.0;
    static constexpr double kMostHour = 600.0;

    WeekGeometry() = default;
    WeekGeometry(int width, double hourHeight, Qt::LayoutDirection direction);

    int width() const { return m_width; }
    int height() const { return top(kDaySeconds); }
    double hourHeight() const { return m_hourHeight; }
    Qt::LayoutDirection direction() const { return m_direction; }

    /// The whole of a day.
    QRect column(int day) const;
    /// The part of a day that blocks stand in; what shows beside them is the ground.
    QRect inside(int day) const;
    /// The day at a place, the nearest one outside of them.
    int dayAt(int x) const;
    int top(int second) const;
    /// The second at a place, within the day.
    int secondAt(int y) const;

    /// A span of a day, over its whole width or, in a doubled hour, the half of its pass.
    QRect span(int day, int from, int to, Pass pass = Pass::Only) const;
    /// A piece of a block, never too low to be seen.
    QRect piece(int day, const DayPiece& piece) const;
    /// The mark of a plan that never plays.
    QRect mark(int day, int second) const;

    /// The pieces of a lane that reach into the heights from top to bottom as they are drawn.
    struct PieceRange
    {
        const DayPiece* first = nullptr;
        const DayPiece* last = nullptr;

        const DayPiece* begin() const { return first; }
        const DayPiece* end() const { return last; }
    };
    PieceRange piecesBetween(const std::vector<DayPiece>& lane, int top, int bottom) const;

    /// The pass of a doubled hour at a place.
    Pass passAt(int day, int x) const;

private:
    int m_width = 1;
    double m_hourHeight = kLeastHour;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
};

/// The distance of the hour column's numbers, in minutes: the least of the usual steps at which
/// lines of text of this height do not touch.
int labelStep(double hourHeight, int lineHeight);
/// The distance of the lines of the grid, in minutes.
int gridStep(double hourHeight);

} // namespace trel::desktop::week
