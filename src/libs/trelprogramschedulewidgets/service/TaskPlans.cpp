#include "service/TaskPlans.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

auto hasId(int id)
{
    return [id](const PlayPlan& plan) { return plan.id == id; };
}

} // namespace

PlayPlan* planAt(PlayTask& task, int index)
{
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < task.plans.size() ? &task.plans[place] : nullptr;
}

PlayPlan* firstPlanWithId(PlayTask& task, int id)
{
    const auto plan = std::find_if(task.plans.begin(), task.plans.end(), hasId(id));
    return plan == task.plans.end() ? nullptr : &*plan;
}

const PlayPlan* lastPlanWithId(const PlayTask& task, int id)
{
    const auto plan = std::find_if(task.plans.rbegin(), task.plans.rend(), hasId(id));
    return plan == task.plans.rend() ? nullptr : &*plan;
}

void removeFirstPlanWithId(PlayTask& task, int id)
{
    const auto plan = std::find_if(task.plans.begin(), task.plans.end(), hasId(id));
    if (plan != task.plans.end()) {
        task.plans.erase(plan);
    }
}

} // namespace trel::mediadispatch
