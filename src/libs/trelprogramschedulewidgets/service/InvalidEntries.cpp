#include "service/InvalidEntries.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr int kFirstInvalidReadBack = kInvalidProgIndex - 1;

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

} // namespace trel::mediadispatch
