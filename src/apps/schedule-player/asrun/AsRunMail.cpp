#include "AsRunMail.h"

#include <utility>

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace trel::player {

namespace {

constexpr std::size_t kMost = 10'000;

} // namespace

void AsRunMail::post(const AsRunEntry& entry)
{
    const std::lock_guard lock(m_mutex);
    m_leavesOut = m_leavesOut || m_letter.entries.size() >= kMost;
    if (!m_leavesOut) {
        m_letter.entries.push_back(entry);
    } else if (entry.record.kind == AsRunKind::ScheduleTaken) {
        m_letter.scheduleLeftOut = entry.schedule;
    }
}

void AsRunMail::post(const AsRunRecord& onScreen)
{
    const std::lock_guard lock(m_mutex);
    m_letter.onScreen = onScreen;
}

AsRunLetter AsRunMail::take()
{
    const std::lock_guard lock(m_mutex);
    m_leavesOut = false;
    return std::exchange(m_letter, AsRunLetter());
}

} // namespace trel::player
