#pragma once

#include "follow/NewestWork.h"
#include "follow/ScheduleEdits.h"
#include "trelprogramschedule/dispatch/TaskDays.h"
#include "week/TaskWeek.h"

#include <QDate>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace trel::desktop::week {

/// The tasks that weeks are laid out from, with what has been worked out of them. A copy shares
/// the records.
class WeekTasks
{
public:
    using Catalogue = std::map<int, trel::mediadispatch::ProgramIten>;

    WeekTasks() = default;
    // Implicit, as a schedule says no more than its tasks do.
    // NOLINTNEXTLINE(google-explicit-constructor)
    WeekTasks(const std::map<int, trel::mediadispatch::PlayTask>& tasks);

    /// Takes edits over, without their catalogue. Returns the ids of the tasks that are other
    /// records than before, or none any more.
    std::vector<int> take(const follow::ScheduleEdits& edits);
    /// Forgets what was worked out with a former catalogue.
    void forgetPrograms() { m_weeks.clear(); }
    /// Works out what is claimed by the tasks in effect on some days, so that layouts find it, and
    /// forgets it of all others. Ends early where it is cancelled.
    void prepare(const QDate& first, int days, const Catalogue& catalogue,
                 const follow::Cancellation& cancellation);

    /// The task in effect on a day: of several that are valid the one with the lowest id.
    std::optional<int> inEffectOn(const QDate& day) const;
    std::vector<int> ids() const;
    /// Null when there is no such task.
    const trel::mediadispatch::PlayTask* find(int taskId) const;
    /// What a task of these claims. Worked out on the spot where it has not been prepared.
    std::shared_ptr<const TaskWeek> weekOf(int taskId, const Catalogue& catalogue) const;

private:
    struct Task
    {
        int id = -1;
        follow::SharedTask record;
        trel::mediadispatch::DayNumber first = 0;
        trel::mediadispatch::DayNumber last = -1;
    };

    static Task taskOf(int id, const follow::SharedTask& record);

    std::vector<Task> m_tasks; ///< In ascending order of ids, so that a copy is one piece.
    std::map<int, std::shared_ptr<const TaskWeek>> m_weeks; ///< Of those that are prepared.
};

} // namespace trel::desktop::week
