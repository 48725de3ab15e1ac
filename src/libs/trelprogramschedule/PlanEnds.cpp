#include "PlanEnds.h"

#include "TaskSets.h"
#include "catalogue/ProgramCatalogue.h"
#include "service/PlanTiming.h"

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

bool followsFromLengths(const PlayPlan& plan, const ProgramCatalogue& catalogue)
{
    return plan.mode == FrequencyMode && std::any_of(plan.programs.begin(), plan.programs.end(),
                                                     [&catalogue](const struProgInfo& entry) {
                                                         return catalogue.isKnown(entry.progIndex);
                                                     });
}

} // namespace

bool updatePlanEnd(PlayPlan& plan, const ProgramCatalogue& catalogue)
{
    if (!followsFromLengths(plan, catalogue)) {
        return false;
    }
    std::string end = plannedEnd(plan, catalogue.programs(), [&catalogue](int progIndex) {
        return catalogue.hasNoDuration(progIndex);
    });
    // Empty: the start does not parse.
    if (end.empty() || end == plan.endTime) {
        return false;
    }
    plan.endTime = std::move(end);
    return true;
}

bool updatePlanEnds(PlayTask& task, const ProgramCatalogue& catalogue)
{
    bool isAnother = false;
    for (PlayPlan& plan : task.plans) {
        isAnother = updatePlanEnd(plan, catalogue) || isAnother;
    }
    return isAnother;
}

void bringUpToDate(PlayTask& task, const ProgramCatalogue& catalogue)
{
    updatePlanEnds(task, catalogue);
    markLostEntries(task, [&catalogue](int progIndex) { return catalogue.contains(progIndex); });
}

} // namespace trel::mediadispatch
