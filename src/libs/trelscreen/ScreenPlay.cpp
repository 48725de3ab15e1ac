#include "ScreenPlay.h"

#include "trelscreen/ScreenSchedule.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

constexpr qint64 kSecond = 1000;

ScreenPlay playOf(const ScreenSchedule& schedule, const ScreenState& state, Instant moment)
{
    ScreenPlay play;
    play.state = state;
    play.moment = moment;
    if (state.isInserted()) {
        for (const ScreenInsertion& insertion : schedule.insertions) {
            if (insertion.hasScreenAt(moment)) {
                play.insertion = insertion.begins;
                play.insertionNumber = insertion.number;
            }
        }
    }
    const auto program = schedule.catalogue->find(state.progIndex);
    if (program != schedule.catalogue->end()) {
        play.name = QString::fromStdString(program->second.progName);
        play.media = QString::fromStdString(program->second.mediaPath);
        play.kind = program->second.kind;
    }
    return play;
}

ScreenPlay plainPlayAt(const ScreenSchedule& schedule, Instant moment)
{
    return playOf(schedule, schedule.timeline->at(moment, schedule.insertions), moment);
}

} // namespace

bool ScreenPlay::isTooShort() const
{
    return isPlaying() && state.since != kEver && state.until != kNever &&
           state.until - state.since < kFrame;
}

qint64 ScreenPlay::positionAt(Instant instant) const
{
    return isPlaying() ? std::max<qint64>(0, state.position + instant - moment) : state.position;
}

bool ScreenPlay::isOfSamePlay(const ScreenPlay& other) const
{
    const auto which = [](const ScreenPlay& play) {
        return std::tie(play.state.taskId, play.state.planId, play.state.entry,
                        play.state.progIndex, play.state.play, play.state.run, play.insertion,
                        play.media, play.kind);
    };
    return !isBlack() && !other.isBlack() && which(*this) == which(other);
}

bool ScreenPlay::isSamePlay(const ScreenPlay& other) const
{
    if (state.picture != other.state.picture) {
        return false;
    }
    if (isBlack() || (isTooShort() && other.isTooShort())) {
        return true;
    }
    // Not by when it began to be shown: that is another moment once an insertion that interrupted
    // the play is forgotten. And what moves it by less than can be seen, such as a program before
    // it that was measured again, shall not disturb it.
    const auto programBegan = [](const ScreenPlay& play) {
        return (play.isPlaying() ? play.moment : 0) - play.state.position;
    };
    return isOfSamePlay(other) && isTooShort() == other.isTooShort() &&
           (!hasPosition() || std::abs(programBegan(*this) - programBegan(other)) < kFrame);
}

ScreenPlay screenPlayAt(const ScreenSchedule& schedule, Instant moment)
{
    ScreenPlay play = plainPlayAt(schedule, moment);
    for (ScreenPlay next = play; next.state.until - moment < kFrame && next.isTooShort();) {
        next = plainPlayAt(schedule, next.state.until);
        if (!next.isTooShort()) {
            return next;
        }
    }
    return play;
}

Instant endOfShortPlays(const ScreenSchedule& schedule, Instant moment)
{
    Instant end = moment + kSecond;
    schedule.timeline->visitPlays(moment, end, schedule.insertions, [&](const ScreenState& state) {
        const ScreenPlay play = playOf(schedule, state, moment);
        if (!play.isTooShort()) {
            end = state.since;
        }
        return play.isTooShort();
    });
    return end;
}

} // namespace trel::screen
