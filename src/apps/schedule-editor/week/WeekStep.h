#pragma once

namespace trel::desktop::week {

class WeekView;

/// From now on both pictures show the same week, with hours of the same height at the same place,
/// whichever of them is moved.
void keepInStep(WeekView& one, WeekView& other);

} // namespace trel::desktop::week
