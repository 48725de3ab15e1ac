#include "trelprogramschedule/problems/TaskOverlaps.h"

#include <utility>
#include <vector>

namespace trel::mediadispatch {

namespace {

constexpr int kNone = -1;
/// From so many tasks on all of them are looked at anew, which costs no more than sorting them.
constexpr std::size_t kMany = 32;

} // namespace

TaskOverlaps::TaskOverlaps() = default;
TaskOverlaps::~TaskOverlaps() = default;
TaskOverlaps::TaskOverlaps(TaskOverlaps&&) noexcept = default;
TaskOverlaps& TaskOverlaps::operator=(TaskOverlaps&&) noexcept = default;

void TaskOverlaps::setPeriod(int taskId, std::optional<Period> period)
{
    const auto known = m_periods.find(taskId);
    const bool isKnown = known != m_periods.end();
    if (isKnown == period.has_value() && (!isKnown || known->second == *period)) {
        return;
    }
    m_former.try_emplace(taskId, isKnown ? std::make_optional(known->second) : std::nullopt);
    if (isKnown) {
        m_tree.erase(taskId, known->second);
        m_periods.erase(known);
    }
    if (period) {
        m_tree.insert(taskId, *period);
        m_periods.emplace(taskId, std::move(*period));
    }
}

/// Those that may overlap another task now; kMany of them, or more, stand for all.
std::set<int> TaskOverlaps::touched() const
{
    std::set<int> touched;
    for (const auto& [id, former] : m_former) {
        touched.insert(id);
        const auto note = [&touched, own = id](int other, const Period&) {
            if (other > own) {
                touched.insert(other);
            }
            return touched.size() < kMany;
        };
        if (former) {
            m_tree.visitOverlapping(*former, note);
        }
        if (const auto now = m_periods.find(id); now != m_periods.end()) {
            m_tree.visitOverlapping(now->second, note);
        }
        if (touched.size() >= kMany) {
            break;
        }
    }
    return touched;
}

int TaskOverlaps::find(int taskId) const
{
    const auto own = m_periods.find(taskId);
    if (own == m_periods.end()) {
        return kNone;
    }
    int first = kNone;
    m_tree.visitOverlapping(own->second, [&first, taskId](int other, const Period&) {
        if (other < taskId && (first == kNone || other < first)) {
            first = other;
        }
        return true;
    });
    return first;
}

// All wait in a tree. One after the other, in the order of their ids, takes those out that it
// overlaps, as it is the first one to do so.
std::map<int, int> TaskOverlaps::findAll() const
{
    PeriodTree waiting;
    for (const auto& [id, period] : m_periods) {
        waiting.insert(id, period);
    }
    std::map<int, int> first;
    std::vector<int> met;
    for (const auto& [id, period] : m_periods) {
        waiting.erase(id, period);
        met.clear();
        waiting.visitOverlapping(period, [&met](int other, const Period&) {
            met.push_back(other);
            return true;
        });
        for (const int other : met) {
            first.emplace(other, id);
            waiting.erase(other, m_periods.at(other));
        }
    }
    return first;
}

std::set<int> TaskOverlaps::update()
{
    std::set<int> changed;
    const std::set<int> ids = touched();
    const auto moved = std::exchange(m_former, {});
    if (ids.size() < kMany) {
        for (const int id : ids) {
            const int first = find(id);
            if (first != firstOf(id) || moved.count(first) > 0) {
                changed.insert(id);
            }
            if (first == kNone) {
                m_first.erase(id);
            } else {
                m_first[id] = first;
            }
        }
        return changed;
    }
    const std::map<int, int> former = std::exchange(m_first, findAll());
    for (const auto& [id, first] : former) {
        if (firstOf(id) != first) {
            changed.insert(id);
        }
    }
    for (const auto& [id, first] : m_first) {
        if (former.count(id) == 0 || moved.count(first) > 0) {
            changed.insert(id);
        }
    }
    return changed;
}

int TaskOverlaps::firstOf(int taskId) const
{
    const auto found = m_first.find(taskId);
    return found == m_first.end() ? kNone : found->second;
}

} // namespace trel::mediadispatch
