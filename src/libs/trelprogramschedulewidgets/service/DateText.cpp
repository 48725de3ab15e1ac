#include "service/DateText.h"

#include "service/ScheduleRecords.h"

#include <QString>

namespace trel::mediadispatch {

QDate dateFromText(const std::string& text)
{
    return QDate::fromString(QString::fromStdString(text), kDateFormat);
}

std::string dateToText(const QDate& date)
{
    return date.toString(kDateFormat).toStdString();
}

} // namespace trel::mediadispatch
