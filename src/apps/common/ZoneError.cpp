#include "common/ZoneError.h"

#include "clock/Clock.h"

using namespace trel::mediadispatch;

namespace trel::hosts {

QString ZoneError::sentence()
{
    return Clock::current().zone().isValid()
               ? QString()
               : tr("The system knows no time zone of the name “%1”, so that the local time is not "
                    "known.")
                     .arg(QString::fromLocal8Bit(QTimeZone::systemTimeZoneId()));
}

} // namespace trel::hosts
