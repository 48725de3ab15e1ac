#pragma once

#include <QtGlobal>

#include <limits>

namespace trel::mediadispatch {

/// A point in time, in milliseconds since 1970-01-01 00:00:00 UTC.
using Instant = qint64;

/// The instant that never comes.
inline constexpr Instant kNever = std::numeric_limits<Instant>::max();
/// The instant before all others. Far enough from the end of the range for the time since then to
/// be worked out.
inline constexpr Instant kEver = std::numeric_limits<Instant>::min() / 2;

/// What a screen shows.
enum class ScreenPicture {
    Black,
    Playing,
    Frozen, ///< The last frame of what played.
};

/// The rule that makes it show that.
enum class ScreenReason {
    NothingInEffect,     ///< No schedule has been started. Black.
    NoPlanYet,           ///< No plan has had the screen up to now. Black.
    PlanPlays,           ///< The plan has the screen and plays an entry.
    PlanHasNothing,      ///< The plan has the screen, but none of its entries can play. Black.
    PlanRanOut,          ///< The list has run as often as it should, before the span's end.
    PlanEnded,           ///< No plan has the screen; what the last one left behind.
    InsertionPlays,      ///< As PlanPlays, of an insertion.
    InsertionHasNothing, ///< As PlanHasNothing, of an insertion.
    InsertionRanOut,     ///< As PlanRanOut, of an insertion.
};

/// What is on screen from one instant to another, and why. Numbers that do not apply are -1.
struct ScreenState
{
    ScreenPicture picture = ScreenPicture::Black;        ///< What the screen shows.
    ScreenReason reason = ScreenReason::NothingInEffect; ///< Why.

    /// The plan that has the screen or, after PlanEnded, had it last.
    int taskId = -1;
    int planId = -1;  ///< Within the task.
    int planRow = -1; ///< Its row in the task, from 0.

    /// The entry that plays or whose last frame is frozen; of an insertion, in the inserted list.
    int entry = -1;     ///< Its row in the plan's list, from 0.
    int progIndex = -1; ///< Its program.
    int play = -1;      ///< Which of the entry's plays in a row, from 0.
    qint64 run = -1;    ///< Which run of the whole list, from 0.
    /// How far into the program the given instant lies or, frozen, where it stopped; milliseconds.
    qint64 position = 0;

    Instant since = 0; ///< When this play, or this picture, began. kEver is possible.
    /// When it is over: the play ends, or something else takes the screen. kNever is possible.
    Instant until = kNever;
    /// When the plan loses the screen, whatever it plays by then; as until where none has it.
    Instant spanUntil = kNever;

    /// Whether a play of a program can be waited for to end.
    bool isPlaying() const { return picture == ScreenPicture::Playing; }
    /// Whether an insertion has the screen, with something to play or without.
    bool isInserted() const { return reason >= ScreenReason::InsertionPlays; }
};

} // namespace trel::mediadispatch
