#pragma once

#include "week/moves/PlanMove.h"

#include <QRect>

namespace trel::desktop::week {

class WeekView;

/// Where a plan would stand in a day of the week that is shown, in the coordinates of the viewport,
/// were it to play then; empty for times that cannot be read.
QRect placeOfPlan(const WeekView& view, int day, const trel::mediadispatch::PlayPlan& plan,
                  const Programs& programs);

} // namespace trel::desktop::week
