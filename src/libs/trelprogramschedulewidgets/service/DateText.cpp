#include "service/DateText.h"

#include "service/FixedText.h"
#include "service/ScheduleRecords.h"

#include <QString>

namespace trel::mediadispatch {

QDate dateFromText(const std::string& text)
{
    // The general reader costs microseconds, and a start reads the dates of every task.
    if (hasForm(text, "0000.00.00")) {
        const QDate date(digitsAt(text, 0, 4), digitsAt(text, 5, 2), digitsAt(text, 8, 2));
        if (date.isValid()) {
            return date;
        }
    }
    return QDate::fromString(QString::fromStdString(text), kDateFormat);
}

std::string dateToText(const QDate& date)
{
    return date.toString(kDateFormat).toStdString();
}

} // namespace trel::mediadispatch
