#include "service/TaskPeriods.h"

#include <algorithm>
#include <numeric>
#include <string_view>

// Two tasks overlap when neither ends before the other starts. Walking over all pairs is the rule,
// and the tests hold this file against it; with 10,000 tasks that would be 50 million comparisons
// at each check. Here the tasks are sorted by their first days, so that those that start in time
// for a task are the first few of that order, and a tree over the order knows the latest last day
// below each of its nodes. A branch in which every task ends too early is left at its top, so that
// a task costs the logarithm of their number and a step for each overlap. Going through the sorted
// tasks without the tree is shorter, and as quick where few overlap, but where all do it meets
// every pair before the first one is known.

namespace trel::mediadispatch {

namespace {

/// Finds the tasks that overlap a task without looking at the others: a tree over the tasks in the
/// order of their first days, each node holding the latest last day below it.
class PeriodIndex
{
public:
    explicit PeriodIndex(const std::map<int, PlayTask>& tasks)
    {
        m_tasks.reserve(tasks.size());
        for (const auto& entry : tasks) {
            m_tasks.push_back(&entry.second);
        }
        m_byStart.resize(m_tasks.size());
        std::iota(m_byStart.begin(), m_byStart.end(), std::size_t{0});
        std::stable_sort(m_byStart.begin(), m_byStart.end(), [this](std::size_t a, std::size_t b) {
            return m_tasks[a]->startDate < m_tasks[b]->startDate;
        });
        while (m_leafCount < m_tasks.size()) {
            m_leafCount *= 2;
        }
        buildTree();
    }

    std::size_t taskCount() const { return m_tasks.size(); }

    /// Appends the overlaps of the task at a position with the tasks behind it, in order.
    void appendOverlaps(std::size_t position, std::vector<TaskOverlap>& overlaps)
    {
        const PlayTask& task = *m_tasks[position];
        const auto startsLater = std::upper_bound(m_byStart.begin(), m_byStart.end(), task.endDate,
                                                  [this](const std::string& date, std::size_t i) {
                                                      return date < m_tasks[i]->startDate;
                                                  });
        m_found.clear();
        collect(1, 0, m_leafCount, static_cast<std::size_t>(startsLater - m_byStart.begin()),
                position);
        std::sort(m_found.begin(), m_found.end());
        for (const std::size_t other : m_found) {
            overlaps.emplace_back(task.id, m_tasks[other]->id);
        }
    }

private:
    struct Node
    {
        std::string_view latestEnd;
        bool isUsed = false;
    };

    void buildTree()
    {
        m_tree.resize(m_leafCount * 2);
        for (std::size_t i = 0; i < m_byStart.size(); ++i) {
            m_tree[m_leafCount + i] = {m_tasks[m_byStart[i]]->endDate, true};
        }
        for (std::size_t node = m_leafCount - 1; node > 0; --node) {
            const Node& left = m_tree[node * 2];
            const Node& right = m_tree[node * 2 + 1];
            m_tree[node] = right.isUsed && left.latestEnd < right.latestEnd ? right : left;
        }
    }

    /// Walks the leaves below node, those of the range first to last, as far as they stand before
    /// limit and end late enough.
    void collect(std::size_t node, std::size_t first, std::size_t last, std::size_t limit,
                 std::size_t position)
    {
        const PlayTask& task = *m_tasks[position];
        if (first >= limit || !m_tree[node].isUsed || m_tree[node].latestEnd < task.startDate) {
            return;
        }
        if (last - first > 1) {
            const std::size_t middle = first + (last - first) / 2;
            collect(node * 2, first, middle, limit, position);
            collect(node * 2 + 1, middle, last, limit, position);
            return;
        }
        const std::size_t other = m_byStart[first];
        if (other > position && m_tasks[other]->id != task.id) {
            m_found.push_back(other);
        }
    }

    std::vector<const PlayTask*> m_tasks; // In ascending id order.
    std::vector<std::size_t> m_byStart;   // Positions in m_tasks.
    std::size_t m_leafCount = 1;
    std::vector<Node> m_tree; // Node i has the children 2i and 2i + 1; the root is 1.
    std::vector<std::size_t> m_found;
};

} // namespace

std::optional<TaskOverlap> firstTaskOverlap(const std::map<int, PlayTask>& tasks)
{
    PeriodIndex index(tasks);
    std::vector<TaskOverlap> overlaps;
    for (std::size_t i = 0; i < index.taskCount(); ++i) {
        index.appendOverlaps(i, overlaps);
        if (!overlaps.empty()) {
            return overlaps.front();
        }
    }
    return std::nullopt;
}

std::vector<TaskOverlap> allTaskOverlaps(const std::map<int, PlayTask>& tasks)
{
    PeriodIndex index(tasks);
    std::vector<TaskOverlap> overlaps;
    for (std::size_t i = 0; i < index.taskCount(); ++i) {
        index.appendOverlaps(i, overlaps);
    }
    return overlaps;
}

} // namespace trel::mediadispatch
