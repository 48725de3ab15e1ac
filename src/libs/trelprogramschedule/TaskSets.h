#pragma once

#include "service/ScheduleRecords.h"

#include <map>
#include <set>
#include <vector>

namespace trel::mediadispatch {

using TaskMap = std::map<int, PlayTask>;

/// A plan whose own fields have changed, but none of its lists.
struct PlanEdit
{
    int taskId = -1;
    int position = 0; ///< Among the plans of the task.
    const PlayPlan* plan = nullptr;
};

/// A task that is going to be another one, as it was before; null for one that is new.
struct FormerTask
{
    int taskId = -1;
    const PlayTask* task = nullptr;
    const PlayTask* after = nullptr; ///< As it is going to be; null for one that goes.
    /// The lists are known to stay the same, and the others are told below; else nothing is known.
    bool keepsLists = false;
    bool keepsDates = false;
    bool keepsFields = false; ///< Of the plans.
};

/// What turns a stored set into another: the tasks to take out first, and those to put in then. A
/// task that has changed stands in both, but for one of which only some fields are others: what an
/// operator mostly does to a task. The pointers lead into the two sets that were asked.
struct TaskEdits
{
    std::vector<int> removed;
    std::vector<const PlayTask*> written;
    std::vector<const PlayTask*> dated; ///< Those that have other dates. Of plans, what follows.
    std::vector<PlanEdit> plans;
    bool removesAll = false; ///< Not one task stays as it was.
    /// Of the tasks that differ in the two sets, what the edits do away with, ascending. What is
    /// only written because the store holds it otherwise is not among them.
    std::vector<FormerTask> former;

    bool isEmpty() const
    {
        return removed.empty() && written.empty() && dated.empty() && plans.empty();
    }
};

/// What the store holds otherwise than the set that was read from it, by ids of tasks.
struct HeldOtherwise
{
    std::set<int> unwritten; ///< To be written whole with the next edits, edited or not.
    std::set<int> marked;    ///< Without the marks of lost entries; written whole when edited.
};

/// Everything that turns one set into another one.
TaskEdits editsBetween(const TaskMap& from, const TaskMap& to, const HeldOtherwise& held = {});

/// The tasks in which two sets differ by more than their marks of collision, which are worked out
/// afresh wherever a task is shown.
std::set<int> otherTasks(const TaskMap& a, const TaskMap& b);
/// Whether a task is one of these.
bool isOtherTask(const TaskMap& a, const TaskMap& b, int taskId);

/// The stored and the working set. Knows which tasks have been touched since the two were last the
/// same, so that its questions cost what was edited and not what there is.
class TaskSets
{
public:
    const TaskMap& stored() const { return m_stored; }
    const TaskMap& working() const { return m_working; }

    /// Replaces the stored set; the working set stays.
    void setStored(TaskMap tasks);
    /// Marks the entries of the stored set whose program is not among the known ones as gone bad.
    template <typename IsKnown>
    void markLostEntries(const IsKnown& isKnown);
    /// Lets update work out afresh, in every task of both sets, what follows from something that no
    /// set holds; it is handed a task and tells whether that is another one now. No edit comes of
    /// it, but the tasks that the store holds otherwise are written with the next edits. True when
    /// a task of the working set is another one.
    template <typename Update>
    bool updateTasks(const Update& update);
    /// Replaces the working set; the stored set stays.
    void setWorking(const TaskMap& tasks);
    /// Makes the working set match the stored set.
    void resetWorking();
    /// Makes the stored set match the working set.
    void commitWorking();
    void clear();

    /// The tasks of the working set that were put in, taken out or changed since this was last
    /// asked.
    std::set<int> takeChanged();

    /// False, and nothing is copied or touched, when the working set has the task as it is.
    bool putTask(const PlayTask& task);
    void removeTask(int taskId);
    /// Replaces the first plan with this id, or appends it; nothing without such a task.
    void putPlan(int taskId, const PlayPlan& plan);

    /// True when the operator has changed something. Collisions are worked out afresh wherever a
    /// task is shown, so that they alone are no change.
    bool isEdited() const;
    /// What turns the store into the working set.
    TaskEdits edits() const;
    /// What turns the store into another set.
    TaskEdits editsTo(const TaskMap& tasks) const;

private:
    TaskMap m_stored;
    TaskMap m_working;
    std::set<int> m_touched; ///< Every task in which the two may differ.
    std::set<int> m_changed; ///< See takeChanged().
    HeldOtherwise m_held;    ///< Of the stored set.
};

/// The task, or an empty record.
PlayTask findTask(const TaskMap& tasks, int taskId);
/// The first plan with this id, with its position in index; index stays as it is without one.
PlayPlan findPlan(const TaskMap& tasks, int taskId, int planId, int& index);

/// Marks entries that refer to a program which is not known any more; true when there was one. An
/// entry that refers to nothing in the first place stays as it is.
template <typename IsKnown>
bool markLostEntries(PlayTask& task, const IsKnown& isKnown)
{
    bool marked = false;
    for (PlayPlan& plan : task.plans) {
        for (struProgInfo& entry : plan.programs) {
            if (!entry.isInvalid && entry.progIndex < kInvalidProgIndex &&
                !isKnown(entry.progIndex)) {
                entry.isInvalid = true;
                marked = true;
            }
        }
    }
    return marked;
}

template <typename IsKnown>
void TaskSets::markLostEntries(const IsKnown& isKnown)
{
    for (auto& [id, task] : m_stored) {
        if (mediadispatch::markLostEntries(task, isKnown)) {
            m_touched.insert(id);
            m_held.marked.insert(id);
        }
    }
}

template <typename Update>
bool TaskSets::updateTasks(const Update& update)
{
    for (auto& [id, task] : m_stored) {
        if (update(task)) {
            m_touched.insert(id);
            m_held.unwritten.insert(id);
        }
    }
    bool isAnother = false;
    for (auto& [id, task] : m_working) {
        if (update(task)) {
            m_touched.insert(id);
            m_changed.insert(id);
            isAnother = true;
        }
    }
    return isAnother;
}

} // namespace trel::mediadispatch
