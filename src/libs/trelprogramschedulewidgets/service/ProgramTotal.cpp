#include "service/ProgramTotal.h"

#include <QTime>

#include <algorithm>

namespace trel::mediadispatch {

bool exceedsDay(double totalMs)
{
    return totalMs > kDayMs;
}

QString totalText(double totalMs)
{
    // Held to values that an int can take; those at the bounds are no time of day.
    const double bounded = std::clamp(totalMs, -1.0, kDayMs);
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(bounded))
        .toString(QStringLiteral("hh:mm:ss.zzz"));
}

} // namespace trel::mediadispatch
