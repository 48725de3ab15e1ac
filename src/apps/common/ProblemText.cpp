#include "common/ProblemText.h"

#include "common/ClockChangeText.h"
#include "common/DisplayText.h"
#include "common/ListText.h"
#include "common/PlanFaultText.h"
#include "service/ScheduleRecords.h"

#include <QStringList>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::hosts {

namespace {

constexpr int kSecondsPerDay = 86'400;

QString dateText(const QDate& date)
{
    return date.toString(kDateFormat);
}

QString daysText(WeekdaySet weekdays, const QLocale& locale)
{
    QStringList days;
    for (int weekday = Monday; weekday <= Sunday; ++weekday) {
        if (holdsWeekday(weekdays, weekday)) {
            days.append(locale.standaloneDayName(weekday, QLocale::ShortFormat));
        }
    }
    return ListText::joined(days);
}

bool isToEndOfDay(const ScheduleProblem& problem)
{
    return problem.end >= kSecondsPerDay - 1;
}

} // namespace

QString ProblemText::place(const ScheduleProblem& problem)
{
    return problem.planRow < 0 ? tr("Task %1").arg(problem.taskId)
                               : tr("Task %1, row %2").arg(problem.taskId).arg(problem.planRow + 1);
}

QString ProblemText::date(const ScheduleProblem& problem)
{
    return dateText(problem.first);
}

QString ProblemText::wrong(const ScheduleProblem& problem, const QLocale& locale)
{
    const QString plan = QString::number(problem.planId);
    switch (problem.kind) {
    case ProblemKind::TasksOverlap:
        return problem.first.isValid() && problem.last.isValid()
                   ? tr("The validity overlaps that of task %1 from %2 to %3.")
                         .arg(QString::number(problem.otherTaskId), dateText(problem.first),
                              dateText(problem.last))
                   : tr("The validity overlaps that of task %1.").arg(problem.otherTaskId);
    case ProblemKind::TaskNeverValid:
        return tr("The task is never valid: “%1” to “%2” is not a period.")
            .arg(printable(problem.startText), printable(problem.endText));
    case ProblemKind::PlanNeverPlays:
        return PlanFaultText::sentence(problem.fault, problem.planId, printable(problem.startText),
                                       printable(problem.endText));
    case ProblemKind::PlanHasNoDate:
        return tr("Plan %1 never plays: none of its days falls within the validity of the task.")
            .arg(plan);
    case ProblemKind::PlanNeverSeen:
        return tr("Plan %1 is never on screen: earlier rows such as row %2 always come first.")
            .arg(plan)
            .arg(problem.otherRow + 1);
    case ProblemKind::PlansCollide:
        return problem.first.isValid()
                   ? tr("Plan %1 is in conflict with plan %2 in row %3 from %4 on.")
                         .arg(plan, QString::number(problem.otherPlanId),
                              QString::number(problem.otherRow + 1), dateText(problem.first))
                   : tr("Plan %1 is in conflict with plan %2 in row %3, but on no date.")
                         .arg(plan, QString::number(problem.otherPlanId),
                              QString::number(problem.otherRow + 1));
    case ProblemKind::NoPicture:
    case ProblemKind::ClockChange:
    case ProblemKind::OverMidnight:
        return wrongTime(problem, locale);
    default:
        return wrongEntry(problem);
    }
}

QString ProblemText::wrongTime(const ScheduleProblem& problem, const QLocale& locale)
{
    if (problem.kind == ProblemKind::ClockChange) {
        return ClockChangeText::sentence(problem.change, problem.taskId, problem.touched,
                                         date(problem));
    }
    const QString end = ClockChangeText::timeOfDay(std::min(problem.end, kSecondsPerDay));
    if (problem.kind == ProblemKind::NoPicture) {
        const QString begin = ClockChangeText::timeOfDay(problem.begin);
        return problem.weekdays == kAllWeekdays
                   ? tr("No picture from %1 to %2, every day.").arg(begin, end)
                   : tr("No picture from %1 to %2 on: %3.")
                         .arg(begin, end, daysText(problem.weekdays, locale));
    }
    if (problem.fault != PlanFault::None) {
        return tr("Plan %1 never plays: it would go on after midnight, until %2.")
            .arg(QString::number(problem.planId), end);
    }
    return problem.end < kSecondsPerDay
               ? tr("Plan %1 is cut off at midnight: it would go on until %2.")
                     .arg(QString::number(problem.planId), end)
               : tr("Plan %1 is cut off at midnight: it would go on for more than a day.")
                     .arg(problem.planId);
}

QString ProblemText::wrongEntry(const ScheduleProblem& problem)
{
    const QString plan = QString::number(problem.planId);
    const QString name = printable(problem.name);
    const QString count = QString::number(problem.count);
    switch (problem.kind) {
    case ProblemKind::InvalidEntry:
        return tr("Invalid entries in plan %1: %2. The first is “%3”.").arg(plan, count, name);
    case ProblemKind::MissingFile:
        return tr("Missing files in plan %1: %2. The first is “%3”.").arg(plan, count, name);
    case ProblemKind::EntryTakesNoTime:
        return tr("Entries without a length in plan %1: %2. The first is “%3”.")
            .arg(plan, count, name);
    case ProblemKind::CutOff:
        return isToEndOfDay(problem)
                   ? tr("In plan %1, “%2” is cut off at the end of the day.").arg(plan, name)
                   : tr("In plan %1, “%2” is cut off at %3, when the plan ends.")
                         .arg(plan, name, ClockChangeText::timeOfDay(problem.end));
    case ProblemKind::NeverReached:
        return tr("In plan %1, “%2” is never reached: an entry before it does not end by itself.")
            .arg(plan, name);
    default:
        return tr("Plan %1 contains no programs.").arg(plan);
    }
}

QString ProblemText::remedy(const ScheduleProblem& problem)
{
    switch (problem.kind) {
    case ProblemKind::TasksOverlap:
        return tr("Change the dates of one of the two tasks. Until then nothing can be saved.");
    case ProblemKind::TaskNeverValid:
        return tr("Choose a start date, and an end date that is not before it.");
    case ProblemKind::PlanNeverPlays:
    case ProblemKind::PlanHasNoDate:
        return tr("Correct the days and times of the plan.");
    case ProblemKind::PlanNeverSeen:
    case ProblemKind::PlansCollide:
        return tr("Change the days or times of one of the plans.");
    case ProblemKind::MissingFile:
        return tr("Restore the files, or choose other programs.");
    case ProblemKind::InvalidEntry:
    case ProblemKind::EntryTakesNoTime:
    case ProblemKind::NothingToPlay:
        return tr("Choose the programs of the plan anew.");
    case ProblemKind::OverMidnight:
        return problem.canBeSplit ? tr("Split the plan in two, or let it end before midnight.")
                                  : tr("Let the plan end before midnight.");
    case ProblemKind::CutOff:
        return tr("Let the plan end later, or play less.");
    case ProblemKind::NeverReached:
        return tr("Move the entry to the front, or into another plan.");
    case ProblemKind::NoPicture:
        return tr("Add a plan, or let the plan before it end with its last frame.");
    case ProblemKind::ClockChange:
        break;
    }
    return tr("Move the plan if that is not wanted.");
}

} // namespace trel::hosts
