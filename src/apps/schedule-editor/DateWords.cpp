#include "DateWords.h"

#include "BidiText.h"
#include "service/ScheduleRecords.h"

#include <QDateTime>

using trel::mediadispatch::kDateFormat;

namespace trel::desktop {

QString dateText(const QDate& date)
{
    return leftToRight(date.toString(kDateFormat));
}

QString dateAndTimeText(const QDateTime& moment)
{
    return leftToRight(moment.toString(kDateFormat + QLatin1String(" hh:mm")));
}

} // namespace trel::desktop
