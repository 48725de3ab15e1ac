#pragma once

#include "service/ScheduleRecords.h"

#include <cstddef>
#include <map>
#include <memory>

namespace trel::desktop::follow {

/// Records that do not change any more, so that threads may share them.
using SharedTask = std::shared_ptr<const trel::mediadispatch::PlayTask>;
using SharedCatalogue = std::shared_ptr<const std::map<int, trel::mediadispatch::ProgramIten>>;

/// What turns a schedule as a follower has it into the schedule as it is.
struct ScheduleEdits
{
    bool isWhole = false;            ///< There are no tasks but these.
    std::map<int, SharedTask> tasks; ///< By id; null for one that is taken out.
    SharedCatalogue catalogue;       ///< Null where it is as it was.
    std::size_t size = 0;            ///< Tasks and plans of the whole schedule as it is.

    /// Takes in what came after.
    void add(const ScheduleEdits& later);

    /// Whether the whole schedule is worked through in less than a frame, so that handing it to
    /// another thread would only be slower.
    bool isShort() const;
};

} // namespace trel::desktop::follow
