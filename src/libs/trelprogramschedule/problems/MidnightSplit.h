#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule_export.h"

#include <map>
#include <optional>

namespace trel::mediadispatch {

/// The two parts of a plan, the second without an id.
struct SplitPlan
{
    PlayPlan evening;                ///< Under the id that it had.
    std::optional<PlayPlan> morning; ///< On the days behind its own; none that lasts for no time.
};

/// Makes two plans of one that would go on after midnight, of which each ends on its day; nothing
/// for any other plan, and where the parts cannot be.
///
/// A plan in TimeMode whose end lies before its start is cut at midnight, and each part plays the
/// whole list. Of one in FrequencyMode whose runs take longer than the day lasts, no play is cut:
/// the evening ends with the last play that is over before midnight, of which the last frame stays
/// until then, and the morning begins with the next one. Both parts are in TimeMode. Not where the
/// very first play goes on after midnight, nor where the rest takes longer than a day.
TRELPROGRAMSCHEDULE_EXPORT std::optional<SplitPlan>
planSplitAtMidnight(const PlayPlan& plan, const std::map<int, ProgramIten>& catalogue);

/// The task with the first plan of this id split; the second part is its last plan. Nothing where
/// there is nothing to split, or no id is left. Plans of every day stay on every day, so that the
/// morning part plays on the first day of the period too, and not on the day behind the last.
TRELPROGRAMSCHEDULE_EXPORT std::optional<PlayTask>
splitAtMidnight(const PlayTask& task, int planId, const std::map<int, ProgramIten>& catalogue);

} // namespace trel::mediadispatch
