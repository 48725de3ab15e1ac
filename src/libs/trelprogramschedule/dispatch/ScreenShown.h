#pragma once

#include "trelprogramschedule/dispatch/PlayList.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

namespace trel::mediadispatch {

/// A state of the screen with what its span needs besides.
struct ScreenShown
{
    ScreenState state;
    /// Since when the plan, or no plan, has had the screen, whatever it showed by then.
    Instant spanSince = kEver;

    /// Takes away what lies before or behind an instant, where something else has the screen.
    void cutBefore(Instant moment);
    void cutFrom(Instant moment);
};

/// Whose list it is.
enum class ListOwner { Plan, Insertion };

/// Writes picture, reason, entry and position of a list that has run for a while.
void showList(ScreenState& state, const ListMoment& moment, Microseconds elapsed, ListOwner owner,
              bool freezes);
/// Writes entry and position alone, of what is played or frozen.
void showEntry(ScreenState& state, const ListMoment& moment, Microseconds elapsed);

/// Whole milliseconds in microseconds; as much as a list can be asked for, where that is less.
Microseconds microseconds(qint64 milliseconds);
/// The first whole millisecond that is not before a time.
qint64 millisecondsUp(Microseconds time);

} // namespace trel::mediadispatch
