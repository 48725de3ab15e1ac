#pragma once

#include <chrono>

namespace trel::player {

/// Ends the process with success when that time is up, if it has not ended by then, whatever of it
/// hangs: a disk, a driver, a library. For a program that has been told to end, and ends in order
/// where nothing hangs. What the first call has said holds.
void endProcessAfter(std::chrono::milliseconds patience);

} // namespace trel::player
