#include "ScreenDifferences.h"

#include "ScreenTimeline.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

using Tasks = std::map<int, PlayTask>;

struct Span
{
    Instant from;
    Instant to;
    ScreenState state;
};

std::vector<Span> spansOf(const ScreenTimeline& timeline, Instant from, Instant to)
{
    std::vector<Span> spans;
    Instant begin = from;
    timeline.visitSpans(from, to, {}, [&](const ScreenState& state) {
        const Instant end = std::min(state.spanUntil, to);
        if (begin < end) {
            spans.push_back({begin, end, state});
        }
        begin = std::max(begin, end);
        return begin < to;
    });
    return spans;
}

const PlayPlan& planOf(const Tasks& tasks, const ScreenState& state)
{
    return tasks.at(state.taskId).plans[static_cast<std::size_t>(state.planRow)];
}

bool playAlike(const PlayPlan& a, const PlayPlan& b)
{
    return a.mode == b.mode && a.startTime == b.startTime && a.times == b.times &&
           std::equal(a.programs.begin(), a.programs.end(), b.programs.begin(), b.programs.end(),
                      [](const struProgInfo& one, const struProgInfo& other) {
                          return one.progIndex == other.progIndex &&
                                 one.playCount == other.playCount &&
                                 one.isInvalid == other.isInvalid;
                      });
}

bool isSame(const Tasks& former, const ScreenState& before, const Tasks& later,
            const ScreenState& after)
{
    if (hasPlan(before) != hasPlan(after)) {
        return false;
    }
    if (hasPlan(before)) {
        return playAlike(planOf(former, before), planOf(later, after));
    }
    return before.picture == after.picture &&
           (before.picture == ScreenPicture::Black ||
            (before.progIndex == after.progIndex && before.position == after.position));
}

} // namespace

bool hasPlan(const ScreenState& state)
{
    return state.reason == ScreenReason::PlanPlays || state.reason == ScreenReason::PlanRanOut ||
           state.reason == ScreenReason::PlanHasNothing;
}

std::vector<ScreenDifference> screenDifferences(const ScreenSide& former, const ScreenSide& later,
                                                Instant from, Instant to)
{
    const std::vector<Span> before = spansOf(former.timeline, from, to);
    const std::vector<Span> after = spansOf(later.timeline, from, to);
    std::vector<ScreenDifference> found;
    auto one = before.begin();
    auto other = after.begin();
    while (one != before.end() && other != after.end()) {
        const Instant begin = std::max(one->from, other->from);
        const Instant end = std::min(one->to, other->to);
        if (!isSame(former.tasks, one->state, later.tasks, other->state)) {
            found.push_back({begin, end, one->state, other->state});
        }
        // Both may end at once.
        const bool isOneOver = one->to == end;
        const bool isOtherOver = other->to == end;
        one += isOneOver ? 1 : 0;
        other += isOtherOver ? 1 : 0;
    }
    return found;
}

} // namespace trel::mediadispatch
