#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule/dispatch/ZoneOffsets.h"
#include "trelprogramschedule_export.h"

#include <QDateTime>
#include <QTimeZone>

#include <optional>

namespace trel::mediadispatch {

/// The local time of a zone, in texts and found from texts. A long list of moments in order costs
/// next to nothing. Not to be asked by two threads at a time.
class TRELPROGRAMSCHEDULE_EXPORT MomentFormat
{
public:
    explicit MomentFormat(const QTimeZone& zone);

    const QTimeZone& zone() const { return m_offsets.zone(); }
    /// Seconds that the local clock is ahead of UTC.
    int offsetAt(Instant moment) const;
    /// Date and time that the local clock shows.
    QDateTime shownAt(Instant moment) const;
    /// Whether a change of the clock leaves out a part of a local day or shows it twice. One that
    /// falls right behind midnight may repeat the evening before.
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
    /// What tells the two times apart that such a day may have: " +01:00" on days on which the
    /// clock changes, nothing on others.
    QString offsetMark(Instant moment) const;
    /// "+01:00", with the seconds where there are any.
    static QString offsetText(int seconds);

private:
    QString timeText(Instant moment) const;

    bool isTouched(const QDate& day) const;

    ZoneOffsets m_offsets;
    mutable QDate m_day; ///< The day that was last asked about.
    mutable bool m_dayChanges = false;
};

/// Whether a calendar has a date for a moment; kNever and its like have none.
TRELPROGRAMSCHEDULE_EXPORT bool isDated(Instant moment);

} // namespace trel::mediadispatch
