#include "PlanLabels.h"

#include "ScheduleText.h"
#include "service/ScheduleRecords.h"
#include "service/WeekDays.h"

#include <array>
#include <vector>

namespace trel::mediadispatch {

namespace {

constexpr std::array<const char*, WeekDayCount> kWeekDayKeys = {
    "szEveryDayStr", "szMondayStr", "szTuesdayStr",  "szWednesdayStr",
    "szThursdayStr", "szFridayStr", "szSaturdayStr", "szSundayStr",
};

constexpr QLatin1Char kLabelSeparator(',');

} // namespace

QString modeText(int mode)
{
    return scheduleText(mode == TimeMode ? "zhTimeStr" : "zhfrequencyStr");
}

QString endActionLabel(int endAction)
{
    return scheduleText(endAction == BlackScreen ? "zhBlackScreen" : "zhFreezeCurrentFrame");
}

QString weekdayText(int number)
{
    const bool isDay = number >= EveryDay && number < WeekDayCount;
    return scheduleText(kWeekDayKeys.at(static_cast<std::size_t>(isDay ? number : EveryDay)));
}

int weekdayNumber(const QString& text)
{
    for (int number = EveryDay; number < WeekDayCount; ++number) {
        if (text == weekdayText(number)) {
            return number;
        }
    }
    return EveryDay;
}

std::string weeksFromLabels(const QStringList& labels)
{
    QString text = labels.join(kLabelSeparator);
    if (text.isEmpty()) {
        text = weekdayText(EveryDay);
    }
    std::vector<int> numbers;
    for (const QString& label : text.split(kLabelSeparator)) {
        numbers.push_back(weekdayNumber(label));
    }
    return joinWeeks(numbers);
}

} // namespace trel::mediadispatch
