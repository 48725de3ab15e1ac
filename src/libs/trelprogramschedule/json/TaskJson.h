#pragma once

#include "JsonTree.h"
#include "service/ScheduleRecords.h"

#include <map>

namespace trel::mediadispatch {

// The records of a schedule in JSON, in both directions; see JsonValues.h.

JsonValue writeValue(const struProgInfo& entry);
void readValue(const JsonValue& value, struProgInfo& entry);

JsonValue writeValue(const PlayPlan& plan);
void readValue(const JsonValue& value, PlayPlan& plan);

/// A key that differs from the task's id is written down, so that reading refuses it by name
/// instead of losing one of the two.
JsonValue writeTasks(const std::map<int, PlayTask>& tasks);
void readTasks(const JsonValue& array, std::map<int, PlayTask>& tasks);

} // namespace trel::mediadispatch
