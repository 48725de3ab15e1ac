#include "LiteralProblems.h"

#include "ProblemLines.h"

#include "service/DateText.h"
#include "service/PlanConflicts.h"
#include "service/PlanFaults.h"
#include "service/PlanTiming.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"

#include <algorithm>
#include <array>
#include <optional>

using namespace trel::mediadispatch;

namespace literal {

namespace {

using Programs = std::map<int, ProgramIten>;

constexpr int kQuarters = 96;
constexpr int kQuarter = 900;
constexpr int kDay = 86'400;

QString dateText(const QDate& date)
{
    return date.isValid() ? date.toString(QStringLiteral("yyyy.MM.dd")) : QStringLiteral("-");
}

/// One play of an entry; `seconds` is -1 for one without an end.
struct Play
{
    int entry;
    int seconds;
};

class Task
{
public:
    Task(const PlayTask& task, const Programs& catalogue, const QDate& from)
        : m_task(task)
        , m_catalogue(catalogue)
    {
        const QDate first = dateFromText(task.startDate);
        const QDate last = dateFromText(task.endDate);
        m_isValid = first.isValid() && last.isValid() && first <= last;
        for (const PlayPlan& plan : task.plans) {
            m_ends.push_back(worksOutEnd(plan));
        }
        for (int weekday = 1; weekday <= 7; ++weekday) {
            for (int quarter = 0; quarter < kQuarters; ++quarter) {
                m_holders[static_cast<std::size_t>(weekday)][static_cast<std::size_t>(quarter)] =
                    findHolder(weekday, quarter);
            }
        }
        if (m_isValid) {
            for (QDate day = first; day <= last; day = day.addDays(1)) {
                if (!from.isValid() || from <= day) {
                    m_days.push_back(day);
                }
            }
        }
    }

    QStringList lines()
    {
        if (!m_isValid) {
            return {QStringLiteral("never valid %1").arg(m_task.id)};
        }
        if (!m_days.empty()) {
            for (int row = 0; row < static_cast<int>(m_task.plans.size()); ++row) {
                lookAtEntries(row);
                lookAtPlan(row);
            }
            lookForBlack();
        }
        m_lines.sort();
        return m_lines;
    }

private:
    const PlayPlan& plan(int row) const { return m_task.plans[static_cast<std::size_t>(row)]; }

    QString name(int row) const { return QStringLiteral("%1/%2").arg(m_task.id).arg(plan(row).id); }

    const ProgramIten* program(const struProgInfo& entry) const
    {
        const auto found = m_catalogue.find(entry.progIndex);
        return found == m_catalogue.end() ? nullptr : &found->second;
    }

    /// Empty where the entry can be seen.
    QString trouble(const struProgInfo& entry) const
    {
        if (entry.isInvalid || program(entry) == nullptr) {
            return QStringLiteral("invalid");
        }
        if (program(entry)->isNull) {
            return QStringLiteral("missing");
        }
        const bool hasLength = !hasOwnLength(*program(entry)) || program(entry)->durationMs > 0;
        return hasLength && entry.playCount > 0 ? QString() : QStringLiteral("no time");
    }

    std::string end(int row) const { return m_ends[static_cast<std::size_t>(row)]; }

    std::string worksOutEnd(const PlayPlan& plan) const
    {
        const auto hasNone = [this](int index) {
            const auto found = m_catalogue.find(index);
            return found != m_catalogue.end() && !hasOwnLength(found->second);
        };
        return plan.mode == FrequencyMode ? plannedEnd(plan, m_catalogue, hasNone) : plan.endTime;
    }

    static int seconds(const std::string& time)
    {
        return timeFromText(time).msecsSinceStartOfDay() / 1000;
    }

    bool runsOn(int row, int weekday) const
    {
        std::vector<int> numbers;
        return parseWeeks(plan(row).weeks, numbers) ||
               std::find(numbers.begin(), numbers.end(), weekday) != numbers.end();
    }

    bool claims(int row, int weekday, int second) const
    {
        const QTime from = timeFromText(plan(row).startTime);
        const QTime to = timeFromText(end(row));
        return runsOn(row, weekday) && from.isValid() && to.isValid() &&
               seconds(plan(row).startTime) <= second && second < seconds(end(row));
    }

    /// In the midst of a quarter; -1 for none.
    int holder(int weekday, int quarter) const
    {
        return m_holders[static_cast<std::size_t>(weekday)][static_cast<std::size_t>(quarter)];
    }

    int findHolder(int weekday, int quarter) const
    {
        for (int row = 0; row < static_cast<int>(m_task.plans.size()); ++row) {
            if (claims(row, weekday, quarter * kQuarter + kQuarter / 2)) {
                return row;
            }
        }
        return -1;
    }

    bool hasPicture(int row) const
    {
        return !plays(row, 1).empty() && !runsLessThanOnce(plan(row));
    }

    std::vector<Play> plays(int row, int runs) const
    {
        std::vector<Play> result;
        for (int run = 0; run < runs; ++run) {
            int number = 0;
            for (const struProgInfo& entry : plan(row).programs) {
                for (int left = trouble(entry).isEmpty() ? entry.playCount : 0; left > 0; --left) {
                    const ProgramIten& its = *program(entry);
                    result.push_back(
                        {number, hasOwnLength(its) ? static_cast<int>(its.durationMs) / 1000 : -1});
                }
                ++number;
            }
        }
        return result;
    }

    void lookAtEntries(int row)
    {
        const auto& entries = plan(row).programs;
        if (entries.empty()) {
            m_lines.append(QStringLiteral("nothing ") + name(row));
        }
        for (const char* word : {"invalid", "missing", "no time"}) {
            int first = -1;
            int count = 0;
            for (int i = static_cast<int>(entries.size()) - 1; i >= 0; --i) {
                if (trouble(entries[static_cast<std::size_t>(i)]) == QLatin1String(word)) {
                    first = i;
                    ++count;
                }
            }
            if (count > 0) {
                m_lines.append(QStringLiteral("%1 %2, entry %3, %4 of them")
                                   .arg(QLatin1String(word), name(row))
                                   .arg(first)
                                   .arg(count));
            }
        }
    }

    void lookAtPlan(int row)
    {
        const PlanFault fault = planFault(plan(row), end(row));
        const QString dates =
            dateText(firstDay(row, row)) + QLatin1Char('-') +
            (firstDay(row, row).isValid() ? dateText(m_days.back()) : QStringLiteral("-"));
        if (fault == PlanFault::InvertedSpan && plan(row).mode == TimeMode) {
            m_lines.append(QStringLiteral("midnight %1 until %2 splits, %3")
                               .arg(name(row), clockText(seconds(end(row))), dates));
            return;
        }
        if (fault != PlanFault::None || runsLessThanOnce(plan(row))) {
            const PlanFault told = fault == PlanFault::None ? PlanFault::RunsLessThanOnce : fault;
            m_lines.append(
                QStringLiteral("never plays %1, fault %2").arg(name(row)).arg(int(told)));
            return;
        }
        if (!firstDay(row, row).isValid()) {
            m_lines.append(QStringLiteral("no date ") + name(row));
            return;
        }
        const bool isSeen = std::any_of(m_days.begin(), m_days.end(), [&](const QDate& day) {
            for (int quarter = 0; quarter < kQuarters; ++quarter) {
                if (holder(day.dayOfWeek(), quarter) == row) {
                    return true;
                }
            }
            return false;
        });
        lookAtCollision(row, isSeen, dates);
        if (isSeen) {
            lookAtList(row, dates);
        }
    }

    /// The first day on which both plans run.
    QDate firstDay(int a, int b) const
    {
        for (const QDate& day : m_days) {
            if (runsOn(a, day.dayOfWeek()) && runsOn(b, day.dayOfWeek())) {
                return day;
            }
        }
        return {};
    }

    void lookAtCollision(int row, bool isSeen, const QString& dates)
    {
        for (int other = 0; other < row; ++other) {
            const PlanClaim a = {plan(other).startTime, end(other), plan(other).weeks};
            const PlanClaim b = {plan(row).startTime, end(row), plan(row).weeks};
            const bool collide =
                weeksOverlap(a.weeks, b.weeks) &&
                (b.end < b.start || a.end < a.start || (a.start < b.end && b.start < a.end));
            if (!collide) {
                continue;
            }
            if (!isSeen) {
                m_lines.append(
                    QStringLiteral("never seen %1 for %2, %3").arg(name(row), name(other), dates));
                return;
            }
            const QDate day = firstDay(other, row);
            WeekdaySet both = 0;
            for (const QDate& each : m_days) {
                if (runsOn(row, each.dayOfWeek()) && runsOn(other, each.dayOfWeek())) {
                    both |= 1U << static_cast<unsigned>(each.dayOfWeek());
                }
            }
            m_lines.append(QStringLiteral("collides %1 with %2, %3-%4 on %5")
                               .arg(name(row), name(other), dateText(day),
                                    day.isValid() ? dateText(m_days.back()) : QStringLiteral("-"),
                                    weekdaysText(both)));
            return;
        }
    }

    void lookAtList(int row, const QString& dates)
    {
        const int runs = countsRuns(plan(row)) ? plan(row).times : 1;
        const int begin = seconds(plan(row).startTime);
        const int ending = seconds(end(row)) == kDay - 1 ? kDay : seconds(end(row));
        const std::vector<Play> all = plays(row, runs);
        int second = begin;
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (all[i].seconds < 0 && second < ending) {
                lookBehind(row, all[i].entry);
                return;
            }
            if (all[i].seconds < 0 || second + all[i].seconds > ending) {
                const bool isEndless = std::any_of(
                    all.begin(), all.end(), [](const Play& play) { return play.seconds < 0; });
                if (plan(row).mode == FrequencyMode && !isEndless) {
                    int last = second;
                    for (std::size_t later = i; later < all.size(); ++later) {
                        last += all[later].seconds;
                    }
                    const bool splits = second > begin && last - second < kDay;
                    m_lines.append(QStringLiteral("midnight %1 until %2%3, %4")
                                       .arg(name(row), clockText(last - kDay),
                                            splits ? QStringLiteral(" splits") : QString(), dates));
                } else {
                    m_lines.append(QStringLiteral("cut off %1, entry %2 at %3, %4")
                                       .arg(name(row))
                                       .arg(all[i].entry)
                                       .arg(clockText(seconds(end(row))), dates));
                }
                return;
            }
            second += all[i].seconds;
        }
    }

    void lookBehind(int row, int endless)
    {
        const auto& entries = plan(row).programs;
        for (int i = endless + 1; i < static_cast<int>(entries.size()); ++i) {
            if (trouble(entries[static_cast<std::size_t>(i)]).isEmpty()) {
                m_lines.append(QStringLiteral("never reached %1, entry %2 behind %3")
                                   .arg(name(row))
                                   .arg(i)
                                   .arg(endless));
                return;
            }
        }
    }

    bool isThere(int weekday) const
    {
        return std::any_of(m_days.begin(), m_days.end(),
                           [weekday](const QDate& day) { return day.dayOfWeek() == weekday; });
    }

    bool isBlack(int weekday, int quarter) const
    {
        if (const int row = holder(weekday, quarter); row >= 0) {
            return !hasPicture(row);
        }
        // Back to the last plan, for a week.
        for (int steps = 0; steps < 8 * kQuarters; ++steps) {
            if (--quarter < 0) {
                quarter = kQuarters - 1;
                weekday = weekday == 1 ? 7 : weekday - 1;
            }
            if (const int row = isThere(weekday) ? holder(weekday, quarter) : -1; row >= 0) {
                return !hasPicture(row) || plan(row).endAction == BlackScreen;
            }
        }
        return true;
    }

    void lookForBlack()
    {
        std::map<std::pair<int, int>, WeekdaySet> found;
        for (int weekday = 1; weekday <= 7; ++weekday) {
            if (!isThere(weekday)) {
                continue;
            }
            int since = -1;
            for (int quarter = 0; quarter <= kQuarters; ++quarter) {
                const bool black = quarter < kQuarters && isBlack(weekday, quarter);
                if (black && since < 0) {
                    since = quarter;
                } else if (!black && since >= 0) {
                    found[{since * kQuarter, quarter * kQuarter}] |=
                        1U << static_cast<unsigned>(weekday);
                    since = -1;
                }
            }
        }
        for (const auto& [stretch, weekdays] : found) {
            const auto first =
                std::find_if(m_days.begin(), m_days.end(), [days = weekdays](const QDate& day) {
                    return holdsWeekday(days, day.dayOfWeek());
                });
            m_lines.append(QStringLiteral("black %1 %2-%3 on %4, %5-%6")
                               .arg(QString::number(m_task.id), clockText(stretch.first),
                                    clockText(stretch.second), weekdaysText(weekdays),
                                    dateText(*first), dateText(m_days.back())));
        }
    }

    const PlayTask& m_task;
    const Programs& m_catalogue;
    bool m_isValid = false;
    std::vector<std::string> m_ends;
    std::array<std::array<int, kQuarters>, 8> m_holders = {};
    std::vector<QDate> m_days;
    QStringList m_lines;
};

} // namespace

QStringList taskProblems(const PlayTask& task, const std::map<int, ProgramIten>& catalogue,
                         const QDate& from)
{
    return Task(task, catalogue, from).lines();
}

QStringList overlaps(const std::map<int, PlayTask>& tasks)
{
    QStringList lines;
    for (const auto& [id, task] : tasks) {
        for (const auto& [otherId, other] : tasks) {
            if (otherId < id && other.startDate <= task.endDate &&
                task.startDate <= other.endDate) {
                lines.append(
                    QStringLiteral("overlaps %1 with %2, %3-%4")
                        .arg(QString::number(id), QString::number(otherId),
                             dateText(dateFromText(std::max(task.startDate, other.startDate))),
                             dateText(dateFromText(std::min(task.endDate, other.endDate)))));
                break;
            }
        }
    }
    lines.sort();
    return lines;
}

} // namespace literal
