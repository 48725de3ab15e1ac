#pragma once

#include <chrono>

namespace trel::player {

/// Ends the process with that status when that time is up, if it has not ended by then, whatever of
/// it hangs: a disk, a driver, a library. For a program that is about to end, and ends in order
/// where nothing hangs. What the first call has said holds.
void endProcessAfter(std::chrono::milliseconds patience, int status);

} // namespace trel::player
