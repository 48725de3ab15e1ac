#include "week/WeekArea.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace trel::desktop::week {

namespace {

constexpr int kLeastColumn = 72;

/// What stays free beside something that has been brought into sight.
constexpr int kSpaceAbove = 8;
constexpr int kSpaceBeside = 4;

void scrollBy(QScrollBar* bar, int distance)
{
    bar->setValue(bar->value() + distance);
}

} // namespace

WeekArea::WeekArea(QAbstractScrollArea* view)
    : QObject(view)
    , m_view(view)
{
    view->horizontalScrollBar()->setSingleStep(kLeastColumn / 4);
}

bool WeekArea::isMirrored() const
{
    return m_view->layoutDirection() == Qt::RightToLeft;
}

QPoint WeekArea::offset() const
{
    const QScrollBar* bar = m_view->horizontalScrollBar();
    const int x = isMirrored() ? bar->maximum() - bar->value() : bar->value();
    return {x, m_view->verticalScrollBar()->value()};
}

double WeekArea::fittingHour() const
{
    return std::max(m_view->viewport()->height() / 24.0, WeekGeometry::kLeastHour);
}

void WeekArea::update(double hourHeight)
{
    const QSize size = m_view->viewport()->size();
    const double former = m_geometry.hourHeight();
    m_geometry = WeekGeometry(std::max(size.width(), kLeastColumn * kDays), hourHeight,
                              m_view->layoutDirection());
    QScrollBar* days = m_view->horizontalScrollBar();
    days->setRange(0, m_geometry.width() - size.width());
    days->setPageStep(size.width());
    QScrollBar* hours = m_view->verticalScrollBar();
    hours->setRange(0, std::max(0, m_geometry.height() - size.height()));
    hours->setPageStep(size.height());
    hours->setSingleStep(std::max(20, m_geometry.top(900)));
    emit moved();
    if (former != m_geometry.hourHeight()) {
        emit zoomed();
    }
}

void WeekArea::zoomAt(double factor, int y)
{
    QScrollBar* bar = m_view->verticalScrollBar();
    const double hour = (bar->value() + y) / m_geometry.hourHeight();
    const double wanted = std::min(m_geometry.hourHeight() * factor, WeekGeometry::kMostHour);
    m_isFit = wanted <= fittingHour();
    update(m_isFit ? fittingHour() : wanted);
    bar->setValue(qRound(hour * m_geometry.hourHeight() - y));
}

void WeekArea::fit()
{
    m_isFit = true;
    update(fittingHour());
}

void WeekArea::adapt()
{
    update(m_isFit ? fittingHour() : m_geometry.hourHeight());
}

void WeekArea::centre(int day, int second)
{
    const QRect column = m_geometry.column(day);
    m_view->verticalScrollBar()->setValue(m_geometry.top(second) -
                                          m_view->viewport()->height() / 2);
    m_view->horizontalScrollBar()->setValue(isMirrored() ? m_geometry.width() - column.right()
                                                         : column.left());
}

void WeekArea::reveal(const QRect& rect)
{
    const QRect view = m_view->viewport()->rect();
    QScrollBar* hours = m_view->verticalScrollBar();
    if (rect.top() < view.top() || rect.height() > view.height()) {
        scrollBy(hours, rect.top() - kSpaceAbove);
    } else if (rect.bottom() > view.bottom()) {
        scrollBy(hours, rect.bottom() - view.bottom() + kSpaceAbove);
    }
    QScrollBar* days = m_view->horizontalScrollBar();
    const int sign = isMirrored() ? -1 : 1;
    if (rect.left() < view.left()) {
        scrollBy(days, sign * (rect.left() - kSpaceBeside));
    } else if (rect.right() > view.right()) {
        scrollBy(days, sign * (rect.right() - view.right() + kSpaceBeside));
    }
}

} // namespace trel::desktop::week
