#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule_export.h"

#include <optional>
#include <vector>

namespace trel::mediadispatch {

/// Whether there is something to skip: a play, or what is cut in, whether it still plays or not.
inline bool isSkippable(const ScreenState& state)
{
    return state.isPlaying() || state.isInserted();
}

/// A list in the order in which it plays on once a play is over, round and round: what came before
/// stands at its end. An entry that has plays left stands first with these, and at the end with
/// those that were begun. As it is where the entry is none of the list's, both counted from 0.
TRELPROGRAMSCHEDULE_EXPORT std::vector<struProgInfo> listAfterPlay(std::vector<struProgInfo> list,
                                                                   int entry, int play);

/// What has to be cut in, at once, for the play on screen in a state to be skipped: the plan with
/// its list from the next play on. `shown` is what has the screen, a plan in the form of an
/// insertion; its instants and its number do not matter, and are not set in the result.
///
/// Nothing where that would not lead to another play: when nothing plays, or an insertion that
/// plays its program once.
TRELPROGRAMSCHEDULE_EXPORT std::optional<ScreenInsertion> skippedPlay(const ScreenState& state,
                                                                      ScreenInsertion shown);

} // namespace trel::mediadispatch
