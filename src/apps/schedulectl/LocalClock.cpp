#include "LocalClock.h"

#include <limits>

using trel::mediadispatch::Instant;

namespace {

constexpr Instant kSecond = 1000;
constexpr Instant kDay = 24 * 60 * 60 * kSecond;
constexpr Instant kBeginning = std::numeric_limits<Instant>::min();
constexpr Instant kEnd = std::numeric_limits<Instant>::max();

/// The years that have four digits.
constexpr Instant kFirstDated = -62135596800 * kSecond;
constexpr Instant kLastDated = 253402300800 * kSecond - 1;

QDateTime inUtc(Instant moment)
{
    return QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC);
}

} // namespace

LocalClock::LocalClock(const QTimeZone& zone)
    : m_zone(zone.isValid() ? zone : QTimeZone::utc())
{}

int LocalClock::offsetAt(Instant moment) const
{
    return stretchAt(moment).offset;
}

QDateTime LocalClock::shownAt(Instant moment) const
{
    return inUtc(moment + offsetAt(moment) * kSecond);
}

bool LocalClock::changesOn(const QDate& day) const
{
    if (day != m_day) {
        const QTime midnight(0, 0);
        m_day = day;
        m_dayChanges =
            offsetAt(find(day, midnight).first) != offsetAt(find(day.addDays(1), midnight).first);
    }
    return m_dayChanges;
}

LocalClock::Occurrence LocalClock::find(const QDate& date, const QTime& time) const
{
    const Instant shown = QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch();
    Occurrence found;
    bool isFound = false;
    // No clock is further from UTC than this.
    for (Stretch stretch = lookUp(shown - kDay); stretch.from <= shown + kDay;
         stretch = lookUp(stretch.to)) {
        const Instant moment = shown - stretch.offset * kSecond;
        if (moment < stretch.from && !isFound) {
            return {stretch.from, {}, true};
        }
        if (moment >= stretch.from && moment < stretch.to) {
            if (isFound) {
                found.second = moment;
                break;
            }
            found.first = moment;
            isFound = true;
        }
        if (stretch.to == kEnd) {
            break;
        }
    }
    return found;
}

QString LocalClock::text(Instant moment) const
{
    return isDated(moment)
               ? shownAt(moment).date().toString(Qt::ISODate) + QLatin1Char(' ') + timeText(moment)
               : QStringLiteral("\u2013");
}

QString LocalClock::text(Instant moment, Instant besides) const
{
    const bool isSameDay =
        isDated(moment) && isDated(besides) && shownAt(moment).date() == shownAt(besides).date();
    return isSameDay ? timeText(moment) : text(moment);
}

QString LocalClock::isoText(Instant moment) const
{
    return shownAt(moment).toString(QStringLiteral("yyyy-MM-ddThh:mm:ss.zzz")) +
           offsetText(offsetAt(moment));
}

QString LocalClock::timeText(Instant moment) const
{
    const QDateTime shown = shownAt(moment);
    const bool isWhole = shown.time().msec() == 0;
    QString text = shown.time().toString(isWhole ? QStringLiteral("hh:mm:ss")
                                                 : QStringLiteral("hh:mm:ss.zzz"));
    if (changesOn(shown.date())) {
        text += QLatin1Char(' ') + offsetText(offsetAt(moment));
    }
    return text;
}

QString LocalClock::offsetText(int seconds)
{
    constexpr int minute = 60;
    constexpr int hour = 60 * minute;
    const int size = qAbs(seconds);
    return QStringLiteral("%1%2:%3")
        .arg(seconds < 0 ? QLatin1Char('-') : QLatin1Char('+'))
        .arg(size / hour, 2, 10, QLatin1Char('0'))
        .arg(size % hour / minute, 2, 10, QLatin1Char('0'));
}

const LocalClock::Stretch& LocalClock::stretchAt(Instant moment) const
{
    if (moment < m_stretch.from || moment >= m_stretch.to) {
        m_stretch = lookUp(moment);
    }
    return m_stretch;
}

LocalClock::Stretch LocalClock::lookUp(Instant moment) const
{
    if (moment >= m_stretch.from && moment < m_stretch.to) {
        return m_stretch;
    }
    const QTimeZone::OffsetData former = m_zone.previousTransition(inUtc(moment + 1));
    QTimeZone::OffsetData next = m_zone.nextTransition(inUtc(moment));
    if (!next.atUtc.isValid()) {
        // From the last change in its table a zone does not go on to those that follow by rule;
        // from the moment behind it, it does.
        next = m_zone.nextTransition(inUtc(moment + 1));
    }
    return {former.atUtc.isValid() ? former.atUtc.toMSecsSinceEpoch() : kBeginning,
            next.atUtc.isValid() ? next.atUtc.toMSecsSinceEpoch() : kEnd,
            m_zone.offsetFromUtc(inUtc(moment))};
}

bool isDated(Instant moment)
{
    return moment >= kFirstDated && moment <= kLastDated;
}
