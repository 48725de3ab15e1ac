#include "week/WeekTasks.h"

#include "service/DateText.h"

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

WeekTasks::WeekTasks(const std::map<int, PlayTask>& tasks)
{
    for (const auto& [id, task] : tasks) {
        m_tasks.push_back(taskOf(id, std::make_shared<const PlayTask>(task)));
    }
}

WeekTasks::Task WeekTasks::taskOf(int id, const follow::SharedTask& record)
{
    Task task{id, record};
    const QDate first = dateFromText(record->startDate);
    const QDate last = dateFromText(record->endDate);
    if (first.isValid() && last.isValid()) {
        task.first = dayNumber(first);
        task.last = dayNumber(last);
    }
    return task;
}

std::vector<int> WeekTasks::take(const follow::ScheduleEdits& edits)
{
    std::vector<int> changed;
    std::vector<Task> former = std::exchange(m_tasks, {});
    m_tasks.reserve(former.size() + edits.tasks.size());
    auto own = former.begin();
    const auto passUpTo = [&](auto isBefore) {
        for (; own != former.end() && isBefore(*own); ++own) {
            if (edits.isWhole) {
                changed.push_back(own->id);
            } else {
                m_tasks.push_back(std::move(*own));
            }
        }
    };
    for (const auto& entry : edits.tasks) {
        const int id = entry.first;
        passUpTo([id](const Task& task) { return task.id < id; });
        const bool isKnown = own != former.end() && own->id == id;
        if (isKnown && own->record == entry.second) {
            m_tasks.push_back(std::move(*own));
        } else {
            changed.push_back(id);
            if (entry.second) {
                m_tasks.push_back(taskOf(id, entry.second));
            }
        }
        own += isKnown ? 1 : 0;
    }
    passUpTo([](const Task&) { return true; });
    for (const int id : changed) {
        m_weeks.erase(id);
    }
    return changed;
}

void WeekTasks::prepare(const QDate& first, int days, const Catalogue& catalogue,
                        const follow::Cancellation& cancellation)
{
    std::map<int, std::shared_ptr<const TaskWeek>> weeks;
    for (int day = 0; day < days && !cancellation.isCancelled(); ++day) {
        const std::optional<int> id = inEffectOn(first.addDays(day));
        if (id && weeks.count(*id) == 0) {
            weeks.emplace(*id, weekOf(*id, catalogue));
        }
    }
    if (cancellation.isCancelled()) {
        m_weeks.merge(weeks);
    } else {
        m_weeks.swap(weeks);
    }
}

std::optional<int> WeekTasks::inEffectOn(const QDate& day) const
{
    const DayNumber number = dayNumber(day);
    const auto found = std::find_if(m_tasks.begin(), m_tasks.end(), [number](const Task& task) {
        return task.first <= number && number <= task.last;
    });
    return found == m_tasks.end() ? std::nullopt : std::make_optional(found->id);
}

std::vector<int> WeekTasks::ids() const
{
    std::vector<int> ids;
    ids.reserve(m_tasks.size());
    for (const Task& task : m_tasks) {
        ids.push_back(task.id);
    }
    return ids;
}

const PlayTask* WeekTasks::find(int taskId) const
{
    const auto found =
        std::lower_bound(m_tasks.begin(), m_tasks.end(), taskId,
                         [](const Task& task, int asked) { return task.id < asked; });
    return found == m_tasks.end() || found->id != taskId ? nullptr : found->record.get();
}

std::shared_ptr<const TaskWeek> WeekTasks::weekOf(int taskId, const Catalogue& catalogue) const
{
    const auto known = m_weeks.find(taskId);
    return known != m_weeks.end() ? known->second
                                  : std::make_shared<const TaskWeek>(*find(taskId), catalogue);
}

} // namespace trel::desktop::week
