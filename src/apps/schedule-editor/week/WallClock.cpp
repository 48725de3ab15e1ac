#include "week/WallClock.h"

#include <algorithm>

using namespace trel::mediadispatch;

namespace week {

namespace {

constexpr qint64 kSecond = 1000;

} // namespace

WallClock::WallClock(const QDate& first, int days, const QTimeZone& zone)
    : m_firstDay(dayNumber(first))
    , m_days(days)
    , m_changes(clockChanges(first, first.addDays(days - 1), zone))
{
    const WallTime wall(zone);
    // Also a change by a whole day, which has been, is taken in.
    const Instant from = timeOn(m_firstDay, 0) - 2 * kLargestOffset;
    const Instant to = timeOn(m_firstDay + days, 0) + 2 * kLargestOffset;
    qint64 former = wall.pieceAt(from).offset;
    for (Instant at = from; at < to;) {
        WallPiece piece = wall.pieceAt(at);
        piece.begin = at;
        piece.end = std::min(piece.end, to);
        addRuns(piece, former, wall.pieceAt(piece.end).offset);
        former = piece.offset;
        at = piece.end;
    }
}

void WallClock::addRuns(const WallPiece& piece, qint64 formerOffset, qint64 nextOffset)
{
    // Where the clock has gone back at the begin, the first of this time comes for the second time;
    // where it goes back at the end, the last of it will come again.
    const Instant repeatsUntil = piece.begin + std::max<qint64>(0, formerOffset - piece.offset);
    const Instant repeatedFrom = piece.end - std::max<qint64>(0, piece.offset - nextOffset);
    Instant at = piece.begin;
    while (at < piece.end) {
        const DayNumber day = dayOf(piece.local(at));
        Instant next = std::min(piece.end, piece.instant(timeOn(day + 1, 0)));
        Pass pass = Pass::Only;
        if (at < repeatsUntil) {
            pass = Pass::Second;
            next = std::min(next, repeatsUntil);
        } else if (at >= repeatedFrom) {
            pass = Pass::First;
        } else {
            next = std::min(next, repeatedFrom);
        }
        const DayNumber index = day - m_firstDay;
        if (index >= 0 && index < m_days) {
            m_runs.push_back(
                {at, next, static_cast<int>(index), piece.local(at) - timeOn(day, 0), pass});
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
