#pragma once

#include "faults/Fault.h"
#include "service/ScheduleRecords.h"

#include <QtGlobal>

#include <cstddef>
#include <map>

namespace trel::mediadispatch {

// What a schedule may hold at most, wherever it comes from. Each is a multiple of what anybody
// plans, and all of them together fit into the memory of a small machine.

/// A day each, without a gap, these last for fifty years.
constexpr std::size_t kMostTasks = 20000;
/// Of all tasks together, as the next two.
constexpr std::size_t kMostPlans = 100000;
constexpr std::size_t kMostEntries = 500000;
constexpr std::size_t kMostServiceValues = 500000;
/// In bytes. The longest name of a file, with its path, has 4096.
constexpr std::size_t kLongestText = 65536;
/// In bytes; the largest schedule with names of a usual length takes less.
constexpr qint64 kLargestJson = 128 * 1024 * 1024;
/// Values of any kind: more than the largest schedule is written with.
constexpr std::size_t kMostJsonValues = 5000000;

/// What of a schedule goes beyond a limit by its number; none for nothing. Does not look at texts.
Fault excessOf(const std::map<int, PlayTask>& tasks);
/// The same of the texts of a task.
Fault excessOf(const PlayTask& task);

} // namespace trel::mediadispatch
