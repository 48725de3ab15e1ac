#include "service/TimeText.h"

#include "service/ScheduleRecords.h"

#include <QString>

namespace trel::mediadispatch {

namespace {

constexpr std::size_t kTimeLength = 8;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool hasExactFormat(const std::string& text)
{
    return text.size() == kTimeLength && isDigit(text[0]) && isDigit(text[1]) && text[2] == ':' &&
           isDigit(text[3]) && isDigit(text[4]) && text[5] == ':' && isDigit(text[6]) &&
           isDigit(text[7]);
}

int twoDigits(const std::string& text, std::size_t position)
{
    return (text[position] - '0') * 10 + (text[position + 1] - '0');
}

void putTwoDigits(std::string& text, std::size_t position, int number)
{
    text[position] = static_cast<char>('0' + number / 10);
    text[position + 1] = static_cast<char>('0' + number % 10);
}

} // namespace

QTime timeFromText(const std::string& text)
{
    // The general reader costs microseconds, and a conflict pass reads every plan of a card.
    if (hasExactFormat(text)) {
        const QTime time(twoDigits(text, 0), twoDigits(text, 3), twoDigits(text, 6));
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
