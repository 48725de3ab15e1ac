#include "Samples.h"

#include "service/DateText.h"
#include "service/TimeText.h"

#include <QDate>
#include <QTime>

#include <random>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr int kProgramsOfPlan = 5;
constexpr int kProgramsInUse = 1000;
constexpr int kPlanSeconds = 60;
constexpr int kDaySeconds = 86400;

std::string programName(int index)
{
    return "Programme " + std::to_string(index);
}

int below(std::mt19937& random, int limit)
{
    return static_cast<int>(random() % static_cast<unsigned>(limit));
}

PlayPlan samplePlan(int id, PlanMode mode, std::mt19937& random)
{
    PlayPlan plan;
    plan.id = id;
    plan.mode = mode;
    const QTime start = QTime(0, 0).addSecs(below(random, kDaySeconds - 2 * kPlanSeconds));
    plan.startTime = timeToText(start);
    plan.endTime = timeToText(start.addSecs(kPlanSeconds));
    plan.times = 1;
    const int day = below(random, Sunday);
    plan.weeks = std::to_string(Monday + day);
    if (id % 2 == 0) {
        plan.weeks += ',' + std::to_string(Monday + (day + 3) % Sunday);
    }
    plan.endAction = id % 2 == 0 ? BlackScreen : FreezeCurrentFrame;
    plan.serviceTime = kDayEnd;
    for (int i = 0; i < kProgramsOfPlan; ++i) {
        const int index = 1 + below(random, kProgramsInUse);
        plan.programs.push_back({index, false, programName(index), 1});
    }
    return plan;
}

} // namespace

ProgramMap samplePrograms(int count)
{
    ProgramMap programs;
    for (int index = 1; index <= count; ++index) {
        ProgramIten program;
        program.progIndex = index;
        program.progName = programName(index);
        program.mediaPath = "/srv/media/" + program.progName + ".mp4";
        program.durationMs = 1000.0 * kPlanSeconds / kProgramsOfPlan;
        program.kind = ProgramKind::Video;
        programs.emplace_hint(programs.end(), index, std::move(program));
    }
    return programs;
}

PlayTask sampleTask(int id, int plans, PlanMode mode)
{
    std::mt19937 random(static_cast<unsigned>(id));
    PlayTask task;
    task.id = id;
    const QDate day = QDate(2024, 1, 1).addDays(id);
    task.startDate = dateToText(day);
    task.endDate = task.startDate;
    for (int plan = 1; plan <= plans; ++plan) {
        task.plans.push_back(samplePlan(plan, mode, random));
    }
    return task;
}

TaskMap sampleTasks(int count, int plans)
{
    TaskMap tasks;
    for (int id = 1; id <= count; ++id) {
        tasks.emplace_hint(tasks.end(), id, sampleTask(id, plans, TimeMode));
    }
    return tasks;
}

} // namespace bench
