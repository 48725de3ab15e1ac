#include "PlanCalendar.h"

#include "service/DateText.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

TaskValidity validityOf(const PlayTask& task, const std::vector<ScreenPlan>& plans)
{
    const QDate first = dateFromText(task.startDate);
    const QDate last = dateFromText(task.endDate);
    if (!first.isValid() || !last.isValid()) {
        return {};
    }
    TaskValidity validity = {dayNumber(first), dayNumber(last), 0};
    for (const ScreenPlan& plan : plans) {
        if (plan.claimsAnything()) {
            validity.weekdays |= plan.weekdays;
        }
    }
    return validity;
}

std::vector<ClaimedSpan> claimsOn(int weekday, const std::vector<ScreenPlan>& plans)
{
    std::vector<ClaimedSpan> claims;
    claims.reserve(plans.size());
    for (const ScreenPlan& plan : plans) {
        claims.push_back(holdsWeekday(plan.weekdays, weekday) ? plan.claim : ClaimedSpan{});
    }
    return claims;
}

} // namespace

PlanCalendar::PlanCalendar(const std::map<int, PlayTask>& tasks,
                           const std::map<int, ProgramIten>& catalogue)
    : m_tasks(readTasks(tasks, catalogue))
    , m_days(validities(m_tasks))
{}

std::vector<PlanCalendar::Task> PlanCalendar::readTasks(const std::map<int, PlayTask>& tasks,
                                                        const std::map<int, ProgramIten>& catalogue)
{
    std::vector<Task> result;
    result.reserve(tasks.size());
    for (const auto& [id, task] : tasks) {
        Task& read = result.emplace_back();
        read.id = id;
        read.plans = screenPlans(task.plans, catalogue);
        read.validity = validityOf(task, read.plans);
    }
    return result;
}

std::vector<TaskValidity> PlanCalendar::validities(const std::vector<Task>& tasks)
{
    std::vector<TaskValidity> result;
    result.reserve(tasks.size());
    for (const Task& task : tasks) {
        result.push_back(task.validity);
    }
    return result;
}

std::optional<HeldSpan> PlanCalendar::lastBefore(LocalTime time) const
{
    std::optional<TaskDay> day = m_days.lastUpTo(dayOf(time - 1));
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
    day = m_days.lastUpTo(day->day - 1);
    return day ? std::make_optional(heldSpan(*day, spansOf(*day).back())) : std::nullopt;
}

std::optional<HeldSpan> PlanCalendar::firstAfter(LocalTime time) const
{
    std::optional<TaskDay> day = m_days.firstFrom(dayOf(time));
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
    day = m_days.firstFrom(day->day + 1);
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
    const auto plan =
        std::find_if(found->plans.begin(), found->plans.end(),
                     [planId](const ScreenPlan& candidate) { return candidate.planId == planId; });
    return plan == found->plans.end() ? -1 : static_cast<int>(plan - found->plans.begin());
}

const std::vector<DaySpan>& PlanCalendar::spansOf(const TaskDay& day) const
{
    const int weekday = weekdayOf(day.day);
    std::optional<std::vector<DaySpan>>& spans =
        task(day).spansByWeekday[static_cast<std::size_t>(weekday)];
    if (!spans) {
        spans = daySpans(claimsOn(weekday, task(day).plans));
        ++m_knownDays;
    }
    return *spans;
}

HeldSpan PlanCalendar::heldSpan(const TaskDay& day, const DaySpan& span) const
{
    const Task& ofDay = task(day);
    const ScreenPlan& plan = ofDay.plans[static_cast<std::size_t>(span.row)];
    return {timeOn(day.day, span.begin),
            timeOn(day.day, span.end),
            timeOn(day.day, plan.claim.begin),
            ofDay.id,
            span.row,
            &plan,
            day.lastOfRange};
}

} // namespace trel::mediadispatch
