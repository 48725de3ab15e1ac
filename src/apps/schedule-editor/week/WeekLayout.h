#pragma once

#include "service/PlanFaults.h"
#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "week/DayPieces.h"
#include "week/WallClock.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QTimeZone>

#include <map>
#include <optional>
#include <vector>

namespace week {

inline constexpr int kDays = 7;

/// What one plan claims of one day. One that never plays is marked where it starts.
struct WeekBlock
{
    int planId = -1;
    int row = -1;
    int from = 0; ///< Seconds since midnight.
    int to = 0;
    trel::mediadispatch::PlanFault never = trel::mediadispatch::PlanFault::None;
    /// The second of the day in which its list is over before the plan ends.
    std::optional<int> listOver;
    bool collides = false;   ///< With a plan above it.
    bool hasNothing = false; ///< None of its programs can be shown.
    QString start;           ///< As the plan says.
    QString end;             ///< As it is in force.
    QStringList programs;    ///< The first of them.
    bool hasMorePrograms = false;
};

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
    const DayPiece* pieceAt(int lane, int second) const;
    /// The block that has the screen by the rules at a second; null when none has.
    const WeekBlock* holderAt(int second) const;
};

/// What a week is laid out from.
struct WeekQuestion
{
    QDate first;
    QTimeZone zone;
    const std::map<int, trel::mediadispatch::PlayTask>& tasks;
    const std::map<int, trel::mediadispatch::ProgramIten>& catalogue;
    /// What is on screen in the course of the days, one after the other, as
    /// ScreenTimeline::visitSpans tells it.
    std::vector<trel::mediadispatch::ScreenState> spans;
};

/// Seven days, what stands in them, and how their clock runs. No pixels, and no moment of its own.
struct WeekLayout
{
    std::vector<WeekColumn> days;
    WallClock clock;

    QDate first() const { return days.front().date; }
    /// The place of a date among the days; nothing for one of another week.
    std::optional<int> dayOf(const QDate& date) const;
};

/// Costs n log n over the plans that are in effect in these days, and the spans.
WeekLayout layoutWeek(const WeekQuestion& question);

/// The first day of the week that holds a day.
QDate weekOf(const QDate& day, Qt::DayOfWeek firstDayOfWeek);

/// A time of day in words for people: "08:00", with seconds only where there are any.
QString shortTime(int second);

} // namespace week
