#include "TaskSets.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace trel::mediadispatch {

namespace {

bool haveSameLists(const PlayPlan& a, const PlayPlan& b)
{
    return a.programs == b.programs && a.serviceList == b.serviceList;
}

/// Whether nothing but fields tells two states of a task apart.
bool haveSameLists(const PlayTask& a, const PlayTask& b)
{
    return std::equal(
        a.plans.begin(), a.plans.end(), b.plans.begin(), b.plans.end(),
        [](const PlayPlan& one, const PlayPlan& other) { return haveSameLists(one, other); });
}

/// Of two states that have the same lists; the last of the former tasks is the one.
void addFieldEdits(TaskEdits& edits, const PlayTask& before, const PlayTask& after)
{
    FormerTask& former = edits.former.back();
    former.keepsLists = true;
    former.keepsDates = before.startDate == after.startDate && before.endDate == after.endDate;
    if (!former.keepsDates) {
        edits.dated.push_back(&after);
    }
    const std::size_t sameUntilHere = edits.plans.size();
    for (std::size_t i = 0; i < after.plans.size(); ++i) {
        if (before.plans[i] != after.plans[i]) {
            edits.plans.push_back({after.id, static_cast<int>(i), &after.plans[i]});
        }
    }
    former.keepsFields = edits.plans.size() == sameUntilHere;
}

/// Adds what turns one task of a set into the one of the same id in another set.
void addEdit(TaskEdits& edits, const TaskMap& from, const TaskMap& to, int taskId,
             const HeldOtherwise& held)
{
    const auto before = from.find(taskId);
    const auto after = to.find(taskId);
    const bool isUnwritten = held.unwritten.count(taskId) > 0;
    const bool isSame =
        before != from.end() && after != to.end() && before->second == after->second;
    if (isSame && !isUnwritten) {
        return;
    }
    if (!isSame && (before != from.end() || after != to.end())) {
        FormerTask& former = edits.former.emplace_back();
        former.taskId = taskId;
        former.task = before == from.end() ? nullptr : &before->second;
        former.after = after == to.end() ? nullptr : &after->second;
    }
    if (before != from.end() && after != to.end() && !isUnwritten) {
        if (held.marked.count(taskId) == 0 && haveSameLists(before->second, after->second)) {
            addFieldEdits(edits, before->second, after->second);
            return;
        }
    }
    if (before != from.end()) {
        edits.removed.push_back(taskId);
    }
    if (after != to.end()) {
        edits.written.push_back(&after->second);
    }
}

/// Makes one task of a set match the one of the same id in another set.
void copyTask(const TaskMap& from, TaskMap& to, int taskId)
{
    const auto source = from.find(taskId);
    if (source == from.end()) {
        to.erase(taskId);
    } else {
        to.insert_or_assign(taskId, source->second);
    }
}

std::set<int> idsOfBoth(const TaskMap& a, const TaskMap& b)
{
    std::set<int> ids;
    for (const TaskMap* tasks : {&a, &b}) {
        for (const auto& [id, task] : *tasks) {
            ids.insert(ids.end(), id);
        }
    }
    return ids;
}

std::vector<PlayPlan>::iterator planWithId(std::vector<PlayPlan>& plans, int planId)
{
    return std::find_if(plans.begin(), plans.end(),
                        [planId](const PlayPlan& plan) { return plan.id == planId; });
}

PlayTask withoutCollisions(PlayTask task)
{
    for (PlayPlan& plan : task.plans) {
        plan.isConflict = false;
    }
    return task;
}

} // namespace

bool isOtherTask(const TaskMap& a, const TaskMap& b, int taskId)
{
    const auto one = a.find(taskId);
    const auto other = b.find(taskId);
    if (one == a.end() || other == b.end()) {
        return (one == a.end()) != (other == b.end());
    }
    return one->second != other->second &&
           withoutCollisions(one->second) != withoutCollisions(other->second);
}

std::set<int> otherTasks(const TaskMap& a, const TaskMap& b)
{
    std::set<int> others;
    for (const int id : idsOfBoth(a, b)) {
        if (isOtherTask(a, b, id)) {
            others.insert(others.end(), id);
        }
    }
    return others;
}

TaskEdits editsBetween(const TaskMap& from, const TaskMap& to, const HeldOtherwise& held)
{
    TaskEdits edits;
    for (const int id : idsOfBoth(from, to)) {
        addEdit(edits, from, to, id, held);
    }
    edits.removesAll = edits.removed.size() == from.size();
    return edits;
}

void TaskSets::setStored(TaskMap tasks)
{
    m_stored = std::move(tasks);
    m_held = {};
    m_touched = idsOfBoth(m_stored, m_working);
}

void TaskSets::setWorking(const TaskMap& tasks)
{
    for (const int id : idsOfBoth(m_working, tasks)) {
        const auto task = tasks.find(id);
        if (task == tasks.end()) {
            removeTask(id);
        } else {
            putTask(task->second);
        }
    }
}

void TaskSets::resetWorking()
{
    for (const int id : m_touched) {
        copyTask(m_stored, m_working, id);
    }
    m_changed.merge(m_touched);
    m_touched.clear();
}

void TaskSets::commitWorking()
{
    for (const int id : m_touched) {
        copyTask(m_working, m_stored, id);
    }
    m_touched.clear();
    m_held.unwritten.clear();
}

std::set<int> TaskSets::takeChanged()
{
    return std::exchange(m_changed, {});
}

void TaskSets::clear()
{
    for (const auto& [id, task] : m_working) {
        m_changed.insert(id);
    }
    m_stored.clear();
    m_working.clear();
    m_touched.clear();
    m_held = {};
}

bool TaskSets::putTask(const PlayTask& task)
{
    const auto [place, isNew] = m_working.try_emplace(task.id);
    if (!isNew && place->second == task) {
        return false;
    }
    place->second = task;
    m_touched.insert(task.id);
    m_changed.insert(task.id);
    return true;
}

void TaskSets::removeTask(int taskId)
{
    if (m_working.erase(taskId) > 0) {
        m_touched.insert(taskId);
        m_changed.insert(taskId);
    }
}

void TaskSets::putPlan(int taskId, const PlayPlan& plan)
{
    const auto task = m_working.find(taskId);
    if (task == m_working.end()) {
        return;
    }
    std::vector<PlayPlan>& plans = task->second.plans;
    const auto place = planWithId(plans, plan.id);
    if (place == plans.end()) {
        plans.push_back(plan);
    } else {
        *place = plan;
    }
    m_touched.insert(taskId);
    m_changed.insert(taskId);
}

bool TaskSets::isEdited() const
{
    return std::any_of(m_touched.begin(), m_touched.end(),
                       [this](int id) { return isOtherTask(m_stored, m_working, id); });
}

TaskEdits TaskSets::edits() const
{
    TaskEdits edits;
    std::set<int> ids = m_touched;
    ids.insert(m_held.unwritten.begin(), m_held.unwritten.end());
    for (const int id : ids) {
        addEdit(edits, m_stored, m_working, id, m_held);
    }
    edits.removesAll = edits.removed.size() == m_stored.size();
    return edits;
}

TaskEdits TaskSets::editsTo(const TaskMap& tasks) const
{
    return editsBetween(m_stored, tasks, m_held);
}

PlayTask findTask(const TaskMap& tasks, int taskId)
{
    const auto found = tasks.find(taskId);
    return found == tasks.end() ? PlayTask() : found->second;
}

PlayPlan findPlan(const TaskMap& tasks, int taskId, int planId, int& index)
{
    const auto task = tasks.find(taskId);
    if (task == tasks.end()) {
        return PlayPlan();
    }
    const std::vector<PlayPlan>& plans = task->second.plans;
    const auto found = std::find_if(plans.begin(), plans.end(),
                                    [planId](const PlayPlan& plan) { return plan.id == planId; });
    if (found == plans.end()) {
        return PlayPlan();
    }
    index = static_cast<int>(found - plans.begin());
    return *found;
}

} // namespace trel::mediadispatch
