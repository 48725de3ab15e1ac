#pragma once

#include "trelprogramschedule/problems/PeriodTree.h"
#include "trelprogramschedule_export.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>

namespace trel::mediadispatch {

/// For each task the first one, of a smaller id, whose period overlaps its own. Follows tasks that
/// come, go and move at the cost of those whose periods the old or the new one overlaps, or of
/// sorting all of them, whichever is less.
class TRELPROGRAMSCHEDULE_EXPORT TaskOverlaps
{
public:
    TaskOverlaps();
    ~TaskOverlaps();
    TaskOverlaps(TaskOverlaps&&) noexcept;
    TaskOverlaps& operator=(TaskOverlaps&&) noexcept;

    /// Takes note of the period of a task; of none for one that goes.
    void setPeriod(int taskId, std::optional<Period> period);
    /// Brings everything up to date. The tasks for which firstOf() tells another one than before,
    /// or one that has moved.
    std::set<int> update();
    /// The first task that overlaps this one; -1 for none. As of the last update().
    int firstOf(int taskId) const;
    /// As it was set.
    const Period& periodOf(int taskId) const { return m_periods.at(taskId); }

private:
    std::set<int> touched() const;
    int find(int taskId) const;
    std::map<int, int> findAll() const;

    std::map<int, Period> m_periods;
    std::map<int, std::optional<Period>> m_former; ///< Of those that were set since update().
    PeriodTree m_tree;
    std::map<int, int> m_first; ///< Of those that overlap a task.
};

} // namespace trel::mediadispatch
