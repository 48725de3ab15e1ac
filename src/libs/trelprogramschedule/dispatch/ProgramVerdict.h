#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule_export.h"

#include <map>
#include <string>
#include <vector>

namespace trel::mediadispatch {

class ScreenTimeline;

/// What keeps the list of a plan from showing a program at a moment, in the order in which the
/// rules are asked: the first that applies is told.
enum class VerdictRule {
    Plays,          ///< None does: the program is on screen.
    TaskNotValid,   ///< The task's period does not hold the day, or is no period.
    OtherTask,      ///< Another task, of a lower id, has the day.
    OtherWeekday,   ///< The plan does not run on this day of the week.
    SpanUnreadable, ///< The plan's start or end is no time of day.
    SpanEmpty,      ///< The plan ends as it starts.
    SpanInverted,   ///< The plan ends before it starts.
    NotYet,         ///< The plan's span is still to come.
    Over,           ///< The plan's span is over for the day.
    EarlierRow,     ///< An earlier row of the task has the screen.
    Insertion,      ///< The plan would have the screen, but an insertion has it.
    EntryInvalid,   ///< The entry has gone bad.
    NotInCatalogue, ///< The catalogue does not have the program (any more).
    FileGone,       ///< Nothing stands behind the program any more.
    NoLength,       ///< The program takes no time, or its length is not known.
    NoPlays,        ///< The entry is to play less than once.
    NoRuns,         ///< The list is to run less than once.
    RanOut,         ///< The list has run as often as it should.
    NeverReached,   ///< An entry before it holds the screen until the span ends.
    NotItsTurn,     ///< Another entry of the list is on screen.
};

/// What there is to say about one plan that holds the program, or about an insertion that has the
/// screen. Numbers that do not apply are -1; rows and entries count from 0.
struct PlanVerdict
{
    VerdictRule rule =
        VerdictRule::Plays; ///< The first rule that keeps it off the screen, or Plays.
    /// The list is that of the insertion which has the screen, not that of the plan it stands for.
    bool isInsertion = false;

    int taskId = -1;   ///< Of the plan.
    int planId = -1;   ///< Within the task.
    int planRow = -1;  ///< Counted from 0.
    std::string start; ///< The span in force, as the plan has it.
    std::string end;   ///< kTimeFormat.

    int entry = -1;      ///< The first entry of the program that the rule is about.
    int otherEntry = -1; ///< NotItsTurn: which plays. NeverReached: which holds the screen.

    int otherTaskId = -1; ///< OtherTask, EarlierRow, Insertion: what has it instead.
    int otherPlanId = -1; ///< EarlierRow, Insertion.
    int otherRow = -1;    ///< EarlierRow, Insertion.

    /// NotItsTurn: when the program is next on screen before the plan loses it; kNever for not at
    /// all.
    Instant nextTurn = kNever;
};

/// Why a program is on screen at a moment, or which rule kept it away.
struct TRELPROGRAMSCHEDULE_EXPORT ProgramVerdict
{
    ScreenState screen; ///< What is on screen at the moment.
    /// One verdict for each plan that holds the program, in the order of tasks and rows, behind one
    /// for the insertion that has the screen, if that holds it. Empty when nothing does.
    std::vector<PlanVerdict> plans;

    bool plays() const; ///< The program is on screen: one of the verdicts says so.
};

/// Judges a program at a moment. The timeline has to be one of these tasks and this catalogue. An
/// entry holds the program by its index, also when it has gone bad. Costs as much as a walk over
/// all entries.
TRELPROGRAMSCHEDULE_EXPORT ProgramVerdict
programVerdict(const ScreenTimeline& timeline, const std::map<int, PlayTask>& tasks,
               const std::map<int, ProgramIten>& catalogue, const ScreenInsertions& insertions,
               int progIndex, Instant moment);

} // namespace trel::mediadispatch
