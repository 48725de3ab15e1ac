#pragma once

#include "schedulecontract_export.h"

#include <string>
#include <vector>

namespace trel::mediadispatch {

/// Appends the day numbers of a `weeks` text to numbers, in order, and tells whether one of them is
/// EveryDay. An empty text counts as "0"; a token that is no number reads as 0, as atoi has it, and
/// so does an empty token, also behind the last comma.
SCHEDULECONTRACT_EXPORT bool parseWeeks(const std::string& weeks, std::vector<int>& numbers);

/// True when two plans with these days share one. Numbers outside 0 to 7 only meet themselves.
SCHEDULECONTRACT_EXPORT bool weeksOverlap(const std::string& a, const std::string& b);

/// Joins day numbers with commas, in the order given, repeats included.
SCHEDULECONTRACT_EXPORT std::string joinWeeks(const std::vector<int>& numbers);

} // namespace trel::mediadispatch
