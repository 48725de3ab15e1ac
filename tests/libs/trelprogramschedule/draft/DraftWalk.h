#pragma once

#include "service/ScheduleRecords.h"

#include <map>
#include <optional>

/// A random walk of edits, the same on every call: which task a step touches, and what becomes of
/// it, none where it is taken out.
struct DraftStep
{
    int taskId = 0;
    std::optional<trel::mediadispatch::PlayTask> task;
};

DraftStep draftStep(unsigned seed, int step);

/// The schedule that a walk begins with.
std::map<int, trel::mediadispatch::PlayTask> draftWalkStart();
