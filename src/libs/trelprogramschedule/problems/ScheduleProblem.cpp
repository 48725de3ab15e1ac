#include "trelprogramschedule/problems/ScheduleProblem.h"

#include <tuple>

namespace trel::mediadispatch {

namespace {

auto fieldsOf(const ScheduleProblem& p)
{
    return std::tie(p.kind, p.taskId, p.planId, p.planRow, p.otherTaskId, p.otherPlanId, p.otherRow,
                    p.entry, p.otherEntry, p.progIndex, p.name, p.count, p.first, p.last, p.begin,
                    p.end, p.weekdays, p.fault, p.canBeSplit, p.startText, p.endText, p.change,
                    p.touched);
}

} // namespace

bool operator==(const ScheduleProblem& a, const ScheduleProblem& b)
{
    return fieldsOf(a) == fieldsOf(b);
}

ProblemGravity gravityOf(const ScheduleProblem& problem)
{
    switch (problem.kind) {
    case ProblemKind::TasksOverlap:
        return ProblemGravity::Refusal;
    case ProblemKind::TaskNeverValid:
    case ProblemKind::PlanNeverPlays:
    case ProblemKind::PlanNeverSeen:
    case ProblemKind::PlansCollide:
    case ProblemKind::InvalidEntry:
    case ProblemKind::MissingFile:
    case ProblemKind::EntryTakesNoTime:
    case ProblemKind::NothingToPlay:
        return ProblemGravity::Error;
    case ProblemKind::OverMidnight:
        return problem.fault == PlanFault::None ? ProblemGravity::Warning : ProblemGravity::Error;
    case ProblemKind::PlanHasNoDate:
    case ProblemKind::CutOff:
    case ProblemKind::NeverReached:
        return ProblemGravity::Warning;
    case ProblemKind::NoPicture:
    case ProblemKind::ClockChange:
        break;
    }
    return ProblemGravity::Note;
}

bool comesBefore(const ScheduleProblem& a, const ScheduleProblem& b)
{
    const ProblemGravity gravityOfA = gravityOf(a);
    const ProblemGravity gravityOfB = gravityOf(b);
    // An invalid date is less than any other.
    return std::tie(gravityOfA, a.first, a.taskId, a.planRow, a.kind, a.begin, a.end, a.entry,
                    a.change.begin) < std::tie(gravityOfB, b.first, b.taskId, b.planRow, b.kind,
                                               b.begin, b.end, b.entry, b.change.begin);
}

} // namespace trel::mediadispatch
