#include "ProblemLines.h"

using namespace trel::mediadispatch;

namespace {

QString datesText(const ScheduleProblem& problem)
{
    const auto text = [](const QDate& date) {
        return date.isValid() ? date.toString(QStringLiteral("yyyy.MM.dd")) : QStringLiteral("-");
    };
    return text(problem.first) + QLatin1Char('-') + text(problem.last);
}

} // namespace

QString clockText(int secondOfDay)
{
    const QString hours = QStringLiteral("%1:%2")
                              .arg(secondOfDay / 3600, 2, 10, QLatin1Char('0'))
                              .arg(secondOfDay / 60 % 60, 2, 10, QLatin1Char('0'));
    return secondOfDay % 60 == 0
               ? hours
               : hours + QStringLiteral(":%1").arg(secondOfDay % 60, 2, 10, QLatin1Char('0'));
}

QString weekdaysText(WeekdaySet weekdays)
{
    QStringList days;
    for (int weekday = Monday; weekday <= Sunday; ++weekday) {
        if (holdsWeekday(weekdays, weekday)) {
            days.append(QString::number(weekday));
        }
    }
    return days.join(QLatin1Char(','));
}

QString lineOf(const ScheduleProblem& problem)
{
    const auto plan = [&problem](int id) {
        return QStringLiteral("%1/%2").arg(problem.taskId).arg(id);
    };
    const QString own = plan(problem.planId);
    const QString dates = datesText(problem);
    const QString entry = QStringLiteral("entry %1").arg(problem.entry);
    switch (problem.kind) {
    case ProblemKind::TasksOverlap:
        return QStringLiteral("overlaps %1 with %2, %3")
            .arg(QString::number(problem.taskId), QString::number(problem.otherTaskId), dates);
    case ProblemKind::TaskNeverValid:
        return QStringLiteral("never valid %1").arg(problem.taskId);
    case ProblemKind::PlanNeverPlays:
        return QStringLiteral("never plays %1, fault %2").arg(own).arg(int(problem.fault));
    case ProblemKind::PlanHasNoDate:
        return QStringLiteral("no date %1").arg(own);
    case ProblemKind::PlanNeverSeen:
        return QStringLiteral("never seen %1 for %2, %3")
            .arg(own, plan(problem.otherPlanId), dates);
    case ProblemKind::PlansCollide:
        return QStringLiteral("collides %1 with %2, %3 on %4")
            .arg(own, plan(problem.otherPlanId), dates, weekdaysText(problem.weekdays));
    case ProblemKind::InvalidEntry:
    case ProblemKind::MissingFile:
    case ProblemKind::EntryTakesNoTime: {
        const char* const word = problem.kind == ProblemKind::InvalidEntry  ? "invalid"
                                 : problem.kind == ProblemKind::MissingFile ? "missing"
                                                                            : "no time";
        return QStringLiteral("%1 %2, %3, %4 of them")
            .arg(QLatin1String(word), own, entry, QString::number(problem.count));
    }
    case ProblemKind::NothingToPlay:
        return QStringLiteral("nothing %1").arg(own);
    case ProblemKind::OverMidnight:
        return QStringLiteral("midnight %1 until %2%3, %4")
            .arg(own, clockText(problem.end),
                 problem.canBeSplit ? QStringLiteral(" splits") : QString(), dates);
    case ProblemKind::CutOff:
        return QStringLiteral("cut off %1, %2 at %3, %4")
            .arg(own, entry, clockText(problem.end), dates);
    case ProblemKind::NeverReached:
        return QStringLiteral("never reached %1, %2 behind %3")
            .arg(own, entry, QString::number(problem.otherEntry));
    case ProblemKind::NoPicture:
        return QStringLiteral("black %1 %2-%3 on %4, %5")
            .arg(QString::number(problem.taskId), clockText(problem.begin), clockText(problem.end),
                 weekdaysText(problem.weekdays), dates);
    case ProblemKind::ClockChange:
        break;
    }
    return QStringLiteral("clock %1, %2, effect %3")
        .arg(own, dates)
        .arg(int(problem.touched.effect));
}

QStringList linesOf(const std::vector<ScheduleProblem>& problems)
{
    QStringList lines;
    for (const ScheduleProblem& problem : problems) {
        lines.append(lineOf(problem));
    }
    return lines;
}
