#include "week/WeekSchedule.h"

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

WeekSchedule::WeekSchedule(const Tasks& tasks, Catalogue catalogue, ScreenInsertions insertions,
                           const QTimeZone& zone)
    : m_tasks(tasks)
    , m_catalogue(std::make_shared<const Catalogue>(std::move(catalogue)))
    , m_insertions(std::move(insertions))
    , m_zone(zone)
    , m_timeline(tasks, *m_catalogue, m_zone)
{}

WeekSchedule::WeekSchedule(WeekTasks tasks, follow::SharedCatalogue catalogue,
                           ScreenInsertions insertions, const QTimeZone& zone,
                           ScreenTimeline timeline)
    : m_tasks(std::move(tasks))
    , m_catalogue(std::move(catalogue))
    , m_insertions(std::move(insertions))
    , m_zone(zone)
    , m_timeline(std::move(timeline))
{}

WeekLayout WeekSchedule::layout(const QDate& first, const follow::Cancellation& cancellation) const
{
    WeekQuestion question{first, m_zone, m_tasks, *m_catalogue, {}};
    const LocalDays clock(first, kDays, m_zone);
    m_timeline.visitSpans(clock.begin(), clock.end(), m_insertions, [&](const ScreenState& span) {
        question.spans.push_back(span);
        return !cancellation.isCancelled();
    });
    return layoutWeek(question);
}

ScreenState WeekSchedule::at(Instant moment) const
{
    return m_timeline.at(moment, m_insertions);
}

const PlayPlan* WeekSchedule::plan(const ScreenState& state) const
{
    const PlayTask* task = m_tasks.find(state.taskId);
    const auto row = static_cast<std::size_t>(std::max(state.planRow, 0));
    const bool isThere = task != nullptr && state.planRow >= 0 && row < task->plans.size();
    return isThere ? &task->plans[row] : nullptr;
}

QString WeekSchedule::program(int progIndex) const
{
    const auto found = m_catalogue->find(progIndex);
    return found == m_catalogue->end() ? QString() : QString::fromStdString(found->second.progName);
}

} // namespace trel::desktop::week
