#include "service/TimeText.h"

#include "service/FixedText.h"
#include "service/ScheduleRecords.h"

#include <QString>

namespace trel::mediadispatch {

namespace {

void putTwoDigits(std::string& text, std::size_t position, int number)
{
    text[position] = static_cast<char>('0' + number / 10);
    text[position + 1] = static_cast<char>('0' + number % 10);
}

} // namespace

QTime timeFromText(const std::string& text)
{
    // The general reader costs microseconds, and a conflict pass reads every plan of a card.
    if (hasForm(text, "00:00:00")) {
        const QTime time(digitsAt(text, 0, 2), digitsAt(text, 3, 2), digitsAt(text, 6, 2));
        if (time.isValid()) {
            return time;
        }
    }
    return QTime::fromString(QString::fromStdString(text), QString(kTimeFormat));
}

std::string timeToText(const QTime& time)
{
    if (!time.isValid()) {
        return {};
    }
    std::string text(kDayStart);
    putTwoDigits(text, 0, time.hour());
    putTwoDigits(text, 3, time.minute());
    putTwoDigits(text, 6, time.second());
    return text;
}

} // namespace trel::mediadispatch
