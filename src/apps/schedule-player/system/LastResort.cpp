#include "system/LastResort.h"

#include <atomic>
#include <cstdlib>
#include <system_error>
#include <thread>

namespace trel::player {

void endProcessAfter(std::chrono::milliseconds patience, int status)
{
    static std::atomic<bool> isSet{false};
    if (isSet.exchange(true)) {
        return;
    }
    try {
        std::thread([patience, status] {
            std::this_thread::sleep_for(patience);
            // Nothing is taken down, as that is what hangs.
            std::_Exit(status);
        }).detach();
    } catch (const std::system_error&) {
        // Without a thread to be had it ends in order, or the manager of services ends it.
    }
}

} // namespace trel::player
