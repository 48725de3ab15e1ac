#pragma once

#include <cstdint>

namespace trel::mediareader {

/// What a process gives up before it reads files of strangers, so that a file which takes it over
/// gains nothing: it opens no file and no connection, writes nothing but to the line, starts
/// nothing, and its memory and time are bounded.
namespace confinement {

enum class Filter {
    InForce,
    NotThere, ///< The system has none, or the build: the sanitizers make calls of their own.
};

/// The most memory, in bytes of address space.
constexpr std::uint64_t kMostMemory = std::uint64_t(2) * 1024 * 1024 * 1024;
/// The most files that are open at once.
constexpr std::uint64_t kMostFiles = 16;

/// Has the system end this process with the thread that started it, and keep others from looking
/// into it.
void dieWithParent();
/// Bounds memory, files that are open, and what may be written: nothing. Under the sanitizers,
/// which claim terabytes, memory is not bounded.
void setLimits();
/// Refuses every system call from now on that reading open files, and writing to this descriptor,
/// does not need. They fail with EPERM. There is no way back.
Filter refuseCalls(int line);
/// From now on the process may take so many seconds of processor time more, and is ended beyond.
void allowProcessorTime(unsigned seconds);

} // namespace confinement

} // namespace trel::mediareader
