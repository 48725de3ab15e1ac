#pragma once

#include <Qt>

#include <vector>

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

/// A key of the picture.
struct WeekKey
{
    Qt::Key key = Qt::Key_unknown;
    bool needsControl = false; ///< Means nothing without Ctrl.
    WeekCommand command = WeekCommand::None;
    /// Another key of the keyboard for what one before it does, which lists of keys leave out.
    bool isTwin = false;
};

/// All of them, where one reads from the left.
const std::vector<WeekKey>& weekKeys();

/// The arrows lead in reading direction.
WeekCommand commandOf(const QKeyEvent& event, Qt::LayoutDirection direction);

} // namespace trel::desktop::week
