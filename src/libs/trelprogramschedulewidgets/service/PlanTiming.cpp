#include "service/PlanTiming.h"

#include "service/TimeText.h"

#include <limits>

namespace trel::mediadispatch {

namespace {

QTime dayEnd()
{
    return QTime(23, 59, 59, 0);
}

// Cuts toward zero. A record may hold any number of runs and any length, so the sum may lie below
// every int, or be no number at all; both count as the lowest int.
int wholeMilliseconds(double total)
{
    constexpr int lowest = std::numeric_limits<int>::min();
    return total > lowest ? static_cast<int>(total) : lowest;
}

} // namespace

std::string addDuration(const std::string& start, int seconds)
{
    const QTime startTime = timeFromText(start);
    const QTime end = dayEnd();
    // Adding wraps round at midnight, and a plan never does. Both parts of the time are compared,
    // so that the cap stays right for a day that ends earlier within its last hour.
    if (startTime.hour() == end.hour() && end.minute() - startTime.minute() < 60) {
        return kDayEnd;
    }
    return timeToText(startTime.addSecs(seconds));
}

std::string plannedEnd(const PlayPlan& plan, const std::map<int, ProgramIten>& catalogue,
                       const NoDurationTest& hasNoDuration)
{
    double total = 0.0;
    for (const struProgInfo& entry : plan.programs) {
        const auto program = catalogue.find(entry.progIndex);
        if (program == catalogue.end()) {
            continue;
        }
        if (hasNoDuration(entry.progIndex)) {
            return kDayEnd;
        }
        if (program->second.durationMs >= 0.0) {
            total += entry.playCount * program->second.durationMs;
        }
    }
    total *= plan.times;

    const QTime start = timeFromText(plan.startTime);
    if (total > start.msecsTo(dayEnd())) {
        return kDayEnd;
    }
    return timeToText(start.addMSecs(wholeMilliseconds(total)));
}

} // namespace trel::mediadispatch
