#pragma once

#include "schedulecontract_export.h"
#include "service/PlanConflicts.h"

#include <vector>

namespace trel::mediadispatch {

/// Whether two claims collide, by the rule of collidingClaims().
SCHEDULECONTRACT_EXPORT bool claimsCollide(const PlanClaim& a, const PlanClaim& b);

/// For each claim, in order, the place of the first earlier one that it collides with; -1 where
/// there is none, which is where collidingClaims() has no mark. Costs n log n over the number of
/// claims and the day numbers that they name.
SCHEDULECONTRACT_EXPORT std::vector<int> firstCollisions(const std::vector<PlanClaim>& claims);

/// The places of all claims, earlier and later ones, that collide with the one at a place, in
/// ascending order. Empty for a place that is none. Costs a step for each claim, so that it can be
/// asked while a plan is being moved: over planClaims() of a changed copy of the plans.
SCHEDULECONTRACT_EXPORT std::vector<int> collisionsOf(const std::vector<PlanClaim>& claims,
                                                      int place);

} // namespace trel::mediadispatch
