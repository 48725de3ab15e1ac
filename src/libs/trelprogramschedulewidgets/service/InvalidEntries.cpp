#include "service/InvalidEntries.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr int kFirstInvalidReadBack = kInvalidProgIndex - 1;

bool isLost(const struProgInfo& entry, const std::map<int, ProgramIten>& catalogue)
{
    return entry.progIndex < kInvalidProgIndex && catalogue.count(entry.progIndex) == 0;
}

} // namespace

bool buryInvalidEntry(struProgInfo& entry, const std::string& suffix)
{
    if (!entry.isInvalid || entry.progIndex >= kInvalidProgIndex) {
        return false;
    }
    entry.progName += suffix;
    entry.progIndex = kInvalidProgIndex;
    return true;
}

bool isInvalidReadBack(int progIndex, bool programIsNull)
{
    return programIsNull && progIndex >= kFirstInvalidReadBack;
}

bool holdsAsInvalid(const PlayPlan& plan, int progIndex)
{
    const auto last = std::find_if(
        plan.programs.rbegin(), plan.programs.rend(),
        [progIndex](const struProgInfo& entry) { return entry.progIndex == progIndex; });
    return last != plan.programs.rend() && last->isInvalid;
}

void markLostEntries(std::map<int, PlayTask>& tasks, const std::map<int, ProgramIten>& catalogue)
{
    for (auto& [id, task] : tasks) {
        for (PlayPlan& plan : task.plans) {
            for (struProgInfo& entry : plan.programs) {
                entry.isInvalid = entry.isInvalid || isLost(entry, catalogue);
            }
        }
    }
}

std::map<int, std::string> lostPrograms(const std::map<int, PlayTask>& tasks,
                                        const std::map<int, ProgramIten>& catalogue)
{
    std::map<int, std::string> lost;
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                if (isLost(entry, catalogue)) {
                    lost.emplace(entry.progIndex, entry.progName);
                }
            }
        }
    }
    return lost;
}

} // namespace trel::mediadispatch
