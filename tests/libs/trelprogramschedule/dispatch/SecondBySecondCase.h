#pragma once

#include "TimelineComparison.h"

#include <QString>

namespace secondbysecond {

/// Hours in which the local time is worth a look, and how many schedules are held against them.
struct Case
{
    const char* name;
    const char* zone;
    const char* begin; ///< Before midnight of the first day on which a task may be valid.
    Drawing drawing;
    int minutes;
    int schedules;
};

/// Holds the timeline of random schedules against a walk second by second. Returns the first
/// difference with the seed that leads to it, and nothing where there is none. The number of the
/// case keeps its seeds apart from those of others.
QString differenceIn(const Case& tested, int number);

} // namespace secondbysecond
