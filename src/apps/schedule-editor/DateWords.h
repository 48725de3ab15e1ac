#pragma once

#include <QString>

class QDate;
class QDateTime;

namespace trel::desktop {

/// A date as the editor writes it: the same in all languages, and read from the left.
QString dateText(const QDate& date);

/// A moment by its own clock, to the minute, with such a date.
QString dateAndTimeText(const QDateTime& moment);

} // namespace trel::desktop
