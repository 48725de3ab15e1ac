#include "week/moves/DayCopy.h"

#include "service/WeekDays.h"
#include "week/WeekTasks.h"
#include "week/moves/NewPlans.h"

#include <algorithm>
#include <set>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

bool playsOn(const PlayPlan& plan, int weekday)
{
    std::vector<int> numbers;
    return parseWeeks(plan.weeks, numbers) ||
           std::find(numbers.begin(), numbers.end(), weekday) != numbers.end();
}

/// As when the days are ticked in the row of the plan.
void addDays(PlayPlan& plan, const std::set<int>& weekdays)
{
    std::vector<int> numbers;
    if (parseWeeks(plan.weeks, numbers)) {
        return;
    }
    std::set<int> days(numbers.begin(), numbers.end());
    const bool areDaysOfWeek = *days.begin() >= Monday && *days.rbegin() <= Sunday;
    if (areDaysOfWeek) {
        days.insert(weekdays.begin(), weekdays.end());
    }
    const bool isAny =
        areDaysOfWeek && days.size() != std::set<int>(numbers.begin(), numbers.end()).size();
    if (isAny) {
        plan.weeks = joinWeeks({days.begin(), days.end()});
    }
}

int collisionsIn(const PlayTask& task)
{
    return static_cast<int>(std::count_if(task.plans.begin(), task.plans.end(),
                                          [](const PlayPlan& plan) { return plan.isConflict; }));
}

} // namespace

DayCopy copyDay(const WeekTasks& tasks, const QDate& from, const std::vector<QDate>& onto,
                const Programs& programs, const NoDurationTest& hasNoDuration)
{
    DayCopy copy;
    const std::optional<int> source = tasks.inEffectOn(from);
    std::map<int, std::set<int>> weekdays; // By task.
    for (const QDate& day : onto) {
        if (const std::optional<int> id = tasks.inEffectOn(day)) {
            weekdays[*id].insert(day.dayOfWeek());
        } else {
            copy.withoutTask.push_back(day);
        }
    }
    if (!source) {
        return copy;
    }
    const PlayTask& original = *tasks.find(*source);
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < original.plans.size(); ++row) {
        if (playsOn(original.plans[row], from.dayOfWeek())) {
            rows.push_back(row);
        }
    }
    copy.plans = static_cast<int>(rows.size());
    for (const auto& [id, days] : weekdays) {
        PlayTask task = *tasks.find(id);
        markCollisions(task, programs, hasNoDuration);
        PlayTask changed = task;
        for (const std::size_t row : rows) {
            if (id == *source) {
                addDays(changed.plans[row], days);
            } else if (std::optional<PlayPlan> plan =
                           planLike(original.plans[row], days, changed, programs, hasNoDuration)) {
                changed.plans.push_back(std::move(*plan));
            }
        }
        markCollisions(changed, programs, hasNoDuration);
        if (changed.plans != task.plans) {
            copy.collisions += std::max(0, collisionsIn(changed) - collisionsIn(task));
            copy.tasks.emplace(id, std::move(changed));
        }
    }
    return copy;
}

std::vector<int> newRows(const PlayTask& before, const PlayTask& after, int weekday)
{
    std::vector<int> rows;
    for (std::size_t row = 0; row < after.plans.size(); ++row) {
        const bool wasThere = row < before.plans.size() && playsOn(before.plans[row], weekday);
        if (!wasThere && playsOn(after.plans[row], weekday)) {
            rows.push_back(static_cast<int>(row));
        }
    }
    return rows;
}

} // namespace trel::desktop::week
