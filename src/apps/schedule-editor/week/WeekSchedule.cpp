#include "week/WeekSchedule.h"

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

namespace week {

WeekSchedule::WeekSchedule(Tasks tasks, Catalogue catalogue, ScreenInsertions insertions,
                           const QTimeZone& zone)
    : m_tasks(std::move(tasks))
    , m_catalogue(std::move(catalogue))
    , m_insertions(std::move(insertions))
    , m_zone(zone)
    , m_timeline(m_tasks, m_catalogue, m_zone)
{}

WeekLayout WeekSchedule::layout(const QDate& first) const
{
    WeekQuestion question{first, m_zone, m_tasks, m_catalogue, {}};
    const WallClock clock(first, kDays, m_zone);
    m_timeline.visitSpans(clock.begin(), clock.end(), m_insertions,
                          [&question](const ScreenState& span) {
                              question.spans.push_back(span);
                              return true;
                          });
    return layoutWeek(question);
}

ScreenState WeekSchedule::at(Instant moment) const
{
    return m_timeline.at(moment, m_insertions);
}

const PlayPlan* WeekSchedule::plan(const ScreenState& state) const
{
    const auto task = m_tasks.find(state.taskId);
    const auto row = static_cast<std::size_t>(std::max(state.planRow, 0));
    const bool isThere =
        task != m_tasks.end() && state.planRow >= 0 && row < task->second.plans.size();
    return isThere ? &task->second.plans[row] : nullptr;
}

QString WeekSchedule::program(int progIndex) const
{
    const auto found = m_catalogue.find(progIndex);
    return found == m_catalogue.end() ? QString() : QString::fromStdString(found->second.progName);
}

} // namespace week
