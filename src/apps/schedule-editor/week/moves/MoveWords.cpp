#include "week/moves/MoveWords.h"

#include "DateWords.h"
#include "common/ListText.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"
#include "week/WeekLayout.h"

#include <QLocale>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

constexpr std::size_t kMostPlans = 3;

QString beginText(const PlayPlan& plan)
{
    return shortTime(beginOf(plan).value_or(0));
}

/// As it is in force.
QString endText(const PlayPlan& plan, const Programs& programs)
{
    PlayPlan inForce = plan;
    if (plan.mode == FrequencyMode) {
        inForce.endTime = plannedEnd(plan, programs, noDurationIn(programs));
    }
    return shortTime(endOf(inForce).value_or(0));
}

QString daysOf(const PlayPlan& plan, const QLocale& locale, const QString& everyDay)
{
    std::vector<int> numbers;
    if (parseWeeks(plan.weeks, numbers)) {
        return everyDay;
    }
    std::sort(numbers.begin(), numbers.end());
    QStringList names;
    for (const int number : numbers) {
        names.append(locale.standaloneDayName(number, numbers.size() == 1 ? QLocale::LongFormat
                                                                          : QLocale::ShortFormat));
    }
    return hosts::ListText::joined(names);
}

} // namespace

QString MoveWords::moved(const PlayPlan& plan, const Programs& programs, const QLocale& locale)
{
    return tr("Plan %1: %2, %3 to %4")
        .arg(plan.id)
        .arg(daysOf(plan, locale, tr("every day")), beginText(plan), endText(plan, programs));
}

QString MoveWords::planned(int taskId, const PlayPlan& plan, const Programs& programs,
                           const QLocale& locale)
{
    return tr("New plan in task %1: %2, %3 to %4")
        .arg(taskId)
        .arg(daysOf(plan, locale, tr("every day")), beginText(plan), endText(plan, programs));
}

QString MoveWords::ofSeveral(int tasks)
{
    return tasks < 2
               ? QString()
               : tr("%n tasks are valid on this day; that is the one in effect.", nullptr, tasks);
}

QString MoveWords::refusal(MoveRefusal refusal)
{
    switch (refusal) {
    case MoveRefusal::None:
    case MoveRefusal::Nowhere:
        break;
    case MoveRefusal::Unreadable:
        return tr("Its times cannot be read.");
    case MoveRefusal::PastMidnight:
        return tr("A plan cannot run over midnight.");
    case MoveRefusal::NoLength:
        return tr("A plan has to start before it ends.");
    case MoveRefusal::EndFollows:
        return tr("Its end follows from its programs; it can only be moved.");
    case MoveRefusal::EveryDay:
        return tr("It plays every day.");
    case MoveRefusal::HasThatDay:
        return tr("It plays on that day already.");
    case MoveRefusal::UnknownDays:
        return tr("Its days cannot be read.");
    case MoveRefusal::OtherTask:
        return tr("Its task is not in effect on that day.");
    }
    return {};
}

QString MoveWords::collisions(const PlayTask& task, const std::vector<int>& rows,
                              const Programs& programs)
{
    QStringList lines;
    const std::size_t told = std::min(rows.size(), kMostPlans);
    for (std::size_t i = 0; i < told; ++i) {
        const PlayPlan& plan = task.plans[static_cast<std::size_t>(rows[i])];
        lines.append(tr("Conflicts with plan %1, %2 to %3.")
                         .arg(plan.id)
                         .arg(beginText(plan), endText(plan, programs)));
    }
    if (rows.size() > told) {
        lines.append(tr("Conflicts with %n more.", nullptr, static_cast<int>(rows.size() - told)));
    }
    return lines.join(QLatin1Char('\n'));
}

QString MoveWords::noTask()
{
    return tr("No task is valid on this day.");
}

QString MoveWords::copyDay(const QDate& day, const QLocale& locale)
{
    return tr("Copy the plans of %1…", "a day").arg(weekdayText(day, locale));
}

QString MoveWords::noPlan()
{
    return tr("These programs cannot be planned here.");
}

} // namespace trel::desktop::week
