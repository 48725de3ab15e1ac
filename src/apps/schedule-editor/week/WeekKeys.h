#pragma once

#include <Qt>

class QKeyEvent;

namespace trel::desktop::week {

/// What a key means in the picture of the week.
enum class WeekCommand {
    None, ///< The key means nothing here.
    ZoomIn,
    ZoomOut,
    ZoomToFit,
    Earlier, ///< To another block.
    Later,
    DayBefore,
    DayAfter,
    WeekBefore,
    WeekAfter,
    Now,
    Activate, ///< The selected block.
    Explain,
};

/// The arrows lead in reading direction.
WeekCommand commandOf(const QKeyEvent& event, Qt::LayoutDirection direction);

} // namespace trel::desktop::week
