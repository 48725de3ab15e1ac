#pragma once

#include "week/WeekGeometry.h"

#include <vector>

namespace trel::desktop::week {

/// What stands at a place of the picture. The pointers lead into the layout.
struct WeekHit
{
    int day = 0;
    int second = 0;
    Pass pass = Pass::Only; ///< Which of the two times in a doubled hour.
    const trel::mediadispatch::ClockChange* change = nullptr;
    const DayPiece* piece = nullptr;
    const WeekBlock* block = nullptr; ///< Of the piece; null for several.
    std::vector<const WeekBlock*> marks;

    /// The block that a click there means; null when there is none.
    const WeekBlock* target() const { return marks.empty() ? block : marks.front(); }
};

WeekHit hitAt(const WeekLayout& layout, const WeekGeometry& geometry, const QPoint& place);

/// What stands at the first moment of a block that is drawn.
WeekHit hitOf(const WeekLayout& layout, int day, const WeekBlock& block);

/// Where that stands: the first piece of the block, or its mark.
QRect placeOf(const WeekHit& hit, const WeekGeometry& geometry);

} // namespace trel::desktop::week
