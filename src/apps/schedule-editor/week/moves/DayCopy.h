#pragma once

#include "follow/ScheduleEdits.h"
#include "week/moves/PlanMove.h"

#include <QDate>

#include <map>
#include <vector>

namespace trel::desktop::week {

class WeekTasks;

/// What copying the plans of a day comes to.
struct DayCopy
{
    std::map<int, trel::mediadispatch::PlayTask> tasks; ///< As they become; only those that change.
    int plans = 0;                                      ///< Of the day that is copied.
    int collisions = 0;             ///< Rows that collide afterwards, and did not before.
    std::vector<QDate> withoutTask; ///< Days on which no task is valid: nothing is copied there.
};

/// Copies all plans that play on a day onto other days, whose own plans stay.
///
/// Where the same task is in effect there, its plans get these days of the week besides, as when
/// they are ticked in their rows. Where another one is, it gets new plans with the same programs,
/// times, runs and end, on these days of the week. A plan that is there already is not doubled:
/// that holds for plans of every day, and for days of the week that occur twice in the list.
DayCopy copyDay(const WeekTasks& tasks, const QDate& from, const std::vector<QDate>& onto,
                const Programs& programs, const trel::mediadispatch::NoDurationTest& hasNoDuration);

/// The rows of a task that play on a day of the week, and did not before something was copied.
std::vector<int> newRows(const trel::mediadispatch::PlayTask& before,
                         const trel::mediadispatch::PlayTask& after, int weekday);

} // namespace trel::desktop::week
