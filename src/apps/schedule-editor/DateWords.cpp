#include "DateWords.h"

#include "BidiText.h"
#include "clock/Clock.h"
#include "service/ScheduleRecords.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

using trel::mediadispatch::Clock;
using trel::mediadispatch::Instant;
using trel::mediadispatch::kDateFormat;

namespace trel::desktop {

QString dateText(const QDate& date)
{
    return leftToRight(date.toString(kDateFormat));
}

QString dayText(const QDate& date)
{
    return leftToRight(date.toString(QStringLiteral("MM.dd")));
}

QString weekdayText(const QDate& date, const QLocale& locale)
{
    return QCoreApplication::translate("DateWords", "%1, %2", "day of the week and date")
        .arg(locale.standaloneDayName(date.dayOfWeek()), dateText(date));
}

QString dateAndTimeText(const QDateTime& moment)
{
    return leftToRight(moment.toString(kDateFormat + QLatin1String(" hh:mm")));
}

QString momentText(const QString& time, const QDate& date, const QDate& today)
{
    return leftToRight(date == today ? time : date.toString(kDateFormat) + QLatin1Char(' ') + time);
}

QString momentText(Instant moment)
{
    const QDateTime then = QDateTime::fromMSecsSinceEpoch(moment, Clock::current().zone());
    return momentText(then.toString(QStringLiteral("hh:mm")), then.date(),
                      Clock::current().today());
}

} // namespace trel::desktop
