#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule/dispatch/WallTime.h"

#include <QDateTime>
#include <QTimeZone>

#include <optional>

/// The local time of a zone, in texts and found from texts. A long list of moments in order costs
/// next to nothing.
class LocalClock
{
public:
    using Instant = trel::mediadispatch::Instant;

    explicit LocalClock(const QTimeZone& zone);

    const QTimeZone& zone() const { return m_wall.zone(); }
    /// Seconds that the local clock is ahead of UTC.
    int offsetAt(Instant moment) const;
    /// Date and time that the local clock shows.
    QDateTime shownAt(Instant moment) const;
    /// Whether the clock is put forward or back on a local day.
    bool changesOn(const QDate& day) const;

    /// When the local clock shows a date and time.
    struct Occurrence
    {
        Instant first = 0;             ///< Where it is left out, the first moment after the gap.
        std::optional<Instant> second; ///< Where it comes twice.
        bool isLeftOut = false;
    };
    Occurrence find(const QDate& date, const QTime& time) const;

    /// "2024-01-31 08:00:00", with the milliseconds where there are any, and with the offset on
    /// days on which the clock changes. A dash for a moment that never comes.
    QString text(Instant moment) const;
    /// As text, without the date where that is the one of another moment.
    QString text(Instant moment, Instant besides) const;
    /// ISO 8601 with milliseconds and offset.
    QString isoText(Instant moment) const;
    /// "+01:00"
    static QString offsetText(int seconds);

private:
    QString timeText(Instant moment) const;

    trel::mediadispatch::WallTime m_wall;
    mutable QDate m_day; ///< The day that was last asked about.
    mutable bool m_dayChanges = false;
};

/// Whether a calendar has a date for a moment; kNever and its like have none.
bool isDated(trel::mediadispatch::Instant moment);
