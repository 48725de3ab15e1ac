#pragma once

#include <chrono>

namespace trel::mediadispatch {

/// How edits are written down.
struct DraftHabits
{
    /// What comes within this time is written in one go.
    std::chrono::milliseconds gather{100};
    /// After a failure nothing is written for so long.
    std::chrono::milliseconds retry{1000};
};

} // namespace trel::mediadispatch
