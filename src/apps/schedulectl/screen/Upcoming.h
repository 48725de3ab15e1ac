#pragma once

#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <optional>

namespace trel::console {

/// What comes behind what is on screen.
struct Upcoming
{
    /// The first play of another program; of any program while none plays.
    std::optional<trel::mediadispatch::ScreenState> program;
    /// The first picture of the next plan that has the screen, or of the same one another time.
    std::optional<trel::mediadispatch::ScreenState> plan;
};

/// Looks ahead from a state of the timeline, as far as its tasks reach.
Upcoming upcoming(const trel::mediadispatch::ScreenTimeline& timeline,
                  const trel::mediadispatch::ScreenInsertions& insertions,
                  const trel::mediadispatch::ScreenState& now);

} // namespace trel::console
