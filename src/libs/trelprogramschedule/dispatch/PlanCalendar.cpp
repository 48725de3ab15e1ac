#include "PlanCalendar.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace trel::mediadispatch {

PlanCalendar::PlanCalendar(const std::map<int, PlayTask>& tasks,
                           const std::map<int, ProgramIten>& catalogue)
    : PlanCalendar(screenTasks(tasks, catalogue))
{}

PlanCalendar::PlanCalendar(const ScreenTasks& tasks)
    : m_tasks(listed(tasks))
    , m_days(std::make_shared<const TaskDays>(validities(m_tasks)))
{}

PlanCalendar::PlanCalendar(std::vector<Task> tasks, std::shared_ptr<const TaskDays> days)
    : m_tasks(std::move(tasks))
    , m_days(std::move(days))
{}

PlanCalendar PlanCalendar::withTasks(const ScreenTasks& tasks) const
{
    const bool areDaysTheSame = std::equal(
        m_tasks.begin(), m_tasks.end(), tasks.begin(), tasks.end(),
        [](const Task& own, const auto& other) {
            return own.id == other.first && own.screen->validity() == other.second->validity();
        });
    return areDaysTheSame ? PlanCalendar(listed(tasks), m_days) : PlanCalendar(tasks);
}

std::vector<PlanCalendar::Task> PlanCalendar::listed(const ScreenTasks& tasks)
{
    std::vector<Task> result;
    result.reserve(tasks.size());
    for (const auto& [id, task] : tasks) {
        result.push_back({id, task});
    }
    return result;
}

std::vector<TaskValidity> PlanCalendar::validities(const std::vector<Task>& tasks)
{
    std::vector<TaskValidity> result;
    result.reserve(tasks.size());
    for (const Task& task : tasks) {
        result.push_back(task.screen->validity());
    }
    return result;
}

std::optional<HeldSpan> PlanCalendar::lastBefore(LocalTime time) const
{
    std::optional<TaskDay> day = m_days->lastUpTo(dayOf(time - 1));
    if (!day) {
        return std::nullopt;
    }
    const std::vector<DaySpan>* spans = &spansOf(*day);
    const auto later = std::lower_bound(
        spans->begin(), spans->end(), time,
        [&](const DaySpan& span, LocalTime asked) { return timeOn(day->day, span.begin) < asked; });
    if (later != spans->begin()) {
        return heldSpan(*day, *std::prev(later));
    }
    day = m_days->lastUpTo(day->day - 1);
    return day ? std::make_optional(heldSpan(*day, spansOf(*day).back())) : std::nullopt;
}

std::optional<HeldSpan> PlanCalendar::firstAfter(LocalTime time) const
{
    std::optional<TaskDay> day = m_days->firstFrom(dayOf(time));
    if (!day) {
        return std::nullopt;
    }
    const std::vector<DaySpan>* spans = &spansOf(*day);
    const auto found = std::upper_bound(
        spans->begin(), spans->end(), time,
        [&](LocalTime asked, const DaySpan& span) { return asked < timeOn(day->day, span.end); });
    if (found != spans->end()) {
        return heldSpan(*day, *found);
    }
    day = m_days->firstFrom(day->day + 1);
    return day ? std::make_optional(heldSpan(*day, spansOf(*day).front())) : std::nullopt;
}

int PlanCalendar::rowOf(int taskId, int planId) const
{
    const auto found =
        std::lower_bound(m_tasks.begin(), m_tasks.end(), taskId,
                         [](const Task& task, int asked) { return task.id < asked; });
    if (found == m_tasks.end() || found->id != taskId) {
        return -1;
    }
    const std::vector<ScreenPlan>& plans = found->screen->plans();
    const auto plan =
        std::find_if(plans.begin(), plans.end(),
                     [planId](const ScreenPlan& candidate) { return candidate.planId == planId; });
    return plan == plans.end() ? -1 : static_cast<int>(plan - plans.begin());
}

std::size_t PlanCalendar::knownDays() const
{
    return std::accumulate(
        m_tasks.begin(), m_tasks.end(), std::size_t{0},
        [](std::size_t days, const Task& task) { return days + task.screen->knownDays(); });
}

HeldSpan PlanCalendar::heldSpan(const TaskDay& day, const DaySpan& span) const
{
    const Task& ofDay = task(day);
    const ScreenPlan& plan = ofDay.screen->plans()[static_cast<std::size_t>(span.row)];
    return {timeOn(day.day, span.begin),
            timeOn(day.day, span.end),
            timeOn(day.day, plan.claim.begin),
            ofDay.id,
            span.row,
            &plan,
            day.lastOfRange};
}

} // namespace trel::mediadispatch
