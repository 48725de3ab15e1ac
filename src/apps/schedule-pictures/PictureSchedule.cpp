#include "PictureSchedule.h"

#include "service/scheduleManage.h"

using namespace trel::mediadispatch;

namespace trel::pictures {

void addTroubledPlan()
{
    scheduleManage& manager = scheduleManage::getInstance();
    auto tasks = manager.getAllTask();
    if (tasks.empty()) {
        return;
    }
    PlayTask& task = tasks.begin()->second;
    for (PlayPlan& plan : task.plans) {
        if (plan.id != kTroubledPlan) {
            continue;
        }
        struProgInfo invalid;
        invalid.isInvalid = true;
        invalid.progIndex = kInvalidProgIndex;
        invalid.progName = "Summer sale";
        struProgInfo gone;
        gone.progIndex = 999;
        gone.progName = "Old trailer";
        for (struProgInfo& entry : plan.programs) {
            entry.playCount = 999;
        }
        plan.programs.push_back(invalid);
        plan.programs.push_back(gone);
        manager.addPlan(task.id, plan);
    }
}

void overlapTasks()
{
    scheduleManage& manager = scheduleManage::getInstance();
    auto tasks = manager.getAllTask();
    if (tasks.size() < 2) {
        return;
    }
    PlayTask& second = std::next(tasks.begin())->second;
    second.startDate = tasks.begin()->second.endDate;
    manager.addTask(second);
}

} // namespace trel::pictures
