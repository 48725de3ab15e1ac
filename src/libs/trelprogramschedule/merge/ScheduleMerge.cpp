#include "ScheduleMerge.h"

#include <algorithm>
#include <limits>
#include <set>
#include <utility>

namespace trel::mediadispatch {

namespace {

using Tasks = ScheduleMerge::Tasks;

const PlayTask* find(const Tasks& tasks, int taskId)
{
    const auto found = tasks.find(taskId);
    return found == tasks.end() ? nullptr : &found->second;
}

/// A plan as somebody has made it, without what is worked out.
PlayPlan asMade(PlayPlan plan)
{
    plan.isConflict = false;
    if (plan.mode == FrequencyMode) {
        plan.endTime.clear();
    }
    for (struProgInfo& entry : plan.programs) {
        entry.isInvalid = false;
    }
    return plan;
}

bool isSamePlan(const PlayPlan& a, const PlayPlan& b)
{
    return a == b || asMade(a) == asMade(b);
}

/// Null stands for no task.
bool isSame(const PlayTask* a, const PlayTask* b)
{
    if (a == nullptr || b == nullptr) {
        return a == b;
    }
    return a->startDate == b->startDate && a->endDate == b->endDate &&
           std::equal(a->plans.begin(), a->plans.end(), b->plans.begin(), b->plans.end(),
                      isSamePlan);
}

std::set<int> idsOf(const Tasks& base, const Tasks& theirs, const Tasks& mine)
{
    std::set<int> ids;
    for (const Tasks* tasks : {&base, &theirs, &mine}) {
        for (const auto& [id, task] : *tasks) {
            ids.insert(id);
        }
    }
    return ids;
}

/// The next id that is free above all that are in use, or else the smallest one.
int freeId(const std::set<int>& used)
{
    constexpr int first = 1;
    if (used.empty() || *used.rbegin() < first) {
        return first;
    }
    if (*used.rbegin() < std::numeric_limits<int>::max()) {
        return *used.rbegin() + 1;
    }
    int free = first;
    for (auto id = used.lower_bound(first); id != used.end() && *id == free; ++id) {
        ++free;
    }
    return free;
}

void put(Tasks& tasks, int taskId, const PlayTask* task)
{
    if (task != nullptr) {
        tasks.insert_or_assign(taskId, *task);
    }
}

} // namespace

ScheduleMerge::ScheduleMerge(Tasks base, Tasks theirs, Tasks mine)
    : m_base(std::move(base))
    , m_theirs(std::move(theirs))
    , m_mine(std::move(mine))
{
    for (const int id : idsOf(m_base, m_theirs, m_mine)) {
        mergeTask(id);
    }
    renumber();
}

void ScheduleMerge::mergeTask(int taskId)
{
    const PlayTask* const base = find(m_base, taskId);
    const PlayTask* const theirs = find(m_theirs, taskId);
    const PlayTask* const mine = find(m_mine, taskId);
    if (isSame(mine, base) || isSame(mine, theirs)) {
        put(m_settled, taskId, theirs);
    } else if (isSame(theirs, base)) {
        put(m_settled, taskId, mine);
    } else if (base != nullptr) {
        m_conflicts.push_back(taskId);
    } else {
        put(m_settled, taskId, theirs);
        // The id follows once all that are in use have been seen.
        m_renumbered.emplace(taskId, taskId);
    }
}

void ScheduleMerge::renumber()
{
    if (m_renumbered.empty()) {
        return;
    }
    std::set<int> used = idsOf(m_base, m_theirs, m_mine);
    for (auto& [former, id] : m_renumbered) {
        id = freeId(used);
        used.insert(id);
        PlayTask task = m_mine.at(former);
        task.id = id;
        m_settled.insert_or_assign(id, std::move(task));
    }
}

Tasks ScheduleMerge::merged(const Choices& choices) const
{
    Tasks merged = m_settled;
    for (const int id : m_conflicts) {
        const auto choice = choices.find(id);
        const bool isMine = choice != choices.end() && choice->second == MergeSide::Mine;
        put(merged, id, find(isMine ? m_mine : m_theirs, id));
    }
    return merged;
}

std::map<int, std::optional<PlayTask>> ScheduleMerge::edits() const
{
    std::map<int, std::optional<PlayTask>> edits;
    for (const int id : idsOf(m_base, {}, m_mine)) {
        const PlayTask* const mine = find(m_mine, id);
        if (isSame(mine, find(m_base, id)) || isSame(mine, find(m_theirs, id))) {
            continue;
        }
        const auto renumbered = m_renumbered.find(id);
        if (renumbered == m_renumbered.end()) {
            edits.emplace(id, mine == nullptr ? std::nullopt : std::optional(*mine));
        } else {
            edits.emplace(renumbered->second, m_settled.at(renumbered->second));
        }
    }
    return edits;
}

} // namespace trel::mediadispatch
