#pragma once

#include "week/WeekScene.h"

namespace trel::desktop::week {

/// Where an arrow key leads, in reading direction.
enum class BlockStep {
    Earlier,   ///< The block before it on the same day.
    Later,     ///< The one behind it.
    DayBefore, ///< The one nearest in time on the last day before that has any.
    DayAfter
};

/// The block that a step from the given one leads to: itself where there is none. Without a block
/// to start from, or when it has gone, the one at a moment, or nearest to it. Nothing in a week
/// without blocks.
std::optional<BlockRef> stepFrom(const WeekLayout& layout, const std::optional<BlockRef>& from,
                                 BlockStep step, const WallMoment& moment);

} // namespace trel::desktop::week
