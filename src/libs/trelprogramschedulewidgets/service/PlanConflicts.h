#pragma once

#include "schedulecontract_export.h"
#include "service/PlanTiming.h"

#include <map>
#include <string>
#include <vector>

namespace trel::mediadispatch {

/// What a plan claims: its days and its span of the day, the end as it is in force.
struct PlanClaim
{
    std::string start; ///< kTimeFormat.
    std::string end;   ///< kTimeFormat.
    std::string weeks; ///< As PlayPlan::weeks.
};

/// What each plan of a list claims, in the order of the list. The end of a plan in FrequencyMode is
/// worked out with plannedEnd; every other plan ends at its endTime. Each program is asked about
/// once, however many entries name it.
SCHEDULECONTRACT_EXPORT std::vector<PlanClaim>
planClaims(const std::vector<PlayPlan>& plans, const std::map<int, ProgramIten>& catalogue,
           const NoDurationTest& hasNoDuration);

/// For each claim, in order, whether it collides with an earlier one.
///
/// Two claims collide when they share a day and either of them ends before it starts, or each
/// starts before the other ends. Claims that touch do not collide. Times compare as bytes.
/// Costs n log n over the number of claims and the day numbers that they name.
SCHEDULECONTRACT_EXPORT std::vector<bool> collidingClaims(const std::vector<PlanClaim>& claims);

} // namespace trel::mediadispatch
