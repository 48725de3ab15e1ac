#pragma once

#include "trelprogramschedule/dispatch/LocalTime.h"

#include <optional>
#include <vector>

namespace trel::mediadispatch {

/// A set of weekdays, the bit 1 << weekday for each.
using WeekdaySet = unsigned;

inline constexpr WeekdaySet kAllWeekdays = 0xFE;

inline bool holdsWeekday(WeekdaySet weekdays, int weekday)
{
    return (weekdays >> static_cast<unsigned>(weekday) & 1U) != 0;
}

/// When a task is valid, and on which days of the week one of its plans has the screen.
struct TaskValidity
{
    DayNumber first = 0;
    DayNumber last = -1; ///< Included. Before first: never valid.
    WeekdaySet weekdays = 0;
};

inline bool operator==(const TaskValidity& a, const TaskValidity& b)
{
    return a.first == b.first && a.last == b.last && a.weekdays == b.weekdays;
}

/// Days in a row on which one task is in effect. On the first and on the last of them it has a
/// plan.
struct TaskRange
{
    DayNumber first = 0;
    DayNumber last = 0;
    int task = 0;
    WeekdaySet weekdays = 0;
};

/// A day on which the task in effect has a plan.
struct TaskDay
{
    DayNumber day = 0;
    int task = 0;
    /// The last of the days in a row on which the task is in effect.
    DayNumber lastOfRange = 0;
};

/// Which task is in effect on a day: of several that are valid the first of the list. Days without
/// a plan are no days here, so that the next one with a plan is found without walking to it.
class TaskDays
{
public:
    explicit TaskDays(const std::vector<TaskValidity>& tasks);

    /// The day itself, or the nearest one before or after. A question costs the logarithm of the
    /// number of tasks.
    std::optional<TaskDay> lastUpTo(DayNumber day) const;
    std::optional<TaskDay> firstFrom(DayNumber day) const;

private:
    std::vector<TaskRange> m_ranges; // Apart from each other, in the order of time.
};

} // namespace trel::mediadispatch
