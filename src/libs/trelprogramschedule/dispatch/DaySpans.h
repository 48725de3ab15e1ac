#pragma once

#include "trelprogramschedule_export.h"

#include <vector>

namespace trel::mediadispatch {

/// What a plan claims of a day: from a second of the day to another, that one not included. The
/// place in its list is the row of the plan.
struct ClaimedSpan
{
    int begin = 0;
    int end = 0; ///< Not after begin: nothing is claimed.
};

/// A part of a day in which one plan has the screen, in seconds of the day.
struct DaySpan
{
    int begin = 0;
    int end = 0; ///< Not included.
    int row = 0;
};

/// Who has the screen when: of several that claim a second, the first row. In the order of time,
/// apart from each other or of different rows. Costs n log n over the claims.
TRELPROGRAMSCHEDULE_EXPORT std::vector<DaySpan> daySpans(const std::vector<ClaimedSpan>& claims);

} // namespace trel::mediadispatch
