#pragma once

#include "week/moves/PlanMove.h"

#include <Qt>

#include <optional>
#include <vector>

class QKeyEvent;

namespace trel::desktop::week {

/// A key that moves the selected block of the picture.
struct MoveKey
{
    int keys = 0; ///< As of a QKeySequence: the key with what is held.
    PlanMove::Part part = PlanMove::Whole;
    int quarters = 0; ///< Of an hour, later.
    int days = 0;     ///< Later.
};

/// Gives a drag up.
inline constexpr Qt::Key kGiveUpKey = Qt::Key_Escape;

/// All of them, where one reads from the left.
const std::vector<MoveKey>& moveKeys();

/// What a press of a key moves, with the days in reading direction; nothing for any other key.
std::optional<MoveKey> moveOf(const QKeyEvent& event, Qt::LayoutDirection direction);

} // namespace trel::desktop::week
