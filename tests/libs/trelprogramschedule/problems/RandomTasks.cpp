#include "RandomTasks.h"

#include "../../trelprogramschedulewidgets/service/Pick.h"
#include "../dispatch/ScheduleWriting.h"

#include "service/DateText.h"
#include "service/TimeText.h"

using namespace trel::mediadispatch;

namespace {

std::string randomTime(std::mt19937& random)
{
    if (random() % 30 == 0) {
        return pickText(random, {"", "x", "24:00:00"});
    }
    if (random() % 12 == 0) {
        return kDayEnd;
    }
    return timeToText(QTime(0, 0).addSecs(static_cast<int>(random() % 96) * 900));
}

std::string randomWeeks(std::mt19937& random)
{
    return pickText(random,
                    {"", "0", "0", "1", "2,3", "6,7", "1,2,3,4,5", "7", "8", "x", "5,8", "3,1"});
}

PlayPlan randomPlan(std::mt19937& random, int planId)
{
    PlayPlan plan;
    plan.id = planId;
    plan.mode = pick(random, {0, 0, 0, 1, 1, 2});
    plan.startTime = randomTime(random);
    plan.endTime = randomTime(random);
    if (random() % 5 != 0 && plan.endTime < plan.startTime) {
        std::swap(plan.startTime, plan.endTime);
    }
    plan.times = pick(random, {1, 1, 2, 3, 9, 0});
    plan.weeks = randomWeeks(random);
    plan.endAction = pick(random, {0, 0, 1, 2});
    for (std::size_t left = random() % 4; left > 0; --left) {
        struProgInfo entry;
        entry.progIndex =
            programOf(QLatin1Char(pick(random, {'H', 'H', 'H', 'I', 'N', 'U', 'Z', 'Q'})));
        entry.isInvalid = random() % 12 == 0;
        entry.playCount = pick(random, {1, 1, 2, 5, 0});
        plan.programs.push_back(entry);
    }
    return plan;
}

} // namespace

PlayTask randomTask(std::mt19937& random, int taskId)
{
    PlayTask task;
    task.id = taskId;
    const QDate start = QDate(2027, 3, 1).addDays(static_cast<int>(random() % 28));
    task.startDate = dateToText(start);
    task.endDate = dateToText(start.addDays(static_cast<int>(random() % 29) - 1));
    if (random() % 25 == 0) {
        task.endDate = pickText(random, {"", "2027.13.01", "soon"});
    }
    for (int id = 1 + static_cast<int>(random() % 6); id > 0; --id) {
        task.plans.push_back(randomPlan(random, id));
    }
    return task;
}
