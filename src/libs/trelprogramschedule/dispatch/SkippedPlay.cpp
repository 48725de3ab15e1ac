#include "SkippedPlay.h"

#include "service/PlanInsertion.h"

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// The most plays that one entry may have.
constexpr int kMostPlays = 999;

bool isSameButPlays(struProgInfo one, const struProgInfo& other)
{
    one.playCount = other.playCount;
    return one == other;
}

/// An entry that is skipped play by play would leave one part of itself behind for each.
void append(std::vector<struProgInfo>& list, const struProgInfo& entry)
{
    if (!list.empty() && isSameButPlays(list.back(), entry) &&
        list.back().playCount <= kMostPlays - entry.playCount) {
        list.back().playCount += entry.playCount;
    } else {
        list.push_back(entry);
    }
}

} // namespace

std::vector<struProgInfo> listAfterPlay(std::vector<struProgInfo> list, int entry, int play)
{
    if (entry < 0 || entry >= static_cast<int>(list.size())) {
        return list;
    }
    std::rotate(list.begin(), list.begin() + entry, list.end());
    struProgInfo begun = list.front();
    begun.playCount = std::min(std::max(play, 0) + 1, begun.playCount);
    list.front().playCount -= begun.playCount;
    if (list.front().playCount == 0) {
        list.erase(list.begin());
    }
    append(list, begun);
    return list;
}

std::optional<ScreenInsertion> skippedPlay(const ScreenState& state, ScreenInsertion shown)
{
    if (!state.isPlaying() || (state.isInserted() && shown.plan.serviceFlagB)) {
        return std::nullopt;
    }
    ScreenInsertion next;
    next.taskId = shown.taskId;
    next.planId = shown.planId;
    std::vector<struProgInfo> list = listAfterPlay(shown.plan.programs, state.entry, state.play);
    next.plan = insertedPlan(std::move(shown.plan), std::move(list), InsertionScope::WholeList);
    next.original = std::move(shown.original);
    return next;
}

} // namespace trel::mediadispatch
