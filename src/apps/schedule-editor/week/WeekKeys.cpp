#include "week/WeekKeys.h"

#include <QKeyEvent>

namespace trel::desktop::week {

WeekCommand commandOf(const QKeyEvent& event, Qt::LayoutDirection direction)
{
    const bool isMirrored = direction == Qt::RightToLeft;
    const bool hasControl = (event.modifiers() & Qt::ControlModifier) != 0;
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // The key of the plus, on many keyboards.
        return WeekCommand::ZoomIn;
    case Qt::Key_Minus:
        return WeekCommand::ZoomOut;
    case Qt::Key_0:
        return WeekCommand::ZoomToFit;
    case Qt::Key_Up:
        return WeekCommand::Earlier;
    case Qt::Key_Down:
        return WeekCommand::Later;
    case Qt::Key_Left:
        return isMirrored ? WeekCommand::DayAfter : WeekCommand::DayBefore;
    case Qt::Key_Right:
        return isMirrored ? WeekCommand::DayBefore : WeekCommand::DayAfter;
    case Qt::Key_PageUp:
        return hasControl ? WeekCommand::WeekBefore : WeekCommand::None;
    case Qt::Key_PageDown:
        return hasControl ? WeekCommand::WeekAfter : WeekCommand::None;
    case Qt::Key_Home:
        return WeekCommand::Now;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return WeekCommand::Activate;
    case Qt::Key_Space:
        return WeekCommand::Explain;
    default:
        return WeekCommand::None;
    }
}

} // namespace trel::desktop::week
