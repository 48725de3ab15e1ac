#include "ProgramPicking.h"

#include "ProgramNames.h"
#include "service/scheduleManage.h"

namespace trel::mediadispatch {

ProgramPicking::ProgramPicking(PlayTask*, int taskId, int planId, QWidget*, bool isNewPlan)
{
    if (!isNewPlan) {
        int index = -1;
        const PlayPlan plan = scheduleManage::getInstance().getPlan(taskId, planId, index);
        m_programs = plan.programs;
        m_hasNoDuration = plan.hasNoDuration;
    }
}

int ProgramPicking::execChoose()
{
    constexpr int notConfirmed = 2;
    return notConfirmed;
}

QString ProgramPicking::getSelectedProgramText() const
{
    return programNames(m_programs);
}

bool ProgramPicking::hasNoDuration() const
{
    return m_hasNoDuration;
}

std::vector<struProgInfo> ProgramPicking::getSelectedPrograms() const
{
    return m_programs;
}

} // namespace trel::mediadispatch
