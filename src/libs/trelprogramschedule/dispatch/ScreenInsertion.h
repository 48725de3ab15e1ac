#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QString>

#include <vector>

namespace trel::mediadispatch {

/// A plan that takes the screen from whatever has it, for a while. With serviceFlagB set it plays
/// its program once, outside the plan's span.
struct ScreenInsertion
{
    int taskId = 0;                     ///< The plan in effect that it stands for.
    int planId = 0;                     ///< Within the task.
    PlayPlan plan;                      ///< What it plays instead, from the first entry on.
    std::vector<struProgInfo> original; ///< The list as the operator saw it before.

    Instant requested = 0; ///< When it was asked for.
    Instant begins = 0;    ///< When it takes the screen; later than requested when delayed.
    Instant ends = kNever; ///< When the screen goes back to the rules.

    qint64 number = 0; ///< Which one of its store it is; 0 while it is in none.
    QString askedBy;   ///< The program and the machine that asked for it; empty when not known.

    /// Whether it has been asked for, and is still to begin.
    bool isWaitingAt(Instant moment) const { return requested <= moment && moment < begins; }
    /// Whether it has the screen.
    bool hasScreenAt(Instant moment) const { return begins <= moment && moment < ends; }
};

/// The insertions that a schedule in effect has to reckon with, in the order in which they begin:
/// none, one, or one that has the screen and one that waits. Each ends where the next begins, also
/// when its own end would lie later.
using ScreenInsertions = std::vector<ScreenInsertion>;

} // namespace trel::mediadispatch
