#pragma once

class QPainter;
class QRect;

namespace trel::desktop::week {

struct WeekScene;

/// Draws the days as far as they lie in the exposed part.
void paintDays(QPainter& painter, const WeekScene& scene, const QRect& exposed);

} // namespace trel::desktop::week
