#include "ScreenTask.h"

#include "service/DateText.h"

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

ScreenTask::ScreenTask(const PlayTask& task, const std::map<int, ProgramIten>& catalogue)
    : m_plans(screenPlans(task.plans, catalogue))
    , m_validity(validityOf(task, m_plans))
{}

ScreenTask::~ScreenTask() = default;

const std::vector<DaySpan>& ScreenTask::spansOn(int weekday) const
{
    Day& day = m_days[static_cast<std::size_t>(weekday)];
    std::call_once(day.isKnown, [&] {
        day.spans = daySpans(claimsOn(weekday, m_plans));
        ++m_knownDays;
    });
    return day.spans;
}

ScreenTasks screenTasks(const std::map<int, PlayTask>& tasks,
                        const std::map<int, ProgramIten>& catalogue)
{
    ScreenTasks result;
    for (const auto& [id, task] : tasks) {
        result.emplace_hint(result.end(), id, std::make_shared<const ScreenTask>(task, catalogue));
    }
    return result;
}

} // namespace trel::mediadispatch
