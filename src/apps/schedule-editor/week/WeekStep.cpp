#include "week/WeekStep.h"

#include "week/WeekView.h"

#include <QScrollBar>

namespace trel::desktop::week {

namespace {

void takeHeight(WeekView& follower, const WeekView& leader)
{
    if (leader.isFit()) {
        if (!follower.isFit()) {
            follower.zoomToFit();
        }
    } else if (!qFuzzyCompare(leader.hourHeight(), follower.hourHeight())) {
        follower.zoom(leader.hourHeight() / follower.hourHeight());
    }
    follower.verticalScrollBar()->setValue(leader.verticalScrollBar()->value());
}

/// Each answers the other, which by then is where it was told to be.
void follow(WeekView* follower, WeekView* leader)
{
    QObject::connect(leader, &WeekView::weekChanged, follower, [leader, follower] {
        // While they take another locale, their weeks may begin on different days.
        follower->showWeekOf(leader->firstDay().addDays(kDays / 2));
    });
    QObject::connect(leader, &WeekView::zoomChanged, follower,
                     [leader, follower] { takeHeight(*follower, *leader); });
    QObject::connect(leader->verticalScrollBar(), &QScrollBar::valueChanged,
                     follower->verticalScrollBar(), &QScrollBar::setValue);
    QObject::connect(leader->horizontalScrollBar(), &QScrollBar::valueChanged,
                     follower->horizontalScrollBar(), &QScrollBar::setValue);
}

} // namespace

void keepInStep(WeekView& one, WeekView& other)
{
    follow(&one, &other);
    follow(&other, &one);
}

} // namespace trel::desktop::week
