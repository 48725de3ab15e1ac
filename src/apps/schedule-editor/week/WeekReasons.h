#pragma once

#include <QLocale>
#include <QString>

namespace trel::desktop::week {

class WeekSchedule;
struct WeekHit;
struct WeekLayout;

/// What is on screen at a place of the picture, and why; for a plan that is not on screen, what
/// keeps it away. Plain text, a few lines.
QString reasonText(const WeekSchedule& schedule, const WeekLayout& layout, const WeekHit& hit,
                   const QLocale& locale);

/// What stands in a block, in one line.
QString blockText(const struct WeekBlock& block);

} // namespace trel::desktop::week
