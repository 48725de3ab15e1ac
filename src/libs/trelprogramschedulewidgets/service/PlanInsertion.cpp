#include "service/PlanInsertion.h"

#include <algorithm>

namespace trel::mediadispatch {

InsertionScope insertionScope(DataCompareType lastDay, bool endPassed)
{
    if (lastDay == DateBeforeToday || (lastDay == DateIsToday && endPassed)) {
        return InsertionScope::Refused;
    }
    if (lastDay == DateAfterToday && endPassed) {
        return InsertionScope::OneProgram;
    }
    return InsertionScope::WholeList;
}

std::vector<struProgInfo> listFromRow(std::vector<struProgInfo> list, const struProgInfo& target,
                                      int row)
{
    const bool held = std::find(list.begin(), list.end(), target) != list.end();
    if (held && row > 0 && row < static_cast<int>(list.size())) {
        std::rotate(list.begin(), list.begin() + row, list.end());
    }
    return list;
}

PlayPlan insertedPlan(PlayPlan plan, std::vector<struProgInfo> programs, InsertionScope scope)
{
    plan.serviceList.clear();
    plan.programs = std::move(programs);
    plan.endAction = FreezeCurrentFrame;
    plan.serviceFlagA = true;
    plan.serviceFlagB = scope == InsertionScope::OneProgram;
    return plan;
}

bool containsNoDuration(const std::vector<struProgInfo>& entries, const NoDurationTest& test)
{
    return std::any_of(entries.begin(), entries.end(),
                       [&](const struProgInfo& entry) { return test(entry.progIndex); });
}

} // namespace trel::mediadispatch
