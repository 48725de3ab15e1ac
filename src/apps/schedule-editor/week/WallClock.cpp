#include "week/WallClock.h"

#include <QDateTime>

#include <algorithm>

using namespace trel::mediadispatch;

namespace week {

namespace {

constexpr qint64 kSecond = 1000;
constexpr qint64 kDay = qint64{kDaySeconds} * kSecond;

qint64 floorToDay(qint64 msecs)
{
    const qint64 days = msecs / kDay;
    return msecs % kDay < 0 ? days - 1 : days;
}

qint64 offsetAt(const QTimeZone& zone, Instant moment)
{
    return zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC)) * kSecond;
}

/// A change of offset, the latter one being in force from `at` on.
struct Shift
{
    Instant at = 0;
    qint64 offset = 0;
};

std::vector<Shift> shiftsBetween(const QTimeZone& zone, Instant from, Instant to)
{
    std::vector<Shift> shifts{{from, offsetAt(zone, from)}};
    const QTimeZone::OffsetDataList changes = zone.transitions(
        QDateTime::fromMSecsSinceEpoch(from, Qt::UTC), QDateTime::fromMSecsSinceEpoch(to, Qt::UTC));
    for (const QTimeZone::OffsetData& change : changes) {
        const Instant at = change.atUtc.toMSecsSinceEpoch();
        const qint64 offset = change.offsetFromUtc * kSecond;
        // A change may be one of the name alone.
        if (at > from && at < to && offset != shifts.back().offset) {
            shifts.push_back({at, offset});
        }
    }
    return shifts;
}

} // namespace

WallClock::WallClock(const QDate& first, int days, const QTimeZone& zone)
    : m_firstDay(QDate(1970, 1, 1).daysTo(first))
    , m_days(days)
{
    // No zone is more than a day away from UTC, before or after a change.
    const Instant from = (m_firstDay - 2) * kDay;
    const Instant to = (m_firstDay + days + 2) * kDay;
    const std::vector<Shift> shifts = shiftsBetween(zone, from, to);
    for (std::size_t i = 0; i < shifts.size(); ++i) {
        const bool isLast = i + 1 == shifts.size();
        const qint64 offset = shifts[i].offset;
        const qint64 former = i == 0 ? offset : shifts[i - 1].offset;
        const qint64 next = isLast ? offset : shifts[i + 1].offset;
        if (offset != former) {
            addChange(shifts[i].at + std::min(offset, former),
                      shifts[i].at + std::max(offset, former), offset > former);
        }
        addRuns(shifts[i].at, isLast ? to : shifts[i + 1].at, offset, former, next);
    }
}

void WallClock::addChange(qint64 from, qint64 to, bool isLeftOut)
{
    for (qint64 day = floorToDay(from); day * kDay < to; ++day) {
        const qint64 index = day - m_firstDay;
        if (index >= 0 && index < m_days) {
            m_changes.push_back(
                {static_cast<int>(index),
                 static_cast<int>((std::max(from, day * kDay) - day * kDay) / kSecond),
                 static_cast<int>((std::min(to, (day + 1) * kDay) - day * kDay) / kSecond),
                 isLeftOut});
        }
    }
}

void WallClock::addRuns(Instant begin, Instant end, qint64 offset, qint64 formerOffset,
                        qint64 nextOffset)
{
    // Where the clock has gone back at the begin, the first of this time comes for the second time;
    // where it goes back at the end, the last of it will come again.
    const Instant repeatsUntil = begin + std::max<qint64>(0, formerOffset - offset);
    const Instant repeatedFrom = end - std::max<qint64>(0, offset - nextOffset);
    Instant at = begin;
    while (at < end) {
        const qint64 day = floorToDay(at + offset);
        Instant next = std::min(end, (day + 1) * kDay - offset);
        Pass pass = Pass::Only;
        if (at < repeatsUntil) {
            pass = Pass::Second;
            next = std::min(next, repeatsUntil);
        } else if (at >= repeatedFrom) {
            pass = Pass::First;
        } else {
            next = std::min(next, repeatedFrom);
        }
        const qint64 index = day - m_firstDay;
        if (index >= 0 && index < m_days) {
            m_runs.push_back({at, next, static_cast<int>(index), at + offset - day * kDay, pass});
        }
        at = next;
    }
}

std::vector<WallSpan> WallClock::spans(Instant from, Instant to) const
{
    std::vector<WallSpan> spans;
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

Instant WallClock::begin() const
{
    return m_runs.empty() ? 0 : m_runs.front().begin;
}

Instant WallClock::end() const
{
    return m_runs.empty() ? 0 : m_runs.back().end;
}

Instant WallClock::instant(int day, int second, Pass pass) const
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

} // namespace week
