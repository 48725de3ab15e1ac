#include "ScheduleCheck.h"

#include "ScheduleWords.h"
#include "clock/Clock.h"
#include "common/DisplayText.h"
#include "common/PlanFaultText.h"
#include "service/DateText.h"
#include "service/PlanCollisions.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"
#include "trelprogramschedule/problems/ProblemSearch.h"

#include <QDate>
#include <QTime>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

constexpr int kTaskItself = -1;

/// Whether a `weeks` text is what a card writes: numbers from 0 to 7 with commas between.
bool isListOfDays(const std::string& weeks)
{
    if (weeks.empty()) {
        return true;
    }
    bool isDayNext = true;
    for (const char c : weeks) {
        const bool isDay = c >= '0' && c < '0' + WeekDayCount;
        if (isDayNext ? !isDay : c != ',') {
            return false;
        }
        isDayNext = !isDayNext;
    }
    return !isDayNext;
}

/// Gathers the remarks of one task after the other.
class Remarks
{
public:
    explicit Remarks(std::vector<ScheduleRemark>& remarks)
        : m_remarks(remarks)
    {}

    void lookAt(const PlayTask& task)
    {
        m_taskId = task.id;
        m_row = kTaskItself;
        const bool hasStart = expectDate(QStringLiteral("startDate"), task.startDate);
        const bool hasEnd = expectDate(QStringLiteral("endDate"), task.endDate);
        if (hasStart && hasEnd && task.endDate < task.startDate) {
            remark(QStringLiteral("endDate"),
                   QStringLiteral("%1 lies before the start date").arg(shown(task.endDate)),
                   "endBeforeStart", text(task.endDate));
        }
        for (const PlayPlan& plan : task.plans) {
            ++m_row;
            expectTime(QStringLiteral("startTime"), plan.startTime);
            expectTime(QStringLiteral("endTime"), plan.endTime);
            expectDays(plan);
            expectMode(plan);
            expectEndAction(plan);
        }
    }

private:
    static QString text(const std::string& utf8) { return QString::fromStdString(utf8); }
    static QString shown(const std::string& text) { return inQuotes(QString::fromStdString(text)); }

    bool expectDate(const QString& field, const std::string& date)
    {
        const std::string taken = dateToText(dateFromText(date));
        return (!date.empty() && taken == date) ||
               remark(
                   field,
                   QStringLiteral("%1 is not a date in the form %2").arg(shown(date), kDateFormat) +
                       takenText(taken),
                   "notADate", text(date), text(taken));
    }

    bool expectTime(const QString& field, const std::string& time)
    {
        const std::string taken = timeToText(timeFromText(time));
        return (!time.empty() && taken == time) ||
               remark(
                   field,
                   QStringLiteral("%1 is not a time in the form %2").arg(shown(time), kTimeFormat) +
                       takenText(taken),
                   "notATime", text(time), text(taken));
    }

    /// Collisions and overlaps compare texts; what is on screen, and the cards, read them.
    static QString takenText(const std::string& taken)
    {
        return taken.empty() ? QString()
                             : QStringLiteral("; the screen takes it for %1, but what collides is "
                                              "found by the text as it is")
                                   .arg(QString::fromStdString(taken));
    }

    void expectDays(const PlayPlan& plan)
    {
        if (!namesAnyDay(plan.weeks)) {
            remark(QStringLiteral("weeks"), faultText(PlanFault::NoDay, plan), "noDay",
                   text(plan.weeks));
        } else if (!isListOfDays(plan.weeks)) {
            remark(QStringLiteral("weeks"),
                   QStringLiteral("%1 is not a list of days from 0 to 7; it counts as %2")
                       .arg(shown(plan.weeks), daysText(plan.weeks)),
                   "notAListOfDays", text(plan.weeks), takenDays(plan.weeks));
        }
    }

    /// The numbers of the days as a card would write them.
    static QString takenDays(const std::string& weeks)
    {
        std::vector<int> numbers;
        const bool isEveryDay = parseWeeks(weeks, numbers);
        return text(joinWeeks(isEveryDay ? std::vector<int>{EveryDay} : numbers));
    }

    void expectMode(const PlayPlan& plan)
    {
        if (plan.mode != TimeMode && plan.mode != FrequencyMode) {
            remark(
                QStringLiteral("mode"),
                QStringLiteral("%1 is neither 0 nor 1; the list runs as often as with 1, and the "
                               "end is the one that is set, as with 0")
                    .arg(plan.mode),
                "unknownMode", QString::number(plan.mode));
        }
        if (runsLessThanOnce(plan)) {
            remark(QStringLiteral("times"), faultText(PlanFault::RunsLessThanOnce, plan),
                   "runsLessThanOnce", QString::number(plan.times));
        }
    }

    void expectEndAction(const PlayPlan& plan)
    {
        if (plan.endAction != BlackScreen && plan.endAction != FreezeCurrentFrame) {
            remark(QStringLiteral("endAction"),
                   QStringLiteral("%1 is neither 0 nor 1; the last frame stays, as with 1")
                       .arg(plan.endAction),
                   "unknownEndAction", QString::number(plan.endAction));
        }
    }

    static QString faultText(PlanFault fault, const PlayPlan& plan)
    {
        QString text = hosts::PlanFaultText::sentence(fault, plan.id, printable(plan.startTime),
                                                      printable(plan.endTime));
        // Remarks are no sentences of their own.
        text.chop(1);
        return text;
    }

    bool remark(const QString& field, const QString& sentence, const char* code,
                const QString& value, const QString& taken = {})
    {
        m_remarks.push_back(
            {m_taskId, m_row, field, sentence, QString::fromLatin1(code), value, taken});
        return false;
    }

    std::vector<ScheduleRemark>& m_remarks;
    int m_taskId = 0;
    int m_row = kTaskItself;
};

} // namespace

std::vector<PlanState> planStates(const std::vector<PlayPlan>& plans, const Catalogue& catalogue)
{
    const std::vector<PlanClaim> claims =
        planClaims(plans, catalogue.programs, catalogue.hasNoDuration);
    const std::vector<int> collisions = firstCollisions(claims);
    std::vector<PlanState> states;
    states.reserve(claims.size());
    for (std::size_t row = 0; row < claims.size(); ++row) {
        states.push_back({claims[row].end, collisions[row]});
    }
    return states;
}

ScheduleCheck checkSchedule(const std::map<int, PlayTask>& tasks, const Catalogue& catalogue)
{
    ScheduleCheck check;
    check.overlaps = allTaskOverlaps(tasks);
    Remarks remarks(check.remarks);
    for (const auto& [id, task] : tasks) {
        const std::vector<PlanState> states = planStates(task.plans, catalogue);
        for (std::size_t row = 0; row < states.size(); ++row) {
            if (states[row].collides()) {
                check.collisions.push_back(
                    {id, static_cast<int>(row), states[row].collidingRow, states[row].end});
            }
        }
        remarks.lookAt(task);
    }
    const Clock& clock = Clock::current();
    check.problems =
        scheduleProblems(tasks, catalogue.programs, QDate(), clock.today(), clock.zone());
    return check;
}

} // namespace trel::console
