#include "Upcoming.h"

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

bool isOfPlan(const ScreenState& state)
{
    switch (state.reason) {
    case ScreenReason::NothingInEffect:
    case ScreenReason::NoPlanYet:
    case ScreenReason::PlanEnded:
        return false;
    default:
        return true;
    }
}

std::optional<ScreenState> nextPlan(const ScreenTimeline& timeline,
                                    const ScreenInsertions& insertions, Instant moment)
{
    std::optional<ScreenState> found;
    if (moment != kNever) {
        timeline.visitSpans(moment, kNever, insertions, [&found](const ScreenState& state) {
            if (isOfPlan(state)) {
                found = state;
            }
            return !found;
        });
    }
    return found;
}

} // namespace

Upcoming upcoming(const ScreenTimeline& timeline, const ScreenInsertions& insertions,
                  const ScreenState& now)
{
    constexpr int noProgram = -1;
    const SoughtPlay another = {now.isPlaying() ? now.progIndex : noProgram, true};
    return {timeline.nextPlay(now.until, kNever, insertions, another),
            nextPlan(timeline, insertions, now.spanUntil)};
}

} // namespace trel::console
