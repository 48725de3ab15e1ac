#include "problems/ProblemWork.h"

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

void ProblemWork::order(const follow::ScheduleEdits& edits, const QTimeZone& zone,
                        const QDate& today)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_edits.add(edits);
    m_zone = zone;
    m_today = today;
}

void ProblemWork::taken(int number)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_taken = number;
}

void ProblemWork::takeOrder()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const follow::ScheduleEdits edits = std::exchange(m_edits, {});
    const QTimeZone zone = m_zone;
    const QDate today = m_today;
    const bool isTaken = m_taken == m_pending.number;
    lock.unlock();

    if (isTaken) {
        m_pending.isWhole = false;
        m_pending.lists.clear();
    }
    if (edits.isWhole) {
        m_search = ProblemSearch();
        m_pending.isWhole = true;
        m_pending.lists.clear();
    }
    if (edits.catalogue) {
        m_catalogue = edits.catalogue;
    }
    if (m_catalogue) {
        m_search.setCatalogue(m_catalogue);
    }
    m_search.setDays(today, today, zone);
    for (const auto& [id, task] : edits.tasks) {
        m_search.setTask(id, task);
    }
}

std::optional<ProblemChanges> ProblemWork::find(const follow::Cancellation& cancellation)
{
    takeOrder();
    for (auto& [id, list] :
         m_search.next([&cancellation] { return !cancellation.isCancelled(); })) {
        m_pending.lists[id] = std::move(list);
    }
    ++m_pending.number;
    return cancellation.isCancelled() ? std::nullopt : std::make_optional(m_pending);
}

} // namespace trel::desktop
