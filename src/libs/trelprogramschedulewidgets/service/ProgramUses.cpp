#include "service/ProgramUses.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

bool refersToProgram(const struProgInfo& entry)
{
    return !entry.isInvalid && entry.progIndex >= 0 && entry.progIndex < kInvalidProgIndex;
}

void makeUnique(std::vector<int>& numbers)
{
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

ProgramUse useOf(const PlayPlan& plan, const std::vector<int>& wanted)
{
    ProgramUse use;
    use.planId = plan.id;
    use.isAll = true;
    for (const struProgInfo& entry : plan.programs) {
        if (!refersToProgram(entry)) {
            continue;
        }
        if (std::binary_search(wanted.begin(), wanted.end(), entry.progIndex)) {
            use.programs.push_back(entry.progIndex);
        } else {
            use.isAll = false;
        }
    }
    makeUnique(use.programs);
    return use;
}

} // namespace

std::vector<ProgramUse> usesOf(const std::map<int, PlayTask>& tasks, std::vector<int> progIndexes)
{
    makeUnique(progIndexes);
    std::vector<ProgramUse> uses;
    for (const auto& [id, task] : tasks) {
        for (std::size_t row = 0; row < task.plans.size(); ++row) {
            ProgramUse use = useOf(task.plans[row], progIndexes);
            if (!use.programs.empty()) {
                use.taskId = id;
                use.row = row;
                uses.push_back(std::move(use));
            }
        }
    }
    return uses;
}

std::vector<int> programsInUse(const std::map<int, PlayTask>& tasks)
{
    std::vector<int> used;
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                if (refersToProgram(entry)) {
                    used.push_back(entry.progIndex);
                }
            }
        }
    }
    makeUnique(used);
    return used;
}

} // namespace trel::mediadispatch
