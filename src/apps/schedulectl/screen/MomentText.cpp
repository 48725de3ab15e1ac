#include "MomentText.h"

#include "common/DisplayText.h"

#include <QTime>

using namespace trel::hosts;

namespace trel::console {

using trel::mediadispatch::Instant;
using trel::mediadispatch::MomentFormat;

namespace {

constexpr int kSecondsPerMinute = 60;
constexpr int kMinutesPerHour = 60;
/// The clock that is furthest ahead of UTC.
constexpr int kMostHoursOff = 14;

/// What stands in the text, before it is brought together with a clock.
struct Parts
{
    std::optional<QDate> date;
    std::optional<QTime> time;
    std::optional<int> offset; ///< Seconds ahead of UTC.
};

/// Goes through the text from the front to the back and stops at the first thing that does not
/// belong there.
class Scanner
{
public:
    Scanner(const QString& text, DateAlone dateAlone)
        : m_text(text)
        , m_dateAlone(dateAlone)
    {}

    /// Nothing where the text names no moment.
    std::optional<Parts> scan()
    {
        constexpr int hourDigits = 2;
        const bool isTimeAlone = at(hourDigits) == QLatin1Char(':');
        const bool isUnderstood =
            isTimeAlone ? scanTime() : scanDate() && (isDateEnough() || scanTimeOfDate());
        if (!isUnderstood || !expectEnd()) {
            return {};
        }
        return m_parts;
    }

    QString error() const
    {
        return QStringLiteral("%1 is no moment: at character %2 there should be %3.")
            .arg(inQuotes(m_text), QString::number(m_place + 1), m_expected);
    }

private:
    bool scanDate()
    {
        constexpr int yearDigits = 4;
        constexpr int lastYear = 9999;
        constexpr int months = 12;
        int year = 0;
        int month = 0;
        int day = 0;
        if (!number(yearDigits, 1, lastYear, QStringLiteral("a year"), year) || !sign('-') ||
            !number(2, 1, months, QStringLiteral("a month"), month) || !sign('-') ||
            !number(2, 1, QDate(year, month, 1).daysInMonth(), QStringLiteral("a day"), day)) {
            return false;
        }
        m_parts.date = QDate(year, month, day);
        return true;
    }

    bool isDateEnough() const { return isAtEnd() && m_dateAlone == DateAlone::StartOfDay; }

    bool scanTimeOfDate()
    {
        return (take(' ') || take('T') ||
                fail(QStringLiteral("a blank or \"T\" and a time of day"))) &&
               scanTime();
    }

    bool scanTime()
    {
        constexpr int lastHour = 23;
        constexpr int last = 59;
        int hour = 0;
        int minute = 0;
        int second = 0;
        int milliseconds = 0;
        if (!number(2, 0, lastHour, QStringLiteral("an hour"), hour) || !sign(':') ||
            !number(2, 0, last, QStringLiteral("minutes"), minute)) {
            return false;
        }
        if (take(':') && (!number(2, 0, last, QStringLiteral("seconds"), second) ||
                          (take('.') && !scanDecimals(milliseconds)))) {
            return false;
        }
        m_parts.time = QTime(hour, minute, second, milliseconds);
        return scanOffset();
    }

    bool scanDecimals(int& milliseconds)
    {
        int worth = 100;
        const int first = m_place;
        for (; worth > 0 && isDigit(at(m_place)); ++m_place) {
            milliseconds += digit(at(m_place)) * worth;
            worth /= 10;
        }
        return m_place > first || fail(QStringLiteral("one to three decimals"));
    }

    bool scanOffset()
    {
        if (take('Z')) {
            m_parts.offset = 0;
            return true;
        }
        const int behind = m_place + (at(m_place) == QLatin1Char(' ') ? 1 : 0);
        const bool isAhead = at(behind) == QLatin1Char('+');
        if (!isAhead && at(behind) != QLatin1Char('-')) {
            return true;
        }
        m_place = behind + 1;
        int hours = 0;
        int minutes = 0;
        if (!number(2, 0, kMostHoursOff, QStringLiteral("hours of an offset"), hours)) {
            return false;
        }
        const int mostMinutes = hours == kMostHoursOff ? 0 : kMinutesPerHour - 1;
        if ((take(':') || isDigit(at(m_place))) &&
            !number(2, 0, mostMinutes, QStringLiteral("minutes of an offset"), minutes)) {
            return false;
        }
        int seconds = 0;
        const int mostSeconds = mostMinutes == 0 ? 0 : kSecondsPerMinute - 1;
        if (take(':') &&
            !number(2, 0, mostSeconds, QStringLiteral("seconds of an offset"), seconds)) {
            return false;
        }
        const int size = (hours * kMinutesPerHour + minutes) * kSecondsPerMinute + seconds;
        m_parts.offset = isAhead ? size : -size;
        return true;
    }

    /// Reads a number of so many digits. A number out of its range is shown by its first digit.
    bool number(int digits, int least, int most, const QString& name, int& value)
    {
        const QString expected = QStringLiteral("%1 from %2 to %3")
                                     .arg(name)
                                     .arg(least, digits, 10, QLatin1Char('0'))
                                     .arg(most, digits, 10, QLatin1Char('0'));
        int read = 0;
        for (int i = 0; i < digits; ++i) {
            if (!isDigit(at(m_place + i))) {
                return fail(expected);
            }
            read = read * 10 + digit(at(m_place + i));
        }
        if (read < least || read > most) {
            return fail(expected);
        }
        value = read;
        m_place += digits;
        return true;
    }

    bool sign(char expected)
    {
        return take(expected) || fail(QStringLiteral("\"%1\"").arg(QLatin1Char(expected)));
    }

    bool expectEnd() { return isAtEnd() || fail(QStringLiteral("the end")); }

    bool take(char expected)
    {
        const bool isThere = at(m_place) == QLatin1Char(expected);
        m_place += isThere ? 1 : 0;
        return isThere;
    }

    bool fail(const QString& expected)
    {
        m_expected = expected;
        return false;
    }

    bool isAtEnd() const { return m_place >= m_text.size(); }
    QChar at(int place) const { return place < m_text.size() ? m_text[place] : QChar(); }

    static bool isDigit(QChar character)
    {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    }
    static int digit(QChar character) { return character.unicode() - '0'; }

    const QString& m_text;
    DateAlone m_dateAlone;
    int m_place = 0;
    Parts m_parts;
    QString m_expected;
};

QString leftOutRemark(const QString& text, const MomentFormat& local, Instant taken)
{
    return QStringLiteral("Local time leaves %1 out, since the clock is put forward; %2 was taken.")
        .arg(inQuotes(text), local.text(taken));
}

QString twiceRemark(const QString& text, const MomentFormat& local, Instant taken, Instant second)
{
    return QStringLiteral("Local time has %1 twice, since the clock is put back; %2 was taken, and "
                          "%3 is the other.")
        .arg(inQuotes(text), local.text(taken), local.text(second));
}

} // namespace

MomentReading readMoment(const QString& text, const MomentFormat& local, const QDate& today,
                         DateAlone dateAlone)
{
    constexpr Instant millisecondsPerSecond = 1000;
    Scanner scanner(text, dateAlone);
    const std::optional<Parts> parts = scanner.scan();
    if (!parts) {
        return {{}, scanner.error(), {}};
    }
    const QDate date = parts->date.value_or(today);
    const QTime time = parts->time.value_or(QTime(0, 0));
    if (parts->offset) {
        return {QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch() -
                    *parts->offset * millisecondsPerSecond,
                {},
                {}};
    }
    const MomentFormat::Occurrence found = local.find(date, time);
    MomentReading reading{found.first, {}, {}};
    // A day begins when it begins, whatever its clock shows first.
    if (parts->time && found.isLeftOut) {
        reading.remark = leftOutRemark(text, local, found.first);
    } else if (parts->time && found.second) {
        reading.remark = twiceRemark(text, local, found.first, *found.second);
    }
    return reading;
}

} // namespace trel::console
