#pragma once

#include <string>
#include <vector>

namespace trel::mediadispatch {

/// What a plan claims: its days and its span of the day, the end as it is in force.
struct PlanClaim
{
    std::string start; ///< kTimeFormat.
    std::string end;   ///< kTimeFormat.
    std::string weeks;
};

/// For each claim, in order, whether it collides with an earlier one.
///
/// Two claims collide when they share a day and either of them ends before it starts, or each
/// starts before the other ends. Claims that touch do not collide. Times compare as bytes.
std::vector<bool> collidingClaims(const std::vector<PlanClaim>& claims);

} // namespace trel::mediadispatch
