#include "week/LocalDays.h"

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

constexpr qint64 kSecond = 1000;

} // namespace

LocalDays::LocalDays(const QDate& first, int days, const QTimeZone& zone)
    : m_firstDay(dayNumber(first))
    , m_days(days)
    , m_changes(clockChanges(first, first.addDays(days - 1), zone))
{
    const ZoneOffsets offsets(zone);
    // Also a change by a whole day, which has been, is taken in.
    const Instant from = timeOn(m_firstDay, 0) - 2 * kLargestOffset;
    const Instant to = timeOn(m_firstDay + days, 0) + 2 * kLargestOffset;
    for (Instant at = from; at < to;) {
        OffsetPeriod period = offsets.periodAt(at);
        period.begin = at;
        period.end = std::min(period.end, to);
        addRuns(period);
        at = period.end;
    }
}

void LocalDays::addRuns(const OffsetPeriod& period)
{
    for (LocalTime time = period.local(period.begin); time < period.local(period.end);) {
        const DayNumber day = dayOf(time);
        const LocalTime end = std::min(period.local(period.end), timeOn(day + 1, 0));
        const DayNumber index = day - m_firstDay;
        if (index >= 0 && index < m_days) {
            addRunsOfDay(period, static_cast<int>(index), time - timeOn(day, 0),
                         end - timeOn(day, 0));
        }
        time = end;
    }
}

void LocalDays::addRunsOfDay(const OffsetPeriod& period, int day, qint64 from, qint64 to)
{
    const LocalTime midnight = timeOn(m_firstDay + day, 0);
    const auto add = [&](qint64 until, Pass pass) {
        if (from < until) {
            m_runs.push_back({period.instant(midnight + from), period.instant(midnight + until),
                              day, from, pass});
            from = until;
        }
    };
    // Times come for the second time where the period begins with the change that doubles them, and
    // for the first time where it ends with it.
    for (const ClockChange& change : m_changes) {
        const bool isHere = !change.isLeftOut() && dayNumber(change.date) == m_firstDay + day;
        if (isHere && change.moment == period.begin) {
            add(std::min(to, change.end * kSecond), Pass::Second);
        }
        if (isHere && change.moment == period.end) {
            add(std::min(to, change.begin * kSecond), Pass::Only);
            add(std::min(to, change.end * kSecond), Pass::First);
        }
    }
    add(to, Pass::Only);
}

std::vector<LocalSpan> LocalDays::spans(Instant from, Instant to) const
{
    std::vector<LocalSpan> spans;
    auto run =
        std::upper_bound(m_runs.begin(), m_runs.end(), from,
                         [](Instant moment, const Run& other) { return moment < other.end; });
    for (; run != m_runs.end() && run->begin < to; ++run) {
        const qint64 begin = run->wall + std::max(from, run->begin) - run->begin;
        const qint64 end = run->wall + std::min(to, run->end) - run->begin;
        if (begin / kSecond < end / kSecond) {
            spans.push_back({run->day, static_cast<int>(begin / kSecond),
                             static_cast<int>(end / kSecond), run->pass});
        }
    }
    return spans;
}

Instant LocalDays::begin() const
{
    return m_runs.empty() ? 0 : m_runs.front().begin;
}

Instant LocalDays::end() const
{
    return m_runs.empty() ? 0 : m_runs.back().end;
}

Instant LocalDays::instant(int day, int second, Pass pass) const
{
    const qint64 wall = second * kSecond;
    for (const Run& run : m_runs) {
        const bool holds =
            run.day == day && run.wall <= wall && wall < run.wall + run.end - run.begin;
        if (holds && (pass != Pass::Second || run.pass == Pass::Second)) {
            return run.begin + wall - run.wall;
        }
    }
    return begin();
}

} // namespace trel::desktop::week
