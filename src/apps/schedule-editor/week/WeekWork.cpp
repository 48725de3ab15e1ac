#include "week/WeekWork.h"

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

void WeekWork::order(const follow::ScheduleEdits& edits, const WeekFrame& frame)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_orderedEdits.add(edits);
    m_orderedFrame = frame;
}

void WeekWork::takeOrder()
{
    follow::ScheduleEdits edits;
    const QTimeZone formerZone = m_frame.zone;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        edits = std::exchange(m_orderedEdits, {});
        m_frame = m_orderedFrame;
    }
    for (const int id : m_tasks.take(edits)) {
        m_unread.insert(id);
    }
    if (edits.catalogue && edits.catalogue != m_catalogue) {
        m_catalogue = edits.catalogue;
        m_tasks.forgetPrograms();
        for (const int id : m_tasks.ids()) {
            m_unread.insert(id);
        }
        m_former.reset();
    }
    if (m_frame.zone != formerZone) {
        m_former.reset();
    }
}

bool WeekWork::readTasks(const follow::Cancellation& cancellation)
{
    while (!m_unread.empty() && !cancellation.isCancelled()) {
        const int id = *m_unread.begin();
        if (const PlayTask* task = m_tasks.find(id)) {
            m_screenTasks.insert_or_assign(id,
                                           std::make_shared<const ScreenTask>(*task, *m_catalogue));
        } else {
            m_screenTasks.erase(id);
        }
        m_unread.erase(m_unread.begin());
    }
    return m_unread.empty();
}

ScreenTimeline WeekWork::timeline() const
{
    return m_former ? m_former->timeline().withTasks(m_screenTasks)
                    : ScreenTimeline({}, *m_catalogue, m_frame.zone).withTasks(m_screenTasks);
}

std::optional<WeekPicture> WeekWork::make(const follow::Cancellation& cancellation)
{
    takeOrder();
    if (!readTasks(cancellation)) {
        return std::nullopt;
    }
    m_tasks.prepare(m_frame.first, kDays, *m_catalogue, cancellation);
    if (cancellation.isCancelled()) {
        return std::nullopt;
    }
    const auto schedule = std::make_shared<const WeekSchedule>(
        m_tasks, m_catalogue, m_frame.insertions, m_frame.zone, timeline());
    auto layout = std::make_shared<const WeekLayout>(schedule->layout(m_frame.first, cancellation));
    if (cancellation.isCancelled()) {
        return std::nullopt;
    }
    m_shown = std::exchange(m_former, schedule);
    return WeekPicture{schedule, std::move(layout)};
}

} // namespace trel::desktop::week
