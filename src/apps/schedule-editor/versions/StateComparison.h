#pragma once

#include "follow/NewestWork.h"
#include "follow/ScheduleEdits.h"
#include "service/ScheduleDifferences.h"
#include "trelprogramschedule/dispatch/ScreenDifferences.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "versions/ScheduleState.h"
#include "week/WeekSchedule.h"

#include <QDate>
#include <QString>
#include <QTimeZone>

#include <memory>
#include <vector>

namespace trel::desktop::versions {

/// What is to be compared. Holds all that another thread must not fetch itself.
struct ComparisonQuestion
{
    QString store;
    ScheduleState former;
    ScheduleState later;
    std::shared_ptr<const week::WeekSchedule::Tasks> inEffect; ///< Null where nothing is.
    follow::SharedCatalogue catalogue;                         ///< Never null.
    QTimeZone zone;
    QDate firstDay; ///< Of the week that is compared on the screen.
};

/// A state with what its pictures are made of.
struct ComparedState
{
    ScheduleState state;
    week::WeekSchedule::Tasks tasks;
    week::WeekPicture picture; ///< Of the week that was asked for.
};

/// Two states and in what they differ. Does not change; threads may share it.
struct StateComparison
{
    trel::mediadispatch::StoreResult result; ///< Why one of the two cannot be read.
    ComparedState former;
    ComparedState later;
    follow::SharedCatalogue catalogue;
    std::vector<trel::mediadispatch::ScheduleDifference> differences;
};

/// What differs on the screen in a week.
struct WeekOnScreen
{
    QDate firstDay;
    QTimeZone zone;
    std::vector<trel::mediadispatch::ScreenDifference> stretches;
};

/// Reads both states and compares them. Cancelled, it is not complete. Any thread.
std::shared_ptr<const StateComparison> compareStates(const ComparisonQuestion& question,
                                                     const follow::Cancellation& cancellation);

/// Any thread.
WeekOnScreen compareOnScreen(const StateComparison& states, const QDate& firstDay);

} // namespace trel::desktop::versions
