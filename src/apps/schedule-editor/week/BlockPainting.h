#pragma once

#include <QFontMetrics>
#include <QString>

class QPainter;
class QRect;

namespace trel::desktop::week {

struct WeekBlock;
struct WeekScene;

/// The number of a plan and its times, or only as much of them as a width holds: a time is told as
/// a whole or not at all.
QString blockTitle(const WeekBlock& block, const QFontMetrics& metrics, int width);

/// Draws the blocks of a day: plans that have the screen solid, what they keep from it hatched
/// beside them, and around the selected one a frame.
void paintBlocks(QPainter& painter, const WeekScene& scene, int day, const QRect& exposed);

/// Draws the marks of the plans that never play, where they start.
void paintMarks(QPainter& painter, const WeekScene& scene, int day, const QRect& exposed);

} // namespace trel::desktop::week
