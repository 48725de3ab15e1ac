#include "week/WeekGeometry.h"

#include <QStyle>

#include <algorithm>

namespace trel::desktop::week {

namespace {

constexpr int kSideSpace = 3;
constexpr int kLeastPiece = 2;
constexpr int kMarkSize = 9;
constexpr int kHourMinutes = 60;

/// The least of the usual steps that is at least so many pixels high.
int stepOf(double hourHeight, double pixels)
{
    constexpr int kSteps[] = {1, 2, 5, 10, 15, 30, 60, 120, 180, 360};
    const auto* found = std::find_if(std::begin(kSteps), std::end(kSteps), [&](int minutes) {
        return minutes * hourHeight / kHourMinutes >= pixels;
    });
    return found == std::end(kSteps) ? *std::prev(found) : *found;
}

} // namespace

WeekGeometry::WeekGeometry(int width, double hourHeight, Qt::LayoutDirection direction)
    : m_width(std::max(width, kDays))
    , m_hourHeight(std::clamp(hourHeight, kLeastHour, kMostHour))
    , m_direction(direction)
{}

QRect WeekGeometry::column(int day) const
{
    const int left = m_width * day / kDays;
    const int right = m_width * (day + 1) / kDays;
    const QRect all(0, 0, m_width, height());
    return QStyle::visualRect(m_direction, all, QRect(left, 0, right - left, height()));
}

QRect WeekGeometry::inside(int day) const
{
    return column(day).adjusted(kSideSpace, 0, -kSideSpace, 0);
}

int WeekGeometry::dayAt(int x) const
{
    for (int day = 0; day < kDays; ++day) {
        const QRect rect = column(day);
        if (rect.left() <= x && x <= rect.right()) {
            return day;
        }
    }
    return (x < 0) == (m_direction == Qt::LeftToRight) ? 0 : kDays - 1;
}

int WeekGeometry::top(int second) const
{
    return qRound(second * m_hourHeight / 3600.0);
}

int WeekGeometry::secondAt(int y) const
{
    return std::clamp(static_cast<int>(y * 3600.0 / m_hourHeight), 0, kDaySeconds - 1);
}

QRect WeekGeometry::span(int day, int from, int to, Pass pass) const
{
    QRect rect = column(day);
    rect.setTop(top(from));
    rect.setBottom(top(to) - 1);
    if (pass != Pass::Only) {
        QRect half = rect;
        half.setWidth(rect.width() / 2);
        if (pass == Pass::Second) {
            half.setLeft(half.right() + 1);
            half.setRight(rect.right());
        }
        rect = QStyle::visualRect(m_direction, rect, half);
    }
    return rect;
}

QRect WeekGeometry::piece(int day, const DayPiece& piece) const
{
    QRect all = inside(day);
    all.setTop(top(piece.from));
    all.setHeight(std::max(top(piece.to) - all.top(), kLeastPiece));
    // What is on screen is twice as wide as what stands beside it.
    const int parts = piece.lanes == 1 ? 1 : piece.lanes + 1;
    const int begin = piece.lane == 0 ? 0 : piece.lane + 1;
    const int end = piece.lanes == 1 ? 1 : piece.lane + 2;
    const int left = all.width() * begin / parts;
    const int right = all.width() * end / parts;
    const int gap = end == parts ? 0 : 1;
    return QStyle::visualRect(
        m_direction, all, QRect(all.left() + left, all.top(), right - left - gap, all.height()));
}

QRect WeekGeometry::mark(int day, int second) const
{
    const QRect all = inside(day);
    const int y = std::min(top(second), height() - kMarkSize);
    return QStyle::visualRect(m_direction, all,
                              QRect(all.right() + 1 - kMarkSize, y, kMarkSize, kMarkSize));
}

WeekGeometry::PieceRange WeekGeometry::piecesBetween(const std::vector<DayPiece>& lane, int top,
                                                     int bottom) const
{
    // A piece that is drawn higher than it lasts reaches down from before.
    const int from = secondAt(top - kLeastPiece);
    const int to = secondAt(bottom + 1);
    const auto first =
        std::upper_bound(lane.begin(), lane.end(), from,
                         [](int second, const DayPiece& piece) { return second < piece.to; });
    const auto last =
        std::upper_bound(first, lane.end(), to,
                         [](int second, const DayPiece& piece) { return second < piece.from; });
    return {lane.data() + (first - lane.begin()), lane.data() + (last - lane.begin())};
}

Pass WeekGeometry::passAt(int day, int x) const
{
    const QRect second = span(day, 0, kDaySeconds, Pass::Second);
    return second.left() <= x && x <= second.right() ? Pass::Second : Pass::First;
}

int labelStep(double hourHeight, int lineHeight)
{
    return stepOf(hourHeight, lineHeight * 1.5);
}

int gridStep(double hourHeight)
{
    return stepOf(hourHeight, 20.0);
}

} // namespace trel::desktop::week
