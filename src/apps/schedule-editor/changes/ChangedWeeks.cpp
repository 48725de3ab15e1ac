#include "changes/ChangedWeeks.h"

#include "changes/FixedWeek.h"
#include "clock/Clock.h"

#include <QDateTime>

#include <algorithm>
#include <vector>

using namespace trel::mediadispatch;

namespace trel::desktop::changes {

namespace {

QDate today()
{
    return QDateTime::fromMSecsSinceEpoch(Clock::current().msecsSinceEpoch(),
                                          Clock::current().zone())
        .date();
}

QDate dateOf(const std::string& text)
{
    return QDate::fromString(QString::fromStdString(text), QLatin1String(kDateFormat));
}

} // namespace

QDate nearestChangedDay(const std::map<int, PlayTask>& former, const std::map<int, PlayTask>& later,
                        const QDate& day)
{
    QDate next;
    QDate last;
    const auto look = [&](const PlayTask& task) {
        const QDate begins = dateOf(task.startDate);
        const QDate ends = dateOf(task.endDate);
        if (!begins.isValid() || !ends.isValid() || ends < begins) {
            return;
        }
        if (ends < day) {
            last = last.isValid() ? std::max(last, ends) : ends;
        } else {
            const QDate nearest = std::max(begins, day);
            next = next.isValid() ? std::min(next, nearest) : nearest;
        }
    };
    const auto lookAtOthers = [&look](const std::map<int, PlayTask>& tasks,
                                      const std::map<int, PlayTask>& others) {
        for (const auto& [id, task] : tasks) {
            const auto other = others.find(id);
            if (other == others.end() || !(other->second == task)) {
                look(task);
            }
        }
    };
    lookAtOthers(former, later);
    lookAtOthers(later, former);
    return next.isValid() ? next : last.isValid() ? last : day;
}

ChangedWeeks::ChangedWeeks(const State& former, const State& later,
                           const look::ThemeColours& colours, const QLocale& locale,
                           QWidget* parent)
    : WeekPair(parent)
{
    setColours(colours);
    setLanguage(locale);
    setNames(former.name, later.name);
    showWeekOf(nearestChangedDay(former.tasks, later.tasks, today()));
    new FixedWeek(WeekPair::former(), former.tasks);
    new FixedWeek(WeekPair::later(), later.tasks);
}

} // namespace trel::desktop::changes
