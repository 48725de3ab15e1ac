#pragma once

#include "service/ScheduleRecords.h"

#include <QString>

#include <vector>

class QWidget;

namespace trel::mediadispatch {

/// One choosing of a plan's programs, from opening the window to its answer. Lives for one use.
class ProgramPicking
{
public:
    /// task is refreshed when an existing plan has been stored; it must outlive this object.
    ProgramPicking(PlayTask* task, int taskId, int planId, QWidget* parent, bool isNewPlan);

    /// Runs the window; 0 when the operator has confirmed.
    int execChoose();
    /// The names of the plan's programs, before or after the window has run.
    QString getSelectedProgramText() const;
    bool hasNoDuration() const;
    std::vector<struProgInfo> getSelectedPrograms() const;

private:
    std::vector<struProgInfo> m_programs;
    bool m_hasNoDuration = false;
};

} // namespace trel::mediadispatch
