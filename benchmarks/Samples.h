#pragma once

#include "service/ScheduleRecords.h"

#include <map>

namespace bench {

using ProgramMap = std::map<int, trel::mediadispatch::ProgramIten>;
using TaskMap = std::map<int, trel::mediadispatch::PlayTask>;

/// Programs 1 to the given number, of twelve seconds each.
ProgramMap samplePrograms(int count);

/// A task whose plans are spread over day and week, so that few of them meet: a minute each, on one
/// day or two, with five of the first thousand programs.
trel::mediadispatch::PlayTask sampleTask(int id, int plans, trel::mediadispatch::PlanMode mode);

/// Tasks 1 to the given number, one after the other, with as many plans each.
TaskMap sampleTasks(int count, int plans);

} // namespace bench
