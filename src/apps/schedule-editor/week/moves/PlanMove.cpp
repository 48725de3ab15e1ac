#include "week/moves/PlanMove.h"

#include "service/PlanCollisions.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"

#include <QTime>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

constexpr int kHalfQuarter = kQuarterSeconds / 2;

std::optional<int> secondOf(const std::string& text)
{
    const QTime time = timeFromText(text);
    return time.isValid() ? std::optional(QTime(0, 0).secsTo(time)) : std::nullopt;
}

std::string textOf(int second)
{
    return second >= kMidnight ? kDayEnd : timeToText(QTime(0, 0).addSecs(second));
}

/// Takes the place of one day in what a row would store: its days in their order, each once.
MoveRefusal changeDay(PlayPlan& plan, int from, int to)
{
    std::vector<int> numbers;
    if (parseWeeks(plan.weeks, numbers)) {
        return MoveRefusal::EveryDay;
    }
    std::set<int> days(numbers.begin(), numbers.end());
    if (days.empty() || *days.begin() < Monday || *days.rbegin() > Sunday) {
        return MoveRefusal::UnknownDays;
    }
    if (days.count(to) > 0) {
        return MoveRefusal::HasThatDay;
    }
    if (days.erase(from) == 0) {
        return MoveRefusal::UnknownDays;
    }
    days.insert(to);
    plan.weeks = joinWeeks({days.begin(), days.end()});
    return MoveRefusal::None;
}

class TimeMove
{
public:
    TimeMove(PlayPlan& plan, const Programs& programs, const NoDurationTest& hasNoDuration)
        : m_plan(plan)
        , m_programs(programs)
        , m_hasNoDuration(hasNoDuration)
    {}

    MoveRefusal apply(PlanMove::Part part, int second)
    {
        const std::optional<int> begin = beginOf(m_plan);
        const std::optional<int> end = endOf(m_plan);
        if (!begin || (!end && !follows())) {
            return MoveRefusal::Unreadable;
        }
        if (second < 0 || second > kMidnight || (part != PlanMove::End && second == kMidnight)) {
            return MoveRefusal::PastMidnight;
        }
        if (second == (part == PlanMove::End ? end : begin)) {
            return part != PlanMove::Whole && follows() ? MoveRefusal::EndFollows
                                                        : MoveRefusal::None;
        }
        if (follows()) {
            return part == PlanMove::Whole ? moveStart(second) : MoveRefusal::EndFollows;
        }
        if (*begin > *end) {
            return MoveRefusal::NoLength;
        }
        return moveTimes(part, second, *begin, *end);
    }

private:
    bool follows() const { return m_plan.mode == FrequencyMode; }

    MoveRefusal moveStart(int second)
    {
        m_plan.startTime = textOf(second);
        m_plan.endTime = plannedEnd(m_plan, m_programs, m_hasNoDuration);
        return MoveRefusal::None;
    }

    MoveRefusal moveTimes(PlanMove::Part part, int second, int begin, int end)
    {
        switch (part) {
        case PlanMove::Whole:
            end += second - begin;
            begin = second;
            break;
        case PlanMove::Begin:
            begin = second;
            break;
        case PlanMove::End:
            end = second;
            break;
        }
        if (end > kMidnight) {
            return MoveRefusal::PastMidnight;
        }
        if (part != PlanMove::Whole && begin >= end) {
            return MoveRefusal::NoLength;
        }
        m_plan.startTime = textOf(begin);
        m_plan.endTime = textOf(end);
        return MoveRefusal::None;
    }

    PlayPlan& m_plan;
    const Programs& m_programs;
    const NoDurationTest& m_hasNoDuration;
};

} // namespace

std::optional<int> beginOf(const PlayPlan& plan)
{
    return secondOf(plan.startTime);
}

std::optional<int> endOf(const PlayPlan& plan)
{
    return plan.endTime == kDayEnd ? kMidnight : secondOf(plan.endTime);
}

MovedPlan movedPlan(const PlayPlan& plan, const PlanMove& move, const Programs& programs,
                    const NoDurationTest& hasNoDuration)
{
    PlayPlan moved = plan;
    MoveRefusal refusal = MoveRefusal::None;
    if (move.second) {
        refusal = TimeMove(moved, programs, hasNoDuration).apply(move.part, *move.second);
    }
    if (refusal == MoveRefusal::None && move.fromDay != move.toDay) {
        refusal = changeDay(moved, move.fromDay, move.toDay);
    }
    if (refusal == MoveRefusal::None && moved == plan) {
        refusal = MoveRefusal::Nowhere;
    }
    if (refusal != MoveRefusal::None) {
        return {refusal, plan};
    }
    return {refusal, std::move(moved)};
}

std::optional<int> draggedTo(int second, int bySeconds)
{
    if (std::abs(bySeconds) < kHalfQuarter) {
        return std::nullopt;
    }
    const int wanted = second + bySeconds + kHalfQuarter;
    // Rounded down, also above midnight.
    const int quarter = wanted / kQuarterSeconds - (wanted % kQuarterSeconds < 0 ? 1 : 0);
    return quarter * kQuarterSeconds;
}

int steppedTo(int second, int quarters)
{
    const int before = second / kQuarterSeconds;
    const bool isBetween = second % kQuarterSeconds != 0;
    return (before + quarters + (isBetween && quarters < 0 ? 1 : 0)) * kQuarterSeconds;
}

NoDurationTest noDurationIn(const Programs& programs)
{
    return [&programs](int progIndex) {
        const auto found = programs.find(progIndex);
        return found != programs.end() && !hasOwnLength(found->second);
    };
}

void markCollisions(PlayTask& task, const Programs& programs, const NoDurationTest& hasNoDuration)
{
    const std::vector<bool> collides =
        collidingClaims(planClaims(task.plans, programs, hasNoDuration));
    for (std::size_t row = 0; row < collides.size(); ++row) {
        task.plans[row].isConflict = collides[row];
    }
}

std::vector<int> collidingRows(const PlayTask& task, int row, const PlayPlan& plan,
                               const Programs& programs, const NoDurationTest& hasNoDuration)
{
    std::vector<PlanClaim> claims = planClaims(task.plans, programs, hasNoDuration);
    PlanClaim claim = std::move(planClaims({plan}, programs, hasNoDuration).front());
    auto place = static_cast<std::size_t>(row);
    if (row >= 0 && place < claims.size()) {
        claims[place] = std::move(claim);
    } else {
        place = claims.size();
        claims.push_back(std::move(claim));
    }
    return collisionsOf(claims, static_cast<int>(place));
}

} // namespace trel::desktop::week
