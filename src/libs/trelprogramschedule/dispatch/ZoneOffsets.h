#pragma once

#include "trelprogramschedule/dispatch/LocalTime.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule_export.h"

#include <QTimeZone>

#include <map>
#include <memory>
#include <mutex>

namespace trel::mediadispatch {

/// A period in which a zone keeps one offset, so that its local clock runs evenly.
struct OffsetPeriod
{
    Instant begin = kEver;
    Instant end = kNever; ///< Not included.
    qint64 offset = 0;    ///< Local time less universal time, in milliseconds.

    LocalTime local(Instant moment) const { return moment + offset; }
    Instant instant(LocalTime local) const { return local - offset; }
};

/// The offsets of a time zone from universal time, in periods. A period is looked up in the zone
/// once and kept, so that a question costs the logarithm of the periods met so far. Copies share
/// what they know; threads may ask at the same time.
class TRELPROGRAMSCHEDULE_EXPORT ZoneOffsets
{
public:
    /// A zone that is not valid counts as universal time.
    explicit ZoneOffsets(const QTimeZone& zone);

    const QTimeZone& zone() const { return m_zone; }

    /// The period that holds a moment. Its neighbours have other offsets. Before the year 1 and
    /// after the year 9999, which no date in a record leaves, the clock is not changed any more.
    const OffsetPeriod& periodAt(Instant moment) const;

    /// The first instant, not before `from`, at which the clock shows this or more.
    Instant firstShown(LocalTime local, Instant from) const;
    /// As above, of all instants.
    Instant firstShown(LocalTime local) const;

    /// How many periods have been looked up.
    std::size_t knownPeriods() const;

private:
    struct Periods
    {
        std::mutex mutex;
        std::map<Instant, OffsetPeriod> byBegin;
    };

    OffsetPeriod findPeriod(Instant moment) const;

    QTimeZone m_zone;
    std::shared_ptr<Periods> m_periods = std::make_shared<Periods>();
};

/// No clock is further than this from universal time.
inline constexpr qint64 kLargestOffset = kMillisecondsPerDay;

} // namespace trel::mediadispatch
