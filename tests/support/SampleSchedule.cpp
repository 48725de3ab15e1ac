#include "support/SampleSchedule.h"

#include <QString>

#include <limits>

using namespace trel::mediadispatch;

PlayPlan samplePlan(int planId, int programs)
{
    PlayPlan plan;
    plan.id = planId;
    plan.startTime = "08:00:00";
    plan.endTime = "09:00:00";
    plan.times = 1;
    plan.weeks = "1,3,5";
    plan.serviceTime = kDayEnd;
    for (int index = 1; index <= programs; ++index) {
        struProgInfo entry;
        entry.progIndex = index;
        entry.progName = "program " + std::to_string(index);
        plan.programs.push_back(entry);
    }
    return plan;
}

std::map<int, PlayTask> sampleSchedule(int tasks, int plans, int programs, int generation)
{
    std::map<int, PlayTask> schedule;
    for (int taskId = 1; taskId <= tasks; ++taskId) {
        PlayTask task;
        task.id = taskId;
        task.startDate = "2024.01.01";
        task.endDate = "2024.01.31";
        for (int planId = 1; planId <= plans; ++planId) {
            task.plans.push_back(samplePlan(planId, programs));
            task.plans.back().serviceCount = generation;
        }
        schedule.emplace(taskId, task);
    }
    return schedule;
}

std::vector<MediaSource> samplePrograms(int count, int first)
{
    std::vector<MediaSource> sources;
    for (int number = first; number < first + count; ++number) {
        sources.push_back({QStringLiteral("program %1").arg(number),
                           QStringLiteral("udp://239.0.0.1:%1").arg(number), 0.0,
                           ProgramKind::Live});
    }
    return sources;
}

PlayTask everyFieldTask(int taskId)
{
    PlayPlan plan;
    plan.mode = FrequencyMode;
    plan.id = -7;
    plan.startTime = "06:07:08";
    plan.endTime = "09:10:11";
    plan.times = 999;
    plan.serviceCount = std::numeric_limits<std::int32_t>::min();
    plan.endAction = FreezeCurrentFrame;
    plan.serviceList = {std::numeric_limits<std::int64_t>::min(), -1, 0,
                        std::numeric_limits<std::int64_t>::max(), 1LL << 53 | 1};
    plan.isConflict = true;
    plan.weeks = "7,abc,,8";
    plan.serviceTime = "12:13:14";
    plan.hasNoDuration = true;
    plan.serviceFlagA = true;
    plan.serviceFlagB = true;
    plan.programs = {{kInvalidProgIndex, true, "\xe8\x8a\x82\xe7\x9b\xae (gone)", 3},
                     {65535, true, "last \xf0\x9f\x8e\xac 'quoted' \"twice\"", 999},
                     {std::numeric_limits<int>::max(), false, "", 0},
                     {-1, true, "never given", -1}};

    PlayPlan other = plan;
    other.mode = 17;
    other.endAction = -3;
    other.isConflict = false;
    other.serviceFlagB = false;
    other.serviceList.clear();
    other.programs.clear();

    PlayTask task;
    task.id = taskId;
    task.startDate = "2024.02.29";
    task.endDate = "no date";
    task.plans = {plan, other, PlayPlan()};
    return task;
}
