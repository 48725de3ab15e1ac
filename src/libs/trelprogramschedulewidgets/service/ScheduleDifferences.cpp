#include "service/ScheduleDifferences.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <iterator>

namespace trel::mediadispatch {

namespace {

/// What becomes of the elements of a list: pairs that stay, by their places in the former and the
/// later list, and what is without a partner. All ascending, pairs by their later place.
struct Matching
{
    struct Pair
    {
        int former = -1;
        int later = -1;
        bool hasMoved = false;
    };

    std::vector<Pair> pairs;
    std::vector<int> removed; ///< Places in the former list.
    std::vector<int> added;   ///< Places in the later list.
};

/// Marks as moved what is not among the longest row of pairs that stand in the same order.
void markMoved(std::vector<Matching::Pair>& pairs)
{
    // The place of the pair with which a row of each length ends, as early as can be.
    std::vector<std::size_t> ends;
    std::vector<std::ptrdiff_t> before(pairs.size(), -1);
    for (std::size_t place = 0; place < pairs.size(); ++place) {
        const auto length = std::lower_bound(
            ends.begin(), ends.end(), pairs[place].former,
            [&pairs](std::size_t end, int former) { return pairs[end].former < former; });
        if (length != ends.begin()) {
            before[place] = static_cast<std::ptrdiff_t>(*std::prev(length));
        }
        if (length == ends.end()) {
            ends.push_back(place);
        } else {
            *length = place;
        }
    }
    for (Matching::Pair& pair : pairs) {
        pair.hasMoved = true;
    }
    std::ptrdiff_t place = ends.empty() ? -1 : static_cast<std::ptrdiff_t>(ends.back());
    for (; place >= 0; place = before[static_cast<std::size_t>(place)]) {
        pairs[static_cast<std::size_t>(place)].hasMoved = false;
    }
}

template <typename Element, typename Key>
Matching matched(const std::vector<Element>& former, const std::vector<Element>& later,
                 const Key& key)
{
    std::map<int, std::deque<int>> left;
    for (std::size_t place = 0; place < former.size(); ++place) {
        left[key(former[place])].push_back(static_cast<int>(place));
    }
    Matching matching;
    std::vector<bool> isTaken(former.size(), false);
    for (std::size_t place = 0; place < later.size(); ++place) {
        std::deque<int>& candidates = left[key(later[place])];
        if (candidates.empty()) {
            matching.added.push_back(static_cast<int>(place));
            continue;
        }
        matching.pairs.push_back({candidates.front(), static_cast<int>(place), false});
        isTaken[static_cast<std::size_t>(candidates.front())] = true;
        candidates.pop_front();
    }
    for (std::size_t place = 0; place < former.size(); ++place) {
        if (!isTaken[place]) {
            matching.removed.push_back(static_cast<int>(place));
        }
    }
    markMoved(matching.pairs);
    return matching;
}

template <typename Element>
const Element& at(const std::vector<Element>& list, int place)
{
    return list[static_cast<std::size_t>(place)];
}

DifferenceValue valueOf(const std::string& text)
{
    return text;
}

DifferenceValue valueOf(const std::vector<std::int64_t>& list)
{
    return list;
}

DifferenceValue valueOf(std::int64_t number)
{
    return number;
}

/// Collects the differences of one task.
class TaskComparison
{
public:
    TaskComparison(int taskId, std::vector<ScheduleDifference>& found)
        : m_found(found)
    {
        m_current.taskId = taskId;
    }

    void compare(const PlayTask& former, const PlayTask& later)
    {
        m_kind = DifferenceKind::TaskField;
        field(DifferenceField::StartDate, former.startDate, later.startDate);
        field(DifferenceField::EndDate, former.endDate, later.endDate);
        const Matching plans =
            matched(former.plans, later.plans, [](const PlayPlan& plan) { return plan.id; });
        for (const int row : plans.removed) {
            ScheduleDifference& gone = addPlan(DifferenceKind::PlanRemoved, row, -1);
            gone.plan = at(former.plans, row);
            gone.planId = gone.plan.id;
        }
        for (const int row : plans.added) {
            ScheduleDifference& fresh = addPlan(DifferenceKind::PlanAdded, -1, row);
            fresh.plan = at(later.plans, row);
            fresh.planId = fresh.plan.id;
        }
        for (const Matching::Pair& pair : plans.pairs) {
            m_current.planId = at(later.plans, pair.later).id;
            m_current.formerRow = pair.former;
            m_current.row = pair.later;
            if (pair.hasMoved) {
                add(DifferenceKind::PlanMoved);
            }
            compare(at(former.plans, pair.former), at(later.plans, pair.later));
        }
    }

private:
    void compare(const PlayPlan& former, const PlayPlan& later)
    {
        m_kind = DifferenceKind::PlanField;
        field(DifferenceField::Mode, former.mode, later.mode);
        field(DifferenceField::StartTime, former.startTime, later.startTime);
        field(DifferenceField::EndTime, former.endTime, later.endTime);
        field(DifferenceField::Times, former.times, later.times);
        field(DifferenceField::EndAction, former.endAction, later.endAction);
        field(DifferenceField::Weeks, former.weeks, later.weeks);
        field(DifferenceField::HasNoDuration, former.hasNoDuration, later.hasNoDuration);
        field(DifferenceField::IsConflict, former.isConflict, later.isConflict);
        field(DifferenceField::ServiceCount, former.serviceCount, later.serviceCount);
        field(DifferenceField::ServiceList, former.serviceList, later.serviceList);
        field(DifferenceField::ServiceTime, former.serviceTime, later.serviceTime);
        field(DifferenceField::ServiceFlagA, former.serviceFlagA, later.serviceFlagA);
        field(DifferenceField::ServiceFlagB, former.serviceFlagB, later.serviceFlagB);
        compare(former.programs, later.programs);
    }

    void compare(const std::vector<struProgInfo>& former, const std::vector<struProgInfo>& later)
    {
        if (former == later) {
            return;
        }
        const Matching entries =
            matched(former, later, [](const struProgInfo& entry) { return entry.progIndex; });
        for (const int place : entries.removed) {
            addEntry(DifferenceKind::EntryRemoved, place, -1).entry = at(former, place);
        }
        for (const int place : entries.added) {
            addEntry(DifferenceKind::EntryAdded, -1, place).entry = at(later, place);
        }
        for (const Matching::Pair& pair : entries.pairs) {
            m_current.formerPlace = pair.former;
            m_current.place = pair.later;
            m_current.entry = at(later, pair.later);
            if (pair.hasMoved) {
                add(DifferenceKind::EntryMoved);
            }
            compare(at(former, pair.former), at(later, pair.later));
        }
        m_current.formerPlace = -1;
        m_current.place = -1;
        m_current.entry = {};
    }

    void compare(const struProgInfo& former, const struProgInfo& later)
    {
        m_kind = DifferenceKind::EntryField;
        field(DifferenceField::ProgName, former.progName, later.progName);
        field(DifferenceField::PlayCount, former.playCount, later.playCount);
        field(DifferenceField::IsInvalid, former.isInvalid, later.isInvalid);
    }

    template <typename Value>
    void field(DifferenceField field, const Value& former, const Value& later)
    {
        if (former == later) {
            return;
        }
        ScheduleDifference& other = add(m_kind);
        other.field = field;
        other.before = valueOf(former);
        other.after = valueOf(later);
    }

    ScheduleDifference& add(DifferenceKind kind)
    {
        m_found.push_back(m_current);
        m_found.back().kind = kind;
        return m_found.back();
    }

    ScheduleDifference& addPlan(DifferenceKind kind, int formerRow, int row)
    {
        ScheduleDifference& added = add(kind);
        added.formerRow = formerRow;
        added.row = row;
        return added;
    }

    ScheduleDifference& addEntry(DifferenceKind kind, int formerPlace, int place)
    {
        ScheduleDifference& added = add(kind);
        added.formerPlace = formerPlace;
        added.place = place;
        return added;
    }

    ScheduleDifference m_current; ///< Where the comparison stands.
    DifferenceKind m_kind = DifferenceKind::TaskField;
    std::vector<ScheduleDifference>& m_found;
};

void addWhole(std::vector<ScheduleDifference>& found, DifferenceKind kind, int taskId,
              const PlayTask& task)
{
    ScheduleDifference& added = found.emplace_back();
    added.kind = kind;
    added.taskId = taskId;
    added.task = task;
}

} // namespace

std::vector<ScheduleDifference> scheduleDifferences(const std::map<int, PlayTask>& former,
                                                    const std::map<int, PlayTask>& later)
{
    std::vector<ScheduleDifference> found;
    auto before = former.begin();
    auto after = later.begin();
    while (before != former.end() || after != later.end()) {
        if (after == later.end() || (before != former.end() && before->first < after->first)) {
            addWhole(found, DifferenceKind::TaskRemoved, before->first, before->second);
            ++before;
        } else if (before == former.end() || after->first < before->first) {
            addWhole(found, DifferenceKind::TaskAdded, after->first, after->second);
            ++after;
        } else {
            if (before->second != after->second) {
                TaskComparison(before->first, found).compare(before->second, after->second);
            }
            ++before;
            ++after;
        }
    }
    return found;
}

std::vector<ScheduleDifference> differencesOfNote(const std::map<int, PlayTask>& former,
                                                  const std::map<int, PlayTask>& later)
{
    std::vector<ScheduleDifference> found = scheduleDifferences(former, later);
    found.erase(std::remove_if(found.begin(), found.end(), isWorkedOutAfresh), found.end());
    return found;
}

} // namespace trel::mediadispatch
