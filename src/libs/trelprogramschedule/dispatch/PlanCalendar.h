#pragma once

#include "trelprogramschedule/dispatch/ScreenTask.h"
#include "trelprogramschedule/dispatch/ZoneOffsets.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace trel::mediadispatch {

/// A time in which one plan has the screen by the local clock, never beyond the end of a day.
struct HeldSpan
{
    LocalTime begin = 0;
    LocalTime end = 0; ///< Not included.
    /// When the plan's list began that day, whatever had the screen by then.
    LocalTime listBegin = 0;
    int taskId = 0;
    int row = 0;
    const ScreenPlan* plan = nullptr; ///< The same one on every day.
    /// The last of the days in a row on which its task is in effect.
    DayNumber lastDay = 0;
};

/// Which plan has the screen at a time of the local clock. Does not change.
class PlanCalendar
{
public:
    PlanCalendar(const std::map<int, PlayTask>& tasks, const std::map<int, ProgramIten>& catalogue);
    explicit PlanCalendar(const ScreenTasks& tasks);
    /// The calendar of other tasks. Shares what is the same in both.
    PlanCalendar withTasks(const ScreenTasks& tasks) const;

    /// The last span that begins before a time, and the first that ends after it. Each costs the
    /// logarithm of the number of tasks and plans, however far away the span lies.
    std::optional<HeldSpan> lastBefore(LocalTime time) const;
    std::optional<HeldSpan> firstAfter(LocalTime time) const;

    /// The row of a plan; -1 when there is no such plan.
    int rowOf(int taskId, int planId) const;

    /// How many days of the week have been worked out, over all tasks.
    std::size_t knownDays() const;

private:
    struct Task
    {
        int id = 0;
        std::shared_ptr<const ScreenTask> screen;
    };

    static std::vector<Task> listed(const ScreenTasks& tasks);
    static std::vector<TaskValidity> validities(const std::vector<Task>& tasks);
    PlanCalendar(std::vector<Task> tasks, std::shared_ptr<const TaskDays> days);

    const Task& task(const TaskDay& day) const
    {
        return m_tasks[static_cast<std::size_t>(day.task)];
    }
    const std::vector<DaySpan>& spansOf(const TaskDay& day) const
    {
        return task(day).screen->spansOn(weekdayOf(day.day));
    }
    HeldSpan heldSpan(const TaskDay& day, const DaySpan& span) const;

    std::vector<Task> m_tasks; // In ascending id order.
    std::shared_ptr<const TaskDays> m_days;
};

} // namespace trel::mediadispatch
