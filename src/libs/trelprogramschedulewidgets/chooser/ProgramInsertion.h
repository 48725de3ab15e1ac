#pragma once

#include "service/PlanInsertion.h"
#include "service/ScheduleRecords.h"

#include <optional>
#include <vector>

namespace trel::mediadispatch {

/// One insertion of a program into the plan in use, made of a copy of that plan: prepared, then
/// given what it plays, then handed over. The plan in the service stays as it is.
class ProgramInsertion
{
public:
    /// Asks the service for the plan and for what of it may play now. Nothing when there is no such
    /// plan.
    static std::optional<ProgramInsertion> prepare(int taskId, int planId);

    /// Whether nothing may play, as the plan will not run again. Then it ends here.
    bool isRefused() const { return m_scope == InsertionScope::Refused; }
    /// Plays the whole list from this row on when it may play whole, else target alone, once.
    /// target is the entry at the row. Its play count is not carried over: a list that holds no
    /// entry like target with a count of 1 keeps its order.
    void setPrograms(const std::vector<struProgInfo>& list, struProgInfo target, int row);
    /// Whether a program without a length of its own is among the list that plays. Never said of a
    /// program that plays alone.
    bool hasNoDuration() const { return m_hasNoDuration; }
    /// Gives the service the plan, to be applied at once or with delay.
    void handOver(bool delayed) const;

private:
    ProgramInsertion(int taskId, int planId, PlayPlan plan, InsertionScope scope);

    int m_taskId;
    int m_planId;
    PlayPlan m_plan;
    InsertionScope m_scope;
    bool m_hasNoDuration = false;
};

} // namespace trel::mediadispatch
