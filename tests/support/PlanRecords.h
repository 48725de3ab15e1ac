#pragma once

#include "service/ScheduleRecords.h"

#include <QMetaType>

#include <string>
#include <utility>
#include <vector>

// Plans as the tests need them: every field that is not named holds what a new plan holds.

inline trel::mediadispatch::struProgInfo entry(int progIndex, int playCount = 1)
{
    trel::mediadispatch::struProgInfo info;
    info.progIndex = progIndex;
    info.playCount = playCount;
    return info;
}

inline trel::mediadispatch::PlayPlan timePlan(int id, std::string start, std::string end,
                                              std::string weeks = "0")
{
    trel::mediadispatch::PlayPlan plan;
    plan.id = id;
    plan.mode = trel::mediadispatch::TimeMode;
    plan.startTime = std::move(start);
    plan.endTime = std::move(end);
    plan.times = 1;
    plan.weeks = std::move(weeks);
    return plan;
}

/// The stored end is "00:00:00", which no calculation gives, unless one is set.
inline trel::mediadispatch::PlayPlan
frequencyPlan(int id, std::string start, int times,
              std::vector<trel::mediadispatch::struProgInfo> programs, std::string weeks = "0")
{
    trel::mediadispatch::PlayPlan plan =
        timePlan(id, std::move(start), "00:00:00", std::move(weeks));
    plan.mode = trel::mediadispatch::FrequencyMode;
    plan.times = times;
    plan.programs = std::move(programs);
    return plan;
}

inline trel::mediadispatch::PlayTask taskWithPlans(std::vector<trel::mediadispatch::PlayPlan> plans,
                                                   int id = 1)
{
    trel::mediadispatch::PlayTask task;
    task.id = id;
    task.startDate = "2024.03.01";
    task.endDate = "2024.03.31";
    task.plans = std::move(plans);
    return task;
}

Q_DECLARE_METATYPE(trel::mediadispatch::PlayPlan)
Q_DECLARE_METATYPE(trel::mediadispatch::PlayTask)
