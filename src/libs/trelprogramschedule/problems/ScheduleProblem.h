#pragma once

#include "service/PlanFaults.h"
#include "trelprogramschedule/dispatch/ClockChanges.h"
#include "trelprogramschedule/dispatch/TaskDays.h"
#include "trelprogramschedule_export.h"

#include <QDate>

#include <string>

namespace trel::mediadispatch {

/// What can be wrong with a schedule. Each says which fields of a ScheduleProblem it fills besides
/// the task, the plan and the dates.
enum class ProblemKind {
    TasksOverlap,   ///< The periods of two tasks share a day, so that a save is refused: otherTask.
    TaskNeverValid, ///< Its period is none: a date is none, or the end lies before the start.
    PlanNeverPlays, ///< The plan itself keeps it from that: fault.
    PlanHasNoDate,  ///< None of its days of the week falls within the period.
    PlanNeverSeen,  ///< Earlier rows have the screen whenever it would: otherPlan.
    PlansCollide,   ///< With an earlier row: otherPlan. No dates where no day has both.
    InvalidEntry,   ///< Gone bad, or not in the catalogue: entry, count.
    MissingFile,    ///< The file behind a program is gone: entry, count.
    EntryTakesNoTime, ///< No length is known, or it is to play less than once: entry, count.
    NothingToPlay,    ///< The plan has no entries.
    OverMidnight,     ///< It would go on after midnight, up to the time `end` of the next day.
    CutOff,           ///< A play of the list that ought to be seen is not: entry, end.
    NeverReached,     ///< An entry without an end stands before it: entry, otherEntry.
    NoPicture,        ///< The screen stays black: begin, end, weekdays. Of the task, no plan.
    ClockChange,      ///< A change of the clocks touches the plan: change, touched.
};

/// How grave a problem is. Graver ones come first.
enum class ProblemGravity {
    Refusal, ///< A save is refused.
    Error,   ///< Something is not shown at all.
    Warning, ///< Something is not shown whole.
    Note,    ///< To be known; may well be meant.
};

/// One thing that is wrong with a schedule, as a record: whoever shows it has the words. Numbers
/// that do not apply are -1; rows and entries count from 0.
struct ScheduleProblem
{
    ProblemKind kind = ProblemKind::TasksOverlap; ///< What it is.

    int taskId = -1;      ///< The task; of two that overlap the one with the larger id.
    int planId = -1;      ///< Within the task.
    int planRow = -1;     ///< Its row.
    int otherTaskId = -1; ///< TasksOverlap: the first task that it overlaps.
    int otherPlanId = -1; ///< PlansCollide, PlanNeverSeen: the first plan that it collides with.
    int otherRow = -1;    ///< Its row.

    int entry = -1;      ///< The first entry that it is about.
    int otherEntry = -1; ///< NeverReached: the one that holds the screen.
    int progIndex = -1;  ///< The program of the entry.
    std::string name;    ///< Its name in the catalogue, or else as the plan remembers it; UTF-8.
    int count = 0;       ///< How many entries of the plan have the same trouble.

    /// The first and the last day on which it shows, from the day on from which is looked. Invalid
    /// where it shows on none.
    QDate first;
    QDate last;
    int begin = -1; ///< Of the plan's span, or of what is black: second of the day.
    /// Not included. OverMidnight: of the next day, more than 86400 where it would last longer.
    int end = -1;
    WeekdaySet weekdays = 0; ///< On which it shows.

    PlanFault fault = PlanFault::None; ///< PlanNeverPlays; OverMidnight: InvertedSpan or None.
    bool canBeSplit = false;           ///< OverMidnight: splitAtMidnight() makes two plans of it.
    std::string startText;             ///< The start as the plan, or the task, has it.
    std::string endText;               ///< And the end in force.

    mediadispatch::ClockChange change; ///< ClockChange: what the clock does.
    TouchedPlan touched;               ///< ClockChange: and what becomes of the plan.
};

/// Whether all fields are the same.
TRELPROGRAMSCHEDULE_EXPORT bool operator==(const ScheduleProblem& a, const ScheduleProblem& b);

/// How grave it is.
TRELPROGRAMSCHEDULE_EXPORT ProblemGravity gravityOf(const ScheduleProblem& problem);

/// The order in which problems are shown: the graver one first, then the earlier one, then by task
/// and row. One without a date comes before those with one.
TRELPROGRAMSCHEDULE_EXPORT bool comesBefore(const ScheduleProblem& a, const ScheduleProblem& b);

} // namespace trel::mediadispatch
