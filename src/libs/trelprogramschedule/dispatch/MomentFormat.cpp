#include "trelprogramschedule/dispatch/MomentFormat.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr Instant kSecond = 1000;

/// The years that have four digits.
constexpr Instant kFirstDated = -62135596800 * kSecond;
constexpr Instant kLastDated = 253402300800 * kSecond - 1;

QDateTime inUtc(Instant moment)
{
    return QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC);
}

} // namespace

MomentFormat::MomentFormat(const QTimeZone& zone)
    : m_offsets(zone)
{}

int MomentFormat::offsetAt(Instant moment) const
{
    return static_cast<int>(m_offsets.periodAt(moment).offset / kSecond);
}

QDateTime MomentFormat::shownAt(Instant moment) const
{
    return inUtc(moment + offsetAt(moment) * kSecond);
}

bool MomentFormat::changesOn(const QDate& day) const
{
    if (day != m_day) {
        m_day = day;
        m_dayChanges = isTouched(day);
    }
    return m_dayChanges;
}

// Between what the clock shows before a change and what it shows after it lies the time that is
// left out, or comes twice. It need not be of the day on which the change falls.
bool MomentFormat::isTouched(const QDate& day) const
{
    const LocalTime begin = timeOn(dayNumber(day), 0);
    const LocalTime end = begin + kMillisecondsPerDay;
    for (Instant at = begin - 2 * kLargestOffset; at < end + 2 * kLargestOffset;) {
        const OffsetPeriod& period = m_offsets.periodAt(at);
        if (period.end == kNever) {
            return false;
        }
        at = period.end;
        const LocalTime before = period.local(at);
        const LocalTime after = m_offsets.periodAt(at).local(at);
        if (std::min(before, after) < end && std::max(before, after) > begin) {
            return true;
        }
    }
    return false;
}

MomentFormat::Occurrence MomentFormat::find(const QDate& date, const QTime& time) const
{
    const Instant shown = QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch();
    Occurrence found;
    bool isFound = false;
    for (Instant at = shown - kLargestOffset; at <= shown + kLargestOffset;) {
        const OffsetPeriod& period = m_offsets.periodAt(at);
        const Instant moment = period.instant(shown);
        if (moment < period.begin && !isFound) {
            return {period.begin, {}, true};
        }
        if (moment >= period.begin && moment < period.end) {
            if (isFound) {
                found.second = moment;
                break;
            }
            found.first = moment;
            isFound = true;
        }
        at = period.end;
    }
    return found;
}

QString MomentFormat::text(Instant moment) const
{
    return isDated(moment)
               ? shownAt(moment).date().toString(Qt::ISODate) + QLatin1Char(' ') + timeText(moment)
               : QStringLiteral("\u2013");
}

QString MomentFormat::text(Instant moment, Instant besides) const
{
    const bool isSameDay =
        isDated(moment) && isDated(besides) && shownAt(moment).date() == shownAt(besides).date();
    return isSameDay ? timeText(moment) : text(moment);
}

QString MomentFormat::isoText(Instant moment) const
{
    return shownAt(moment).toString(QStringLiteral("yyyy-MM-ddThh:mm:ss.zzz")) +
           offsetText(offsetAt(moment));
}

QString MomentFormat::timeText(Instant moment) const
{
    const QDateTime shown = shownAt(moment);
    const bool isWhole = shown.time().msec() == 0;
    QString text = shown.time().toString(isWhole ? QStringLiteral("hh:mm:ss")
                                                 : QStringLiteral("hh:mm:ss.zzz"));
    return text + offsetMark(moment);
}

QString MomentFormat::offsetMark(Instant moment) const
{
    return changesOn(shownAt(moment).date()) ? QLatin1Char(' ') + offsetText(offsetAt(moment))
                                             : QString();
}

QString MomentFormat::offsetText(int seconds)
{
    constexpr int minute = 60;
    constexpr int hour = 60 * minute;
    const int size = qAbs(seconds);
    const auto twoDigits = [](int number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    const QString text = (seconds < 0 ? QLatin1Char('-') : QLatin1Char('+')) +
                         twoDigits(size / hour) + QLatin1Char(':') +
                         twoDigits(size % hour / minute);
    return size % minute == 0 ? text : text + QLatin1Char(':') + twoDigits(size % minute);
}

bool isDated(Instant moment)
{
    return moment >= kFirstDated && moment <= kLastDated;
}

} // namespace trel::mediadispatch
