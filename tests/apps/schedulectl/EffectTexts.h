#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QString>

#include <map>

/// What a screen shows, why and for how long, as several programs have to say it alike.
inline QString stateText(const trel::mediadispatch::ScreenState& state)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(static_cast<int>(state.picture))
        .arg(static_cast<int>(state.reason))
        .arg(state.progIndex)
        .arg(state.until);
}

/// A schedule that tells which one it is in each of its plans.
inline std::map<int, trel::mediadispatch::PlayTask> generationTasks(int generation)
{
    std::map<int, trel::mediadispatch::PlayTask> tasks;
    for (int id = 1; id <= 20; ++id) {
        trel::mediadispatch::PlayTask& task = tasks[id];
        task.id = id;
        task.startDate = "2024.01.01";
        task.endDate = "2044.12.31";
        for (int planId = 1; planId <= 5; ++planId) {
            trel::mediadispatch::PlayPlan plan;
            plan.id = planId;
            plan.startTime = "00:00:00";
            plan.endTime = "23:59:59";
            plan.serviceCount = generation;
            plan.programs = {{1, false, "A", 1}, {2, false, "B", 2}};
            task.plans.push_back(plan);
        }
    }
    return tasks;
}

inline trel::mediadispatch::PlayPlan generationInsertion(int generation)
{
    trel::mediadispatch::PlayPlan plan = generationTasks(generation).at(1).plans.front();
    plan.serviceFlagA = true;
    return plan;
}
