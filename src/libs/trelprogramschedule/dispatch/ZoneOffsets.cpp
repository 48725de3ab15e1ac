#include "ZoneOffsets.h"

#include <QDateTime>

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr Instant kFirstAsked = -62'135'596'800'000; // 0001-01-01
constexpr Instant kLastAsked = 253'402'300'800'000;  // 10000-01-01

QDateTime universal(Instant moment)
{
    return QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC);
}

qint64 offsetAt(const QTimeZone& zone, Instant moment)
{
    return qint64{1000} * zone.offsetFromUtc(universal(moment));
}

Instant changeAfter(const QTimeZone& zone, Instant moment)
{
    QTimeZone::OffsetData change = zone.nextTransition(universal(moment));
    if (!change.atUtc.isValid()) {
        // From the last change of its table the zone does not go on to the changes that follow by
        // rule; from any moment behind it, it does.
        change = zone.nextTransition(universal(moment + 1));
    }
    if (!change.atUtc.isValid()) {
        return kNever;
    }
    const Instant at = change.atUtc.toMSecsSinceEpoch();
    return at > moment && at <= kLastAsked ? at : kNever;
}

Instant changeUpTo(const QTimeZone& zone, Instant moment)
{
    const QTimeZone::OffsetData change = zone.previousTransition(universal(moment + 1));
    if (!change.atUtc.isValid()) {
        return kEver;
    }
    const Instant at = change.atUtc.toMSecsSinceEpoch();
    return at <= moment && at > kFirstAsked ? at : kEver;
}

} // namespace

ZoneOffsets::ZoneOffsets(const QTimeZone& zone)
    : m_zone(zone.isValid() ? zone : QTimeZone::utc())
{}

const OffsetPeriod& ZoneOffsets::periodAt(Instant moment) const
{
    const Instant asked = std::clamp(moment, kFirstAsked, kLastAsked);
    const std::lock_guard<std::mutex> lock(m_periods->mutex);
    auto& periods = m_periods->byBegin;
    const auto next = periods.upper_bound(asked);
    if (next != periods.begin()) {
        const OffsetPeriod& period = std::prev(next)->second;
        if (asked < period.end) {
            return period;
        }
    }
    const OffsetPeriod period = findPeriod(asked);
    return periods.emplace(period.begin, period).first->second;
}

std::size_t ZoneOffsets::knownPeriods() const
{
    const std::lock_guard<std::mutex> lock(m_periods->mutex);
    return m_periods->byBegin.size();
}

// A zone also lists changes of its name alone, which are none of the clock.
OffsetPeriod ZoneOffsets::findPeriod(Instant moment) const
{
    OffsetPeriod period;
    period.offset = offsetAt(m_zone, moment);
    period.end = changeAfter(m_zone, moment);
    while (period.end != kNever && offsetAt(m_zone, period.end) == period.offset) {
        period.end = changeAfter(m_zone, period.end);
    }
    period.begin = changeUpTo(m_zone, moment);
    while (period.begin != kEver && offsetAt(m_zone, period.begin - 1) == period.offset) {
        period.begin = changeUpTo(m_zone, period.begin - 1);
    }
    return period;
}

Instant ZoneOffsets::firstShown(LocalTime local, Instant from) const
{
    Instant moment = from;
    for (;;) {
        const OffsetPeriod& period = periodAt(moment);
        const Instant shown = std::max(moment, period.instant(local));
        if (shown < period.end) {
            return shown;
        }
        moment = period.end;
    }
}

Instant ZoneOffsets::firstShown(LocalTime local) const
{
    return firstShown(local, local - kLargestOffset);
}

} // namespace trel::mediadispatch
