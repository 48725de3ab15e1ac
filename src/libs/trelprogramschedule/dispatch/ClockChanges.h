#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule_export.h"

#include <QDate>
#include <QTimeZone>

#include <functional>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

namespace trel::mediadispatch {

/// What a change of the clocks does to a stretch of local time.
enum class ClockChangeKind {
    LeftOut, ///< The clock is put forward over it: it never comes.
    Doubled, ///< The clock is put back to its start: it comes twice.
};

/// A stretch of a local day that its clock leaves out or shows twice. One that runs over midnight
/// stands as two, one for each day.
struct ClockChange
{
    QDate date;                                      ///< Local.
    ClockChangeKind kind = ClockChangeKind::LeftOut; ///< What the clock does.
    int begin = 0;                                   ///< Second of the local day.
    int end = 0; ///< The same, not included any more; 86400 at the end of the day.
    /// When the clock is put: the first instant that shows the new time.
    Instant moment = 0;

    /// Whether the local clock leaves the time out, and does not show it twice.
    bool isLeftOut() const { return kind == ClockChangeKind::LeftOut; }
};

/// Whether all fields are the same.
inline bool operator==(const ClockChange& a, const ClockChange& b)
{
    return std::tie(a.date, a.kind, a.begin, a.end, a.moment) ==
           std::tie(b.date, b.kind, b.begin, b.end, b.moment);
}

/// Every change on the local days from first to last, both included, in the order of time. Changes
/// that leave the time of day as it is, such as of the zone's name, are none.
TRELPROGRAMSCHEDULE_EXPORT std::vector<ClockChange>
clockChanges(const QDate& first, const QDate& last, const QTimeZone& zone);

/// What a change does to a plan whose span shares time with it.
enum class ClockChangeEffect {
    Lost,         ///< The whole span is left out: it does not play.
    BeginsLate,   ///< Its start is left out: it begins at the end of the gap, inside its list.
    EndsEarly,    ///< Its end is left out: it is over where the gap begins.
    Skips,        ///< It goes on behind the gap, and that part of its list is left out.
    PlaysTwice,   ///< The whole span comes twice.
    BeginsTwice,  ///< It begins, is cut when the clock is put back, and begins again.
    EndsTwice,    ///< It ends, and its last part comes again.
    RepeatsAPart, ///< A part in the midst of it comes twice.
};

/// A plan that shares time with a change.
struct TouchedPlan
{
    int planId = 0; ///< Within the task.
    int row = 0;    ///< In its task, from 0.
    int begin = 0;  ///< Its span, the end as it is in force: seconds of the local day.
    int end = 0;    ///< Not included.
    ClockChangeEffect effect = ClockChangeEffect::Lost; ///< What becomes of the plan.
};

/// Whether all fields are the same.
inline bool operator==(const TouchedPlan& a, const TouchedPlan& b)
{
    return std::tie(a.planId, a.row, a.begin, a.end, a.effect) ==
           std::tie(b.planId, b.row, b.begin, b.end, b.effect);
}

/// A change on a day on which a task is in effect, with the plans that it touches: none, or some.
struct TaskClockChange
{
    ClockChange change;             ///< The change itself.
    int taskId = 0;                 ///< The task that it touches.
    std::vector<TouchedPlan> plans; ///< In the order of their rows.
};

/// Whether all fields are the same.
inline bool operator==(const TaskClockChange& a, const TaskClockChange& b)
{
    return std::tie(a.change, a.taskId, a.plans) == std::tie(b.change, b.taskId, b.plans);
}

/// Those of some changes that fall on a day on which a task is valid and that touch plans of it, in
/// the order given. Other tasks that are valid on the same day are not looked at.
TRELPROGRAMSCHEDULE_EXPORT std::vector<TaskClockChange>
clockChangesOfTask(const PlayTask& task, const std::map<int, ProgramIten>& catalogue,
                   const std::vector<ClockChange>& changes);

/// The next changes, `count` at most, on days from `from` on on which a task is in effect: of
/// several that are valid the one with the lowest id. A plan is touched when it plays on that
/// weekday and its span and the change share a second; a span that is empty or inverted shares
/// none. Whether another plan has the screen at that time is not asked.
///
/// Costs what it returns, and nothing for the years that tasks last or lie ahead.
TRELPROGRAMSCHEDULE_EXPORT std::vector<TaskClockChange>
nextClockChanges(const std::map<int, PlayTask>& tasks, const std::map<int, ProgramIten>& catalogue,
                 const QTimeZone& zone, const QDate& from, int count);

/// nextClockChanges of a schedule that is edited task by task. An edit does not repeat the work for
/// other tasks: their days, the spans of their plans and the changes of the clock stay known. Not
/// to be used by two threads at a time.
class TRELPROGRAMSCHEDULE_EXPORT ClockChangeSearch
{
public:
    /// Searches by the clock of a zone; no task is set yet.
    explicit ClockChangeSearch(const QTimeZone& zone);
    ~ClockChangeSearch();
    /// Moves; the source may only be assigned to or destroyed.
    ClockChangeSearch(ClockChangeSearch&&) noexcept;
    /// Moves; the source may only be assigned to or destroyed.
    ClockChangeSearch& operator=(ClockChangeSearch&&) noexcept;

    /// Puts a task in, or in the place of the one with this id; null takes it out.
    void setTask(int taskId, std::shared_ptr<const PlayTask> task);
    /// Never null.
    void setCatalogue(std::shared_ptr<const std::map<int, ProgramIten>> catalogue);

    /// As nextClockChanges. Asks goesOn before each step, and returns what it has once that is
    /// false.
    std::vector<TaskClockChange> next(const QDate& from, int count,
                                      const std::function<bool()>& goesOn = {});

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace trel::mediadispatch
