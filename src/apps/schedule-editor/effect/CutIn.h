#pragma once

#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <optional>

namespace trel::mediadispatch {
class ScreenTimeline;
} // namespace trel::mediadispatch

namespace trel::desktop {

/// What an insertion does to the screen: what it takes the place of, and what comes behind it.
struct CutIn
{
    enum class Kind {
        CutOff,  ///< It ended a play before its time.
        Begun,   ///< It began where nothing was playing, or where a play had come to its end.
        Waiting, ///< It comes once the play on screen has ended.
    };
    Kind kind = Kind::Begun;
    trel::mediadispatch::ScreenState before; ///< What it cut off, or what it waits for.
    trel::mediadispatch::ScreenState first;  ///< Its own first picture.
    trel::mediadispatch::Instant begins = 0;
    trel::mediadispatch::Instant ends = trel::mediadispatch::kNever;
    /// What comes when it ends; nothing for one that does not.
    std::optional<trel::mediadispatch::ScreenState> after;
};

/// The last of the insertions, as long as it waits or has the screen at a moment; nothing where
/// there is none, or it is over.
std::optional<CutIn> cutInAt(trel::mediadispatch::Instant moment,
                             const trel::mediadispatch::ScreenTimeline& timeline,
                             const trel::mediadispatch::ScreenInsertions& insertions);

} // namespace trel::desktop
