#pragma once

#include "trelprogramschedule/dispatch/ClockChanges.h"
#include "trelprogramschedule/dispatch/ZoneOffsets.h"

#include <QDate>
#include <QTimeZone>

#include <vector>

namespace trel::desktop::week {

inline constexpr int kDaySeconds = 24 * 60 * 60;

/// Which of the two times that a doubled hour comes is meant.
enum class Pass {
    Only,
    First,
    Second,
};

/// A part of one local day by its wall clock, in seconds since midnight; end not included.
struct LocalSpan
{
    int day = 0; ///< Counted from the first day asked about.
    int from = 0;
    int to = 0;
    Pass pass = Pass::Only;
};

/// How the wall clock of a zone runs through some days, cut at midnights and at its changes, which
/// may fall on any time of day.
class LocalDays
{
public:
    LocalDays(const QDate& first, int days, const QTimeZone& zone);

    /// What the wall clock shows in the course of [from, to), in order, split at midnights and at
    /// changes. What lies outside the days is left out; parts of seconds are dropped.
    std::vector<LocalSpan> spans(trel::mediadispatch::Instant from,
                                 trel::mediadispatch::Instant to) const;
    const std::vector<trel::mediadispatch::ClockChange>& changes() const { return m_changes; }

    /// From the first instant of the days to the one after their last.
    trel::mediadispatch::Instant begin() const;
    trel::mediadispatch::Instant end() const;

    /// The instant at which the clock shows a second of a day, which has to exist there. In a
    /// doubled hour the first of the two, unless the second is asked for.
    trel::mediadispatch::Instant instant(int day, int second, Pass pass = Pass::Only) const;

private:
    /// A time in which the wall clock runs on evenly, within one day and one pass.
    struct Run
    {
        trel::mediadispatch::Instant begin = 0;
        trel::mediadispatch::Instant end = 0;
        int day = 0;
        qint64 wall = 0; ///< Milliseconds since midnight at begin.
        Pass pass = Pass::Only;
    };

    void addRuns(const trel::mediadispatch::OffsetPeriod& period);
    /// Of a part of one day, in milliseconds since midnight.
    void addRunsOfDay(const trel::mediadispatch::OffsetPeriod& period, int day, qint64 from,
                      qint64 to);

    trel::mediadispatch::DayNumber m_firstDay;
    int m_days;
    std::vector<trel::mediadispatch::ClockChange> m_changes;
    std::vector<Run> m_runs;
};

} // namespace trel::desktop::week
