#include "week/WeekKeys.h"

#include <QKeyEvent>

#include <algorithm>

namespace trel::desktop::week {

namespace {

WeekCommand mirrored(WeekCommand command)
{
    switch (command) {
    case WeekCommand::DayBefore:
        return WeekCommand::DayAfter;
    case WeekCommand::DayAfter:
        return WeekCommand::DayBefore;
    default:
        return command;
    }
}

} // namespace

const std::vector<WeekKey>& weekKeys()
{
    static const std::vector<WeekKey> keys = {
        {Qt::Key_Up, false, WeekCommand::Earlier, false},
        {Qt::Key_Down, false, WeekCommand::Later, false},
        {Qt::Key_Left, false, WeekCommand::DayBefore, false},
        {Qt::Key_Right, false, WeekCommand::DayAfter, false},
        {Qt::Key_Return, false, WeekCommand::Activate, false},
        {Qt::Key_Enter, false, WeekCommand::Activate, true},
        {Qt::Key_Space, false, WeekCommand::Explain, false},
        {Qt::Key_PageUp, true, WeekCommand::WeekBefore, false},
        {Qt::Key_PageDown, true, WeekCommand::WeekAfter, false},
        {Qt::Key_Home, false, WeekCommand::Now, false},
        {Qt::Key_Plus, false, WeekCommand::ZoomIn, false},
        // The key of the plus, on many keyboards.
        {Qt::Key_Equal, false, WeekCommand::ZoomIn, true},
        {Qt::Key_Minus, false, WeekCommand::ZoomOut, false},
        {Qt::Key_0, false, WeekCommand::ZoomToFit, false},
    };
    return keys;
}

WeekCommand commandOf(const QKeyEvent& event, Qt::LayoutDirection direction)
{
    const bool hasControl = (event.modifiers() & Qt::ControlModifier) != 0;
    const std::vector<WeekKey>& keys = weekKeys();
    const auto found = std::find_if(keys.begin(), keys.end(), [&](const WeekKey& key) {
        return key.key == event.key() && (hasControl || !key.needsControl);
    });
    if (found == keys.end()) {
        return WeekCommand::None;
    }
    return direction == Qt::RightToLeft ? mirrored(found->command) : found->command;
}

} // namespace trel::desktop::week
