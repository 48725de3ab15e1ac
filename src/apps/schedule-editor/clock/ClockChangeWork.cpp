#include "clock/ClockChangeWork.h"

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

void ClockChangeWork::order(const follow::ScheduleEdits& edits, const QTimeZone& zone,
                            const QDate& today)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_edits.add(edits);
    m_zone = zone;
    m_today = today;
}

QDate ClockChangeWork::takeOrder()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const follow::ScheduleEdits edits = std::exchange(m_edits, {});
    const QTimeZone zone = m_zone;
    const QDate today = m_today;
    lock.unlock();

    if (edits.isWhole) {
        m_search = ClockChangeSearch(zone);
    }
    if (edits.catalogue) {
        m_catalogue = edits.catalogue;
    }
    if (edits.catalogue || edits.isWhole) {
        m_search.setCatalogue(m_catalogue);
    }
    for (const auto& [id, task] : edits.tasks) {
        m_search.setTask(id, task);
    }
    return today;
}

std::optional<ClockChangeWork::Changes>
ClockChangeWork::find(int count, const follow::Cancellation& cancellation)
{
    const QDate today = takeOrder();
    Changes changes =
        m_search.next(today, count, [&cancellation] { return !cancellation.isCancelled(); });
    return cancellation.isCancelled() ? std::nullopt : std::make_optional(std::move(changes));
}

} // namespace trel::desktop
