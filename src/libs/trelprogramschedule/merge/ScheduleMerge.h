#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule_export.h"

#include <map>
#include <optional>
#include <vector>

namespace trel::mediadispatch {

/// Whose state of a task stays that was changed at two desks.
enum class MergeSide {
    Mine,   ///< As it is edited here.
    Theirs, ///< As it was saved elsewhere.
};

/// Puts together what two desks have made of one schedule: a pure rule of three states, task by
/// task.
///
/// - A task that one of the two has changed, added or deleted is as that one has it.
/// - A change that both have made is made once.
/// - A task that both have changed, or that one has changed and the other has deleted, is a
///   conflict. One of the two states stays, as a whole, and the caller tells which.
/// - Tasks that both have added are both kept. Where they have the same id and are not the same,
///   mine gets another one: those that are free above all ids of the three states, in the order of
///   the ids; past the largest number, the smallest that are free.
///
/// Marks of collision, marks of entries that have gone bad, and ends that follow from the lengths
/// of programs are worked out afresh wherever a task is read: they alone are no change. Of what
/// both have alike, the record is theirs.
///
/// Tasks stand in the order of their ids, and plans within one in the order that the state has
/// which the task is taken from. The same three states always give the same. It costs n log n over
/// all that the states hold.
///
/// What comes of it may have tasks that are valid on the same days, which no operator may save:
/// firstTaskOverlap() tells.
class TRELPROGRAMSCHEDULE_EXPORT ScheduleMerge
{
public:
    /// A state of a schedule: its tasks by their ids.
    using Tasks = std::map<int, PlayTask>;
    /// What stays of the tasks in conflict, by their ids.
    using Choices = std::map<int, MergeSide>;

    /// The state that both began with, the one that was saved elsewhere and the one that is edited
    /// here. Each holds its tasks under their own ids.
    ScheduleMerge(Tasks base, Tasks theirs, Tasks mine);

    /// The ids of the tasks in conflict, ascending. All of them are tasks of the base.
    const std::vector<int>& conflicts() const { return m_conflicts; }
    /// The tasks of mine that have another id in what comes of it: the new one by the former.
    const std::map<int, int>& renumbered() const { return m_renumbered; }

    /// What comes of it. A conflict for which nothing is chosen is as theirs has it; a choice for
    /// any other task is left out of account.
    Tasks merged(const Choices& choices) const;

    /// The state that both began with, as it was given.
    const Tasks& base() const { return m_base; }
    /// What was saved elsewhere, as it was given.
    const Tasks& theirs() const { return m_theirs; }
    /// What is edited here, as it was given.
    const Tasks& mine() const { return m_mine; }

    /// What is edited here, as edits of theirs: by their ids the tasks that theirs does not have
    /// so, and none for one that was deleted. With them theirs becomes what merged() gives where
    /// mine is chosen for every conflict.
    std::map<int, std::optional<PlayTask>> edits() const;

private:
    void mergeTask(int taskId);
    void renumber();

    Tasks m_base;
    Tasks m_theirs;
    Tasks m_mine;
    Tasks m_settled; ///< What comes of it, without the tasks in conflict.
    std::vector<int> m_conflicts;
    std::map<int, int> m_renumbered;
};

} // namespace trel::mediadispatch
