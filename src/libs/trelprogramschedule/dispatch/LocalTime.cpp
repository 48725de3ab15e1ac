#include "LocalTime.h"

namespace trel::mediadispatch {

namespace {

constexpr qint64 kMillisecondsPerSecond = 1000;
constexpr qint64 kDaysPerWeek = 7;

const QDate kFirstDay(1970, 1, 1);

/// The remainder from 0 on, also for numbers below it.
qint64 remainder(qint64 number, qint64 divisor)
{
    const qint64 rest = number % divisor;
    return rest < 0 ? rest + divisor : rest;
}

} // namespace

DayNumber dayNumber(const QDate& date)
{
    return kFirstDay.daysTo(date);
}

QDate dateOf(DayNumber day)
{
    return kFirstDay.addDays(day);
}

DayNumber dayOf(LocalTime time)
{
    return (time - remainder(time, kMillisecondsPerDay)) / kMillisecondsPerDay;
}

LocalTime timeOn(DayNumber day, int secondOfDay)
{
    return day * kMillisecondsPerDay + secondOfDay * kMillisecondsPerSecond;
}

int weekdayOf(DayNumber day)
{
    // The first of all days was a Thursday.
    return static_cast<int>(remainder(day + 3, kDaysPerWeek)) + 1;
}

} // namespace trel::mediadispatch
