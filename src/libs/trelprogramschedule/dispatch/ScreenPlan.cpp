#include "ScreenPlan.h"

#include "service/PlanConflicts.h"
#include "service/PlanFaults.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"

namespace trel::mediadispatch {

namespace {

constexpr int kMillisecondsPerSecond = 1000;
constexpr int kSecondsPerDay = 86'400;

WeekdaySet weekdaysOf(const std::string& weeks)
{
    std::vector<int> numbers;
    if (parseWeeks(weeks, numbers)) {
        return kAllWeekdays;
    }
    WeekdaySet weekdays = 0;
    for (const int number : numbers) {
        // Another number is no day of the week, though the plan collides with plans that name it.
        if (number >= Monday && number <= Sunday) {
            weekdays |= 1U << static_cast<unsigned>(number);
        }
    }
    return weekdays;
}

int secondOfDay(const std::string& text, int otherwise)
{
    const QTime time = timeFromText(text);
    return time.isValid() ? time.msecsSinceStartOfDay() / kMillisecondsPerSecond : otherwise;
}

/// The end is not included, and no text names one later than the last second of the day. So that
/// second belongs to no plan, also not to one that is meant to fill the day.
ClaimedSpan claimedSpan(const PlanClaim& claim)
{
    return {secondOfDay(claim.start, kSecondsPerDay), secondOfDay(claim.end, 0)};
}

} // namespace

qint64 runsOf(const PlayPlan& plan)
{
    return countsRuns(plan) ? plan.times : PlayList::kRepeated;
}

std::optional<int> listOverAt(const PlayPlan& plan, const std::string& end,
                              const std::map<int, ProgramIten>& catalogue)
{
    constexpr Microseconds second = 1'000'000;
    const ClaimedSpan claim = claimedSpan({plan.startTime, end, plan.weeks});
    const PlayList list(plan.programs, catalogue, runsOf(plan));
    const Microseconds length = list.length();
    const bool isOver = !list.isEmpty() && length <= (claim.end - claim.begin) * second - second;
    return isOver ? std::make_optional(claim.begin + static_cast<int>(length / second))
                  : std::nullopt;
}

std::vector<ScreenPlan> screenPlans(const std::vector<PlayPlan>& plans,
                                    const std::map<int, ProgramIten>& catalogue)
{
    const NoDurationTest hasNoDuration = [&catalogue](int progIndex) {
        const auto program = catalogue.find(progIndex);
        return program != catalogue.end() && !hasOwnLength(program->second);
    };
    const std::vector<PlanClaim> claims = planClaims(plans, catalogue, hasNoDuration);
    std::vector<ScreenPlan> result;
    result.reserve(plans.size());
    for (std::size_t i = 0; i < plans.size(); ++i) {
        result.push_back({plans[i].id, weekdaysOf(claims[i].weeks), claimedSpan(claims[i]),
                          plans[i].endAction != BlackScreen,
                          PlayList(plans[i].programs, catalogue, runsOf(plans[i]))});
    }
    return result;
}

} // namespace trel::mediadispatch
