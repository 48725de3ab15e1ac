#pragma once

#include "trelprogramschedule/dispatch/ScreenPlan.h"
#include "trelprogramschedule_export.h"

#include <array>
#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace trel::mediadispatch {

/// What of a task counts for the screen. Does not change, so that any number of timelines and
/// threads may share one.
class TRELPROGRAMSCHEDULE_EXPORT ScreenTask
{
public:
    /// Costs the entries of its plans. Copies what it needs.
    ScreenTask(const PlayTask& task, const std::map<int, ProgramIten>& catalogue);
    ~ScreenTask();
    Q_DISABLE_COPY(ScreenTask)

    const TaskValidity& validity() const { return m_validity; }
    const std::vector<ScreenPlan>& plans() const { return m_plans; }

    /// Who has the screen on a day of the week, 1 to 7. Worked out when it is first asked for.
    const std::vector<DaySpan>& spansOn(int weekday) const;
    /// How many days of the week have been worked out.
    std::size_t knownDays() const { return m_knownDays; }

private:
    struct Day
    {
        std::once_flag isKnown;
        std::vector<DaySpan> spans;
    };

    std::vector<ScreenPlan> m_plans;
    TaskValidity m_validity;
    mutable std::array<Day, WeekDayCount> m_days;
    mutable std::atomic<std::size_t> m_knownDays = 0;
};

/// The tasks of a schedule by their ids, never null.
using ScreenTasks = std::map<int, std::shared_ptr<const ScreenTask>>;

/// Reads all tasks of a schedule.
TRELPROGRAMSCHEDULE_EXPORT ScreenTasks screenTasks(const std::map<int, PlayTask>& tasks,
                                                   const std::map<int, ProgramIten>& catalogue);

} // namespace trel::mediadispatch
