#include "ScheduleWords.h"

#include "common/DisplayText.h"
#include "service/PlanFaults.h"
#include "service/ProgramText.h"
#include "service/WeekDays.h"

#include <QStringList>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

QString dayText(int day)
{
    switch (day) {
    case Monday:
        return QStringLiteral("Mon");
    case Tuesday:
        return QStringLiteral("Tue");
    case Wednesday:
        return QStringLiteral("Wed");
    case Thursday:
        return QStringLiteral("Thu");
    case Friday:
        return QStringLiteral("Fri");
    case Saturday:
        return QStringLiteral("Sat");
    case Sunday:
        return QStringLiteral("Sun");
    default:
        // A number that is no day meets only itself, so it must not be taken for one.
        return QStringLiteral("day %1").arg(day);
    }
}

QString daysText(const std::string& weeks)
{
    std::vector<int> numbers;
    if (parseWeeks(weeks, numbers)) {
        return QStringLiteral("every day");
    }
    QStringList days;
    for (const int number : numbers) {
        days.append(dayText(number));
    }
    return days.join(QLatin1Char(','));
}

QString playsText(const PlayPlan& plan)
{
    if (!countsRuns(plan)) {
        return QStringLiteral("until the end");
    }
    return runsLessThanOnce(plan) ? QStringLiteral("less than once")
                                  : counted(plan.times, QStringLiteral("time"));
}

QString endActionText(int endAction)
{
    return endAction == BlackScreen ? QStringLiteral("black screen") : QStringLiteral("last frame");
}

QString kindText(ProgramKind kind)
{
    switch (kind) {
    case ProgramKind::Video:
        return QStringLiteral("video");
    case ProgramKind::Audio:
        return QStringLiteral("audio");
    case ProgramKind::Image:
        return QStringLiteral("image");
    case ProgramKind::Live:
        return QStringLiteral("live");
    case ProgramKind::Other:
        break;
    }
    return QStringLiteral("other");
}

QString entryText(const struProgInfo& entry, const std::map<int, ProgramIten>& programs)
{
    const ProgramSuffixes suffixes = {QStringLiteral(" (invalid)"), QStringLiteral(" (gone)")};
    return mediadispatch::entryText(entry, programs, suffixes);
}

QString entriesText(const std::vector<struProgInfo>& entries,
                    const std::map<int, ProgramIten>& programs)
{
    QStringList texts;
    for (const struProgInfo& entry : entries) {
        const QString name = printable(entryText(entry, programs));
        texts.append(
            entry.playCount == 1
                ? name
                : QStringLiteral("%1 \u00D7%2").arg(name, QString::number(entry.playCount)));
    }
    return texts.join(QStringLiteral(", "));
}

QString periodText(const PlayTask& task)
{
    return QStringLiteral("%1 \u2013 %2").arg(printable(task.startDate), printable(task.endDate));
}

} // namespace trel::console
