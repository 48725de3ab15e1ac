#pragma once

#include "follow/ScheduleEdits.h"

#include <vector>

namespace trel::desktop::undo {

/// One task before and after a step of the operator; null where there was or is no such task.
struct TaskEdit
{
    int taskId = -1;
    follow::SharedTask before;
    follow::SharedTask after;
};

/// What one step did, in the order of the ids.
using TaskEdits = std::vector<TaskEdit>;

} // namespace trel::desktop::undo
