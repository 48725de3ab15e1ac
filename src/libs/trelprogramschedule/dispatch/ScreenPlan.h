#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/DaySpans.h"
#include "trelprogramschedule/dispatch/PlayList.h"
#include "trelprogramschedule/dispatch/TaskDays.h"
#include "trelprogramschedule_export.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace trel::mediadispatch {

/// What of a plan counts for the screen.
struct ScreenPlan
{
    int planId = 0;
    WeekdaySet weekdays = 0;
    ClaimedSpan claim;
    bool freezes = false; ///< Leaves its last frame behind, not a black screen.
    PlayList list;

    bool claimsAnything() const { return claim.begin < claim.end && weekdays != 0; }
};

/// The plans of a task, or a plan that is cut in, in the order of the rows.
std::vector<ScreenPlan> screenPlans(const std::vector<PlayPlan>& plans,
                                    const std::map<int, ProgramIten>& catalogue);

/// How often its list runs.
qint64 runsOf(const PlayPlan& plan);

/// The second of the day in which the list of a plan is over before the plan ends, in force at
/// `end`; nothing where it lasts that long, repeats, or has nothing to play.
TRELPROGRAMSCHEDULE_EXPORT std::optional<int>
listOverAt(const PlayPlan& plan, const std::string& end,
           const std::map<int, ProgramIten>& catalogue);

} // namespace trel::mediadispatch
