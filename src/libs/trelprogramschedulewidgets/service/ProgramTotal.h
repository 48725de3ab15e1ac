#pragma once

#include "schedulecontract_export.h"

#include <QString>

namespace trel::mediadispatch {

/// The length of a day in milliseconds.
inline constexpr double kDayMs = 86400000.0;

/// True when a total length, in milliseconds, is longer than a day; a day exactly is not.
SCHEDULECONTRACT_EXPORT bool exceedsDay(double totalMs);

/// A total length, in milliseconds, as "hh:mm:ss.zzz", fractions of a millisecond cut off. It is
/// shown as the time of day that a plan started at midnight would reach, so that a total that does
/// not fit into one day, or is negative, gives an empty text.
SCHEDULECONTRACT_EXPORT QString totalText(double totalMs);

} // namespace trel::mediadispatch
