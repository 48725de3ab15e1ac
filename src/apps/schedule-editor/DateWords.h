#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QString>

class QDate;
class QDateTime;
class QLocale;

namespace trel::desktop {

/// A date as the editor writes it: the same in all languages, and read from the left.
QString dateText(const QDate& date);

/// A date without its year, which stands elsewhere, written the same way.
QString dayText(const QDate& date);

/// "Monday, 2024.03.04": the day by its name in the language, with such a date, in the order of the
/// language in use.
QString weekdayText(const QDate& date, const QLocale& locale);

/// A moment by its own clock, to the minute, with such a date.
QString dateAndTimeText(const QDateTime& moment);

/// A time of day, with the date in front of it where that is another than the present one; read
/// from the left.
QString momentText(const QString& time, const QDate& date, const QDate& today);

/// The same of a moment by the clock of this desk, to the minute.
QString momentText(trel::mediadispatch::Instant moment);

} // namespace trel::desktop
