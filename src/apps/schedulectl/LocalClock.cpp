#include "LocalClock.h"

using trel::mediadispatch::Instant;
using trel::mediadispatch::kLargestOffset;
using trel::mediadispatch::WallPiece;

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

LocalClock::LocalClock(const QTimeZone& zone)
    : m_wall(zone)
{}

int LocalClock::offsetAt(Instant moment) const
{
    return static_cast<int>(m_wall.pieceAt(moment).offset / kSecond);
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
    for (Instant at = shown - kLargestOffset; at <= shown + kLargestOffset;) {
        const WallPiece& piece = m_wall.pieceAt(at);
        const Instant moment = piece.instant(shown);
        if (moment < piece.begin && !isFound) {
            return {piece.begin, {}, true};
        }
        if (moment >= piece.begin && moment < piece.end) {
            if (isFound) {
                found.second = moment;
                break;
            }
            found.first = moment;
            isFound = true;
        }
        at = piece.end;
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

bool isDated(Instant moment)
{
    return moment >= kFirstDated && moment <= kLastDated;
}
