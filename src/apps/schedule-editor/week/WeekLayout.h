#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "week/DayPieces.h"
#include "week/LocalDays.h"
#include "week/WeekTasks.h"

#include <QDate>
#include <QString>
#include <QTimeZone>

#include <map>
#include <optional>
#include <vector>

namespace trel::desktop::week {

inline constexpr int kDays = 7;

/// A time in which no plan has the screen by the rules.
struct WeekStretch
{
    enum Kind {
        Black,
        Frozen,
        Inserted ///< A plan was cut in.
    };

    Kind kind = Black;
    int from = 0;
    int to = 0;
    Pass pass = Pass::Only;
    QString program; ///< Whose last frame is frozen, or what was cut in.
    int row = -1;    ///< Of the plan that was cut in.
};

struct WeekColumn
{
    QDate date;
    std::optional<int> task;       ///< In effect on this day.
    std::vector<WeekBlock> blocks; ///< By start, then by row.
    DayLanes lanes;                ///< Their claims are positions in blocks.
    std::vector<WeekStretch> stretches;
    std::vector<trel::mediadispatch::ClockChange> changes;

    /// The block of a row; null when it has none on this day.
    const WeekBlock* blockOf(int row) const;
    /// The piece of a lane at a second; null when there is none.
    const DayPiece* periodAt(int lane, int second) const;
    /// The block that has the screen by the rules at a second; null when none has.
    const WeekBlock* holderAt(int second) const;
};

/// What a week is laid out from.
struct WeekQuestion
{
    QDate first;
    QTimeZone zone;
    const WeekTasks& tasks;
    const std::map<int, trel::mediadispatch::ProgramIten>& catalogue;
    /// What is on screen in the course of the days, one after the other, as
    /// ScreenTimeline::visitSpans tells it.
    std::vector<trel::mediadispatch::ScreenState> spans;
};

/// Seven days, what stands in them, and how their clock runs. No pixels, and no moment of its own.
struct WeekLayout
{
    std::vector<WeekColumn> days;
    LocalDays clock;

    QDate first() const { return days.front().date; }
    /// The place of a date among the days; nothing for one of another week.
    std::optional<int> dayOf(const QDate& date) const;
};

/// Costs the tasks, the plans that are in effect in these days and the spans; n log n over the
/// plans of tasks that are not prepared.
WeekLayout layoutWeek(const WeekQuestion& question);

/// The first day of the week that holds a day.
QDate weekOf(const QDate& day, Qt::DayOfWeek firstDayOfWeek);

/// A time of day in words for people: "08:00", with seconds only where there are any.
QString shortTime(int second);

} // namespace trel::desktop::week
