#include "ScreenShown.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr Microseconds kPerMillisecond = 1000;

ScreenReason reasonOf(ListMoment::Kind kind, ListOwner owner)
{
    const bool isPlan = owner == ListOwner::Plan;
    switch (kind) {
    case ListMoment::Kind::Nothing:
        return isPlan ? ScreenReason::PlanHasNothing : ScreenReason::InsertionHasNothing;
    case ListMoment::Kind::Playing:
        return isPlan ? ScreenReason::PlanPlays : ScreenReason::InsertionPlays;
    case ListMoment::Kind::RanOut:
        break;
    }
    return isPlan ? ScreenReason::PlanRanOut : ScreenReason::InsertionRanOut;
}

ScreenPicture pictureOf(ListMoment::Kind kind, bool freezes)
{
    switch (kind) {
    case ListMoment::Kind::Nothing:
        break;
    case ListMoment::Kind::Playing:
        return ScreenPicture::Playing;
    case ListMoment::Kind::RanOut:
        return freezes ? ScreenPicture::Frozen : ScreenPicture::Black;
    }
    return ScreenPicture::Black;
}

} // namespace

void ScreenShown::cutBefore(Instant moment)
{
    state.since = std::max(state.since, moment);
    spanSince = std::max(spanSince, moment);
}

void ScreenShown::cutFrom(Instant moment)
{
    state.until = std::min(state.until, moment);
    state.spanUntil = std::min(state.spanUntil, moment);
}

void showList(ScreenState& state, const ListMoment& moment, Microseconds elapsed, ListOwner owner,
              bool freezes)
{
    state.reason = reasonOf(moment.kind, owner);
    state.picture = pictureOf(moment.kind, freezes);
    if (state.picture != ScreenPicture::Black) {
        showEntry(state, moment, elapsed);
    }
}

void showEntry(ScreenState& state, const ListMoment& moment, Microseconds elapsed)
{
    state.entry = moment.entry;
    state.progIndex = moment.progIndex;
    state.play = moment.play;
    state.run = moment.run;
    state.position = moment.position(elapsed) / kPerMillisecond;
}

Microseconds microseconds(qint64 milliseconds)
{
    return std::min(milliseconds, kEndless / kPerMillisecond) * kPerMillisecond;
}

qint64 millisecondsUp(Microseconds time)
{
    return time / kPerMillisecond + (time % kPerMillisecond > 0 ? 1 : 0);
}

} // namespace trel::mediadispatch
