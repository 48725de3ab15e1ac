#include "effect/CutIn.h"

#include "trelprogramschedule/dispatch/ScreenTimeline.h"

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// What would be on screen when the last of the insertions begins, had it not come.
ScreenState withoutLast(const ScreenTimeline& timeline, ScreenInsertions insertions)
{
    const Instant begins = insertions.back().begins;
    insertions.pop_back();
    // One that gave way to it ends where it began.
    if (!insertions.empty() && insertions.back().ends == begins) {
        insertions.back().ends = kNever;
    }
    return timeline.at(begins, insertions);
}

} // namespace

std::optional<CutIn> cutInAt(Instant moment, const ScreenTimeline& timeline,
                             const ScreenInsertions& insertions)
{
    if (insertions.empty() || insertions.back().begins >= insertions.back().ends) {
        return std::nullopt;
    }
    const ScreenInsertion& last = insertions.back();
    const bool isWaiting = last.isWaitingAt(moment);
    if (!isWaiting && !last.hasScreenAt(moment)) {
        return std::nullopt;
    }
    CutIn cutIn;
    cutIn.begins = last.begins;
    cutIn.ends = last.ends;
    cutIn.first = timeline.at(last.begins, insertions);
    if (last.ends != kNever) {
        cutIn.after = timeline.at(last.ends, insertions);
    }
    if (isWaiting) {
        cutIn.kind = CutIn::Kind::Waiting;
        cutIn.before = timeline.at(last.begins - 1, insertions);
        return cutIn;
    }
    cutIn.before = withoutLast(timeline, insertions);
    const bool isCutOff = cutIn.before.isPlaying() && cutIn.before.since < last.begins;
    cutIn.kind = isCutOff ? CutIn::Kind::CutOff : CutIn::Kind::Begun;
    return cutIn;
}

} // namespace trel::desktop
