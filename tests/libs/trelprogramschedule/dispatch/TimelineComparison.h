#pragma once

#include "RandomSchedule.h"

#include <QString>
#include <QTimeZone>

/// Where the timeline and the walk second by second part, and where the timeline parts from itself;
/// empty when they are of one mind. Not one second of the window may differ; the pictures must
/// follow each other without a gap and without two that are one; and every moment must be told the
/// same borders.
QString firstDifference(const RandomSchedule& schedule, const secondbysecond::Window& window,
                        const QTimeZone& zone);
