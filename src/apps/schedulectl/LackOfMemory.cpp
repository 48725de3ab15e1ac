#include "LackOfMemory.h"

#include "Command.h"

#include <cstdlib>
#include <exception>
#include <new>

#include <unistd.h>

namespace trel::console {

namespace {

/// Takes no memory, and unwinds nothing: on its way out the toolkit could wait for ever for a lock.
[[noreturn]] void tellAndEnd()
{
    // What cannot be undone any more may have been done.
    constexpr char sentence[] =
        "schedulectl: There is not enough memory; \"schedulectl show\" tells what was done.\n";
    const ssize_t written = ::write(STDERR_FILENO, sentence, sizeof sentence - 1);
    ::_exit(written < 0 ? Misused : Refused);
}

[[noreturn]] void endOfException()
{
    const std::exception_ptr reason = std::current_exception();
    try {
        if (reason) {
            std::rethrow_exception(reason);
        }
    } catch (const std::bad_alloc&) {
        tellAndEnd();
    } catch (...) {
        std::abort();
    }
    std::abort();
}

} // namespace

void endWhereMemoryRunsOut()
{
    std::set_terminate(endOfException);
}

} // namespace trel::console
