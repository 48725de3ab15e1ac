#include "PlanRowTexts.h"

#include "PlanLabels.h"
#include "ScheduleText.h"

#include <QStringList>

#include <vector>

namespace trel::mediadispatch {

PlanRowTexts::PlanRowTexts(Use use)
    : plan(scheduleText("zhPlanTimeStr"))
    , mode(scheduleText("zhModeStr"))
    , from(scheduleText("zhFromStr"))
    , to(scheduleText("zhToStr"))
    , frequency(scheduleText("zhfrequencyStr"))
    , date(scheduleText("szDateStr"))
    , endAction(scheduleText("zhEndActionStr"))
    , modes{modeText(TimeMode), modeText(FrequencyMode)}
    , endActions{endActionLabel(BlackScreen), endActionLabel(FreezeCurrentFrame)}
    , copy(scheduleText("zhCreateCopy"))
    , remove(scheduleText("szDeleteStr"))
    , choosePrograms(scheduleText("zhSelectProgramsStr"))
    , m_use(use)
{
    for (int number = EveryDay; number < WeekDayCount; ++number) {
        weekDays.at(static_cast<std::size_t>(number)) = weekdayText(number);
    }
}

QString PlanRowTexts::title(int planId) const
{
    const QString format =
        m_use == NewRows ? QStringLiteral("  %1%2:") : QStringLiteral("   %1%2:");
    return format.arg(plan, QString::number(planId));
}

const QString& PlanRowTexts::day(int number) const
{
    const bool isDay = number >= EveryDay && number < WeekDayCount;
    return weekDays.at(static_cast<std::size_t>(isDay ? number : EveryDay));
}

QString PlanRowTexts::days(const std::string& weeks) const
{
    std::vector<int> numbers;
    parseWeeks(weeks, numbers);
    QStringList labels;
    labels.reserve(static_cast<int>(numbers.size()));
    for (const int number : numbers) {
        labels.append(day(number));
    }
    return labels.join(QLatin1Char(','));
}

} // namespace trel::mediadispatch
