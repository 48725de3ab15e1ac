#include "ScheduleInEffect.h"

namespace trel::mediadispatch {

void ScheduleInEffect::start(const TaskMap& tasks)
{
    m_tasks = tasks;
    m_insertion.reset();
    m_running = true;
}

void ScheduleInEffect::stop()
{
    m_tasks.clear();
    m_insertion.reset();
    m_running = false;
}

PlayPlan ScheduleInEffect::plan(int taskId, int planId, int& index) const
{
    PlayPlan found = findPlan(m_tasks, taskId, planId, index);
    if (m_insertion && m_insertion->taskId == taskId && m_insertion->planId == planId) {
        return m_insertion->plan;
    }
    return found;
}

void ScheduleInEffect::insert(int taskId, int planId, const PlayPlan& plan, bool isDelayed)
{
    int index = -1;
    findPlan(m_tasks, taskId, planId, index);
    if (index >= 0) {
        m_insertion = PlanInsertion{taskId, planId, plan, isDelayed, {}};
    }
}

void ScheduleInEffect::setOriginal(const std::vector<struProgInfo>& programs)
{
    if (m_insertion) {
        m_insertion->original = programs;
    }
}

} // namespace trel::mediadispatch
