#pragma once

#include "service/ScheduleRecords.h"
#include "week/WeekPair.h"

#include <map>

namespace trel::desktop::changes {

/// Two states of a schedule, side by side: the same week of both.
class ChangedWeeks : public week::WeekPair
{
    Q_OBJECT

public:
    /// One of the two, with its name.
    struct State
    {
        QString name;
        std::map<int, mediadispatch::PlayTask> tasks;
    };

    /// Begins with a week in which a task that differs is valid: this one, or the nearest that
    /// comes, or else the last that was. The language is that of the locale.
    ChangedWeeks(const State& former, const State& later, const look::ThemeColours& colours,
                 const QLocale& locale, QWidget* parent = nullptr);
};

/// The day nearest to one, itself first and then those that come, on which a task is valid that is
/// not the same in both; the day itself where there is none.
QDate nearestChangedDay(const std::map<int, mediadispatch::PlayTask>& former,
                        const std::map<int, mediadispatch::PlayTask>& later, const QDate& day);

} // namespace trel::desktop::changes
