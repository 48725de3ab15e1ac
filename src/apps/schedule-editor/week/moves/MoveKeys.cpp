#include "week/moves/MoveKeys.h"

#include <QKeyEvent>

#include <algorithm>

namespace trel::desktop::week {

namespace {

constexpr int kControl = static_cast<int>(Qt::ControlModifier);
constexpr int kShift = static_cast<int>(Qt::ShiftModifier);
constexpr int kAlt = static_cast<int>(Qt::AltModifier);

} // namespace

const std::vector<MoveKey>& moveKeys()
{
    static const std::vector<MoveKey> keys = {
        {kControl + Qt::Key_Up, PlanMove::Whole, -1, 0},
        {kControl + Qt::Key_Down, PlanMove::Whole, 1, 0},
        {kControl + Qt::Key_Left, PlanMove::Whole, 0, -1},
        {kControl + Qt::Key_Right, PlanMove::Whole, 0, 1},
        {kControl + kShift + Qt::Key_Up, PlanMove::End, -1, 0},
        {kControl + kShift + Qt::Key_Down, PlanMove::End, 1, 0},
        {kAlt + kShift + Qt::Key_Up, PlanMove::Begin, -1, 0},
        {kAlt + kShift + Qt::Key_Down, PlanMove::Begin, 1, 0},
    };
    return keys;
}

std::optional<MoveKey> moveOf(const QKeyEvent& event, Qt::LayoutDirection direction)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    const int pressed = static_cast<int>(held) | event.key();
    const std::vector<MoveKey>& keys = moveKeys();
    const auto found = std::find_if(keys.begin(), keys.end(),
                                    [pressed](const MoveKey& key) { return key.keys == pressed; });
    if (found == keys.end()) {
        return std::nullopt;
    }
    MoveKey move = *found;
    if (direction == Qt::RightToLeft) {
        move.days = -move.days;
    }
    return move;
}

} // namespace trel::desktop::week
