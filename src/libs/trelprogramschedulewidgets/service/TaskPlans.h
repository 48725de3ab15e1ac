#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

namespace trel::mediadispatch {

// The plans of a task, by their place and by their id. Ids are the plans' own, but a task that was
// written elsewhere may hold one twice, so each function says which plan it means.

/// The plan at an index, counted from 0; null when the task has no such plan.
SCHEDULECONTRACT_EXPORT PlayPlan* planAt(PlayTask& task, int index);

/// The first plan with an id; null when there is none.
SCHEDULECONTRACT_EXPORT PlayPlan* firstPlanWithId(PlayTask& task, int id);

/// The last plan with an id; null when there is none.
SCHEDULECONTRACT_EXPORT const PlayPlan* lastPlanWithId(const PlayTask& task, int id);

/// Takes the first plan with an id out of the task; nothing happens when there is none.
SCHEDULECONTRACT_EXPORT void removeFirstPlanWithId(PlayTask& task, int id);

} // namespace trel::mediadispatch
