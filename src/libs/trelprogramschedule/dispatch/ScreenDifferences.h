#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule_export.h"

#include <map>
#include <vector>

namespace trel::mediadispatch {

class ScreenTimeline;

/// A schedule whose screen is compared with that of another.
struct ScreenSide
{
    const std::map<int, PlayTask>& tasks;
    const ScreenTimeline& timeline; ///< That of the tasks.
};

/// A stretch of time in which two schedules have different things on screen.
struct ScreenDifference
{
    Instant from = 0;
    Instant to = 0;
    ScreenState former;
    ScreenState later;
};

/// Whether a plan has the screen in a state, with something to play or without.
TRELPROGRAMSCHEDULE_EXPORT bool hasPlan(const ScreenState& state);

/// What differs on the screen from one moment to another, without insertions: stretch by stretch,
/// by what has the screen and how it plays, not by single plays. A plan of the same programs with
/// the same start plays the same, whatever its ids are. Both timelines are of the same catalogue
/// and zone.
TRELPROGRAMSCHEDULE_EXPORT std::vector<ScreenDifference>
screenDifferences(const ScreenSide& former, const ScreenSide& later, Instant from, Instant to);

} // namespace trel::mediadispatch
