#pragma once

#include "TaskSets.h"

#include <optional>
#include <vector>

namespace trel::mediadispatch {

/// A plan that takes the place of another for a while.
struct PlanInsertion
{
    int taskId = 0;
    int planId = 0;
    PlayPlan plan;
    bool isDelayed = false;             ///< Waits until the current play has ended.
    std::vector<struProgInfo> original; ///< The plan's list as it stood before.
};

/// The schedule that was started, apart from what is stored and what is being edited, with the one
/// insertion that may stand in it.
class ScheduleInEffect
{
public:
    /// Puts a schedule in the place of the former one, whose insertion goes with it.
    void start(const TaskMap& tasks);
    void stop();
    bool isRunning() const { return m_running; }

    const TaskMap& tasks() const { return m_tasks; }
    const std::optional<PlanInsertion>& insertion() const { return m_insertion; }

    /// As findPlan, with the insertion applied.
    PlayPlan plan(int taskId, int planId, int& index) const;

    /// Takes the place of any earlier insertion. Ignored when the plan is not in effect.
    void insert(int taskId, int planId, const PlayPlan& plan, bool isDelayed);
    /// Kept with the insertion; ignored when there is none.
    void setOriginal(const std::vector<struProgInfo>& programs);

private:
    bool m_running = false;
    TaskMap m_tasks;
    std::optional<PlanInsertion> m_insertion;
};

} // namespace trel::mediadispatch
