#include "TaskDays.h"

#include <algorithm>
#include <set>

namespace trel::mediadispatch {

namespace {

/// The task that becomes valid on a day, or is no more.
struct ValidityBorder
{
    DayNumber day = 0;
    int task = 0;
    bool isBegin = false;
};

std::vector<ValidityBorder> sortedBorders(const std::vector<TaskValidity>& tasks)
{
    std::vector<ValidityBorder> borders;
    borders.reserve(tasks.size() * 2);
    for (std::size_t i = 0; i < tasks.size(); ++i) {
        if (tasks[i].first <= tasks[i].last) {
            const int task = static_cast<int>(i);
            borders.push_back({tasks[i].first, task, true});
            borders.push_back({tasks[i].last + 1, task, false});
        }
    }
    std::sort(borders.begin(), borders.end(),
              [](const ValidityBorder& a, const ValidityBorder& b) { return a.day < b.day; });
    return borders;
}

bool hasPlanOn(const TaskRange& range, DayNumber day)
{
    return holdsWeekday(range.weekdays, weekdayOf(day));
}

/// The first and the last day with a plan become the borders. False when there is none.
bool trim(TaskRange& range)
{
    if (range.weekdays == 0) {
        return false;
    }
    while (range.first <= range.last && !hasPlanOn(range, range.first)) {
        ++range.first;
    }
    while (range.first <= range.last && !hasPlanOn(range, range.last)) {
        --range.last;
    }
    return range.first <= range.last;
}

} // namespace

TaskDays::TaskDays(const std::vector<TaskValidity>& tasks)
{
    std::set<int> valid;
    DayNumber reached = 0;
    for (const ValidityBorder& border : sortedBorders(tasks)) {
        if (reached < border.day && !valid.empty()) {
            const int task = *valid.begin();
            TaskRange range = {reached, border.day - 1, task,
                               tasks[static_cast<std::size_t>(task)].weekdays};
            if (trim(range)) {
                m_ranges.push_back(range);
            }
        }
        reached = border.day;
        if (border.isBegin) {
            valid.insert(border.task);
        } else {
            valid.erase(border.task);
        }
    }
}

std::optional<TaskDay> TaskDays::lastUpTo(DayNumber day) const
{
    const auto later = std::upper_bound(
        m_ranges.begin(), m_ranges.end(), day,
        [](DayNumber asked, const TaskRange& range) { return asked < range.first; });
    if (later == m_ranges.begin()) {
        return std::nullopt;
    }
    const TaskRange& range = *std::prev(later);
    DayNumber found = std::min(day, range.last);
    while (!hasPlanOn(range, found)) {
        --found;
    }
    return TaskDay{found, range.task, range.last};
}

std::optional<TaskDay> TaskDays::firstFrom(DayNumber day) const
{
    const auto range = std::lower_bound(
        m_ranges.begin(), m_ranges.end(), day,
        [](const TaskRange& earlier, DayNumber asked) { return earlier.last < asked; });
    if (range == m_ranges.end()) {
        return std::nullopt;
    }
    DayNumber found = std::max(day, range->first);
    while (!hasPlanOn(*range, found)) {
        ++found;
    }
    return TaskDay{found, range->task, range->last};
}

} // namespace trel::mediadispatch
