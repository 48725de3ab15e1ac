#pragma once

class QPainter;
class QRect;

namespace trel::desktop::week {

struct WeekScene;

/// Draws the dates above the days, in a strip of the given place; the days begin at its left edge.
void paintDates(QPainter& painter, const WeekScene& scene, const QRect& strip);
/// The height that the dates take.
int datesHeight(int lineHeight);

/// Draws the hours beside the days; the top of midnight lies at y = 0.
void paintHours(QPainter& painter, const WeekScene& scene, const QRect& strip);

} // namespace trel::desktop::week
