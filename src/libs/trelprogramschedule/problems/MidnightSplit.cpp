#include "trelprogramschedule/problems/MidnightSplit.h"

#include "service/NewPlan.h"
#include "service/PlanFaults.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"
#include "trelprogramschedule/dispatch/PlayList.h"

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr int kSecondsPerDay = 86'400;
constexpr Microseconds kSecond = 1'000'000;

std::string timeAt(Microseconds second)
{
    return timeToText(QTime(0, 0).addSecs(static_cast<int>(second)));
}

std::string daysBehind(const std::string& weeks)
{
    std::vector<int> numbers;
    if (parseWeeks(weeks, numbers)) {
        return weeks;
    }
    for (int& number : numbers) {
        if (number >= Monday && number <= Sunday) {
            number = number % Sunday + 1;
        }
    }
    return joinWeeks(numbers);
}

PlayPlan morningOf(const PlayPlan& plan, std::string end)
{
    PlayPlan morning = plan;
    morning.mode = TimeMode;
    morning.id = kNoPlanId;
    morning.startTime = kDayStart;
    morning.endTime = std::move(end);
    morning.weeks = daysBehind(plan.weeks);
    morning.isConflict = false;
    return morning;
}

std::optional<SplitPlan> splitByTime(const PlayPlan& plan)
{
    if (planFault(plan, plan.endTime) != PlanFault::InvertedSpan) {
        return std::nullopt;
    }
    SplitPlan split = {plan, std::nullopt};
    split.evening.endTime = kDayEnd;
    if (timeFromText(plan.endTime) > QTime(0, 0)) {
        split.morning = morningOf(plan, plan.endTime);
    }
    return split;
}

/// The plays of a list before one of them, or that one and those behind it.
using Entries = std::vector<struProgInfo>;

Entries playsBefore(const Entries& entries, const ListMoment& moment)
{
    Entries before(entries.begin(), entries.begin() + moment.entry + 1);
    before.back().playCount = moment.play;
    if (moment.play == 0) {
        before.pop_back();
    }
    return before;
}

Entries playsFrom(const Entries& entries, const ListMoment& moment)
{
    Entries from(entries.begin() + moment.entry, entries.end());
    from.front().playCount -= moment.play;
    return from;
}

std::optional<SplitPlan> splitByRuns(const PlayPlan& plan,
                                     const std::map<int, ProgramIten>& catalogue)
{
    const QTime start = timeFromText(plan.startTime);
    const PlayList list(plan.programs, catalogue, plan.times);
    const Microseconds length = list.length();
    if (!start.isValid() || list.isEmpty() || length == kEndless) {
        return std::nullopt;
    }
    const int begin = start.msecsSinceStartOfDay() / 1000;
    const Microseconds toMidnight = (kSecondsPerDay - begin) * kSecond;
    if (length < toMidnight + kSecond) {
        return std::nullopt;
    }
    const ListMoment cut = list.at(toMidnight);
    const Microseconds rest = length - cut.begin;
    if (cut.begin < kSecond || rest >= kSecondsPerDay * kSecond) {
        return std::nullopt;
    }
    SplitPlan split = {plan, morningOf(plan, timeAt(rest / kSecond))};
    PlayPlan& morning = *split.morning;
    split.evening.mode = TimeMode;
    split.evening.endTime =
        timeAt(std::min<Microseconds>(begin + cut.begin / kSecond, kSecondsPerDay - 1));
    split.evening.endAction = FreezeCurrentFrame;
    split.evening.isConflict = false;
    const bool isFirstRun = cut.run == 0;
    const bool isLastRun = cut.run == plan.times - 1;
    if (isFirstRun) {
        split.evening.programs = playsBefore(plan.programs, cut);
    }
    morning.programs = playsFrom(plan.programs, cut);
    if (!isLastRun) {
        // Round and round: what came before stands at the end.
        const Entries before = playsBefore(plan.programs, cut);
        morning.programs.insert(morning.programs.end(), before.begin(), before.end());
    }
    return split;
}

} // namespace

std::optional<SplitPlan> planSplitAtMidnight(const PlayPlan& plan,
                                             const std::map<int, ProgramIten>& catalogue)
{
    switch (plan.mode) {
    case TimeMode:
        return splitByTime(plan);
    case FrequencyMode:
        return splitByRuns(plan, catalogue);
    default:
        return std::nullopt;
    }
}

std::optional<PlayTask> splitAtMidnight(const PlayTask& task, int planId,
                                        const std::map<int, ProgramIten>& catalogue)
{
    PlayTask result = task;
    const auto plan =
        std::find_if(result.plans.begin(), result.plans.end(),
                     [planId](const PlayPlan& candidate) { return candidate.id == planId; });
    const std::optional<int> id = nextPlanId(task);
    if (plan == result.plans.end() || !id) {
        return std::nullopt;
    }
    std::optional<SplitPlan> split = planSplitAtMidnight(*plan, catalogue);
    if (!split) {
        return std::nullopt;
    }
    *plan = std::move(split->evening);
    if (split->morning) {
        split->morning->id = *id;
        result.plans.push_back(std::move(*split->morning));
    }
    return result;
}

} // namespace trel::mediadispatch
