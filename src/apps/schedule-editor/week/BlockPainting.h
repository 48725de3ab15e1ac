#pragma once

class QPainter;
class QRect;

namespace week {

struct WeekScene;

/// Draws the blocks of a day: plans that have the screen solid, what they keep from it hatched
/// beside them, and around the selected one a frame.
void paintBlocks(QPainter& painter, const WeekScene& scene, int day, const QRect& exposed);

/// Draws the marks of the plans that never play, where they start.
void paintMarks(QPainter& painter, const WeekScene& scene, int day, const QRect& exposed);

} // namespace week
