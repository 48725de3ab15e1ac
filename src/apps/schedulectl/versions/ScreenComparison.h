#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <map>
#include <vector>

namespace trel::console {

/// A stretch of time in which two schedules have different things on screen.
struct ScreenDifference
{
    trel::mediadispatch::Instant from = 0;
    trel::mediadispatch::Instant to = 0;
    trel::mediadispatch::ScreenState former;
    trel::mediadispatch::ScreenState later;
};

/// What differs on the screen from one moment to another, without insertions: stretch by stretch,
/// by what has the screen and how it plays, not by single plays. A plan of the same programs with
/// the same start plays the same, whatever its ids are.
std::vector<ScreenDifference>
screenDifferences(const std::map<int, trel::mediadispatch::PlayTask>& former,
                  const std::map<int, trel::mediadispatch::PlayTask>& later,
                  const std::map<int, trel::mediadispatch::ProgramIten>& programs,
                  const trel::mediadispatch::MomentFormat& local, trel::mediadispatch::Instant from,
                  trel::mediadispatch::Instant to);

} // namespace trel::console
