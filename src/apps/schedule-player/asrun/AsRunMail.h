#pragma once

#include "trelscreen/AsRunRecorder.h"

#include <mutex>
#include <optional>
#include <vector>

namespace trel::player {

/// What waits for the thread that writes the records.
struct AsRunLetter
{
    std::vector<screen::AsRunEntry> entries; ///< In their order; where some are left out, a hole.
    /// The last schedule of those that were left out; it was taken after all others.
    std::optional<screen::ScreenSchedule> scheduleLeftOut;
    std::optional<mediadispatch::AsRunRecord> onScreen; ///< What is on now; none for no news.
};

/// Brings records from the thread of the screen, which it never holds up, to the one that writes
/// them. Where ten thousand wait already, because a disk stands still, others are left out.
class AsRunMail
{
public:
    void post(const screen::AsRunEntry& entry);
    void post(const mediadispatch::AsRunRecord& onScreen);
    /// All that was posted since the last call.
    AsRunLetter take();

private:
    std::mutex m_mutex;
    AsRunLetter m_letter;
    bool m_leavesOut = false; ///< Until all is taken, so that there is one hole alone.
};

} // namespace trel::player
