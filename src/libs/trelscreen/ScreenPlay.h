#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QString>

namespace trel::screen {

struct ScreenSchedule;

/// The length of a picture at 25 of them a second, in milliseconds: the unit of what can be seen.
inline constexpr qint64 kFrame = 40;

/// What the schedule has on screen at a moment, with what a deck and a log need to know of it.
struct ScreenPlay
{
    mediadispatch::ScreenState state;
    mediadispatch::Instant moment = 0; ///< At which the state's position is reached.

    /// Of the insertion that has the screen: when it began, and its number in the store.
    mediadispatch::Instant insertion = mediadispatch::kNever;
    qint64 insertionNumber = 0;

    /// Of the program that plays or is frozen.
    QString name;
    QString media;
    mediadispatch::ProgramKind kind = mediadispatch::ProgramKind::Other;

    bool isBlack() const { return state.picture == mediadispatch::ScreenPicture::Black; }
    bool isFrozen() const { return state.picture == mediadispatch::ScreenPicture::Frozen; }
    bool isPlaying() const { return state.isPlaying(); }
    /// Whether its pictures follow each other by the time that has passed.
    bool hasPosition() const
    {
        return !isBlack() && kind != mediadispatch::ProgramKind::Image &&
               kind != mediadispatch::ProgramKind::Live;
    }
    /// It lasts for less than a frame, and could not be seen.
    bool isTooShort() const;

    /// How far into the program an instant of this play lies, or where it stopped; milliseconds.
    qint64 positionAt(mediadispatch::Instant instant) const;

    /// Whether both are one picture that goes on, so that nothing has to be done where one follows
    /// the other.
    bool isSamePlay(const ScreenPlay& other) const;
    /// Whether both are pictures of one and the same play, moving or standing, wherever in it.
    bool isOfSamePlay(const ScreenPlay& other) const;
};

/// What is on screen at a moment. Where that lasts for less than a frame and something else follows
/// within a frame, what follows.
ScreenPlay screenPlayAt(const ScreenSchedule& schedule, mediadispatch::Instant moment);

/// When a play that is too short, and all of its kind right after it, are over; a second after the
/// moment at the latest.
mediadispatch::Instant endOfShortPlays(const ScreenSchedule& schedule,
                                       mediadispatch::Instant moment);

} // namespace trel::screen
