#include "ProgramInsertion.h"

#include "service/scheduleManage.h"

#include <utility>

namespace trel::mediadispatch {

namespace {

scheduleManage& service()
{
    return scheduleManage::getInstance();
}

bool isNoDuration(int progIndex)
{
    return service().isNoDurationType(progIndex);
}

} // namespace

std::optional<ProgramInsertion> ProgramInsertion::prepare(int taskId, int planId)
{
    int index = -1;
    PlayPlan plan = service().getPlan(taskId, planId, index);
    if (index < 0) {
        return std::nullopt;
    }
    const PlayTask task = service().getTask(taskId);
    const DataCompareType lastDay = service().comparisionDate(task.endDate);
    const bool endPassed = service().comparisonTime(plan.endTime);
    return ProgramInsertion(taskId, planId, std::move(plan), insertionScope(lastDay, endPassed));
}

ProgramInsertion::ProgramInsertion(int taskId, int planId, PlayPlan plan, InsertionScope scope)
    : m_taskId(taskId)
    , m_planId(planId)
    , m_plan(std::move(plan))
    , m_scope(scope)
{}

void ProgramInsertion::setPrograms(const std::vector<struProgInfo>& list, struProgInfo target,
                                   int row)
{
    target.playCount = 1;
    std::vector<struProgInfo> programs;
    if (m_scope == InsertionScope::OneProgram) {
        programs.push_back(std::move(target));
    } else {
        programs = listFromRow(list, target, row);
        m_hasNoDuration = containsNoDuration(programs, isNoDuration);
        m_plan.hasNoDuration = m_hasNoDuration;
    }
    m_plan = insertedPlan(std::move(m_plan), std::move(programs), m_scope);
}

void ProgramInsertion::handOver(bool delayed) const
{
    if (delayed) {
        service().setInsertPlanTaskDelayExcute(m_taskId, m_planId, m_plan);
    } else {
        service().setInsertPlanTask(m_taskId, m_planId, m_plan, true);
    }
}

} // namespace trel::mediadispatch
