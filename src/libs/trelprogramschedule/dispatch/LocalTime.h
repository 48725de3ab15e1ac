#pragma once

#include "trelprogramschedule_export.h"

#include <QDate>

namespace trel::mediadispatch {

/// What a local clock shows, in milliseconds since its own 1970-01-01 00:00:00. A clock that is
/// changed leaves times out, or shows them twice.
using LocalTime = qint64;

/// A day of the local calendar, counted from 1970-01-01.
using DayNumber = qint64;

inline constexpr qint64 kMillisecondsPerDay = 86'400'000;

TRELPROGRAMSCHEDULE_EXPORT DayNumber dayNumber(const QDate& date);
TRELPROGRAMSCHEDULE_EXPORT DayNumber dayOf(LocalTime time);
TRELPROGRAMSCHEDULE_EXPORT LocalTime timeOn(DayNumber day, int secondOfDay);
QDate dateOf(DayNumber day);
/// 1 for Monday to 7 for Sunday.
int weekdayOf(DayNumber day);

} // namespace trel::mediadispatch
