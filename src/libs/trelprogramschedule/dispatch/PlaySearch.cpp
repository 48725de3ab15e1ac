#include "PlaySearch.h"

#include "trelprogramschedule/dispatch/ScreenShown.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr DayNumber kWeek = 7;

} // namespace

PlaySearch::PlaySearch(const PlanCalendar& calendar, const SoughtPlay& sought)
    : m_calendar(calendar)
    , m_sought(sought)
{}

// What a day shows by the local clock follows from the task in effect and the day of the week, for
// spans and positions are those of the time of day. So of days in a row with the same task, seven
// whole ones show all that any of them shows, and where they have nothing, the rest has nothing
// either. A change of the clocks takes times of day away from a day, or brings them again, and so
// adds nothing to it.
std::optional<LocalTime> PlaySearch::firstFrom(LocalTime time)
{
    std::optional<HeldSpan> span = m_calendar.firstAfter(time);
    while (span) {
        // The day that the time lies in may be asked about in part only.
        const DayNumber entered = dayOf(span->begin);
        const bool isWhole = time <= timeOn(entered, 0);
        const DayNumber lastNew = entered + (isWhole ? kWeek - 1 : kWeek);
        const DayNumber lastOfTask = span->lastDay;
        while (span && span->lastDay == lastOfTask && dayOf(span->begin) <= lastNew) {
            if (const auto found = firstIn(*span, time)) {
                return found;
            }
            span = m_calendar.firstAfter(span->end);
        }
        if (span && span->lastDay == lastOfTask) {
            span = m_calendar.firstAfter(timeOn(lastOfTask + 1, 0));
        }
    }
    return std::nullopt;
}

std::optional<LocalTime> PlaySearch::firstIn(const HeldSpan& span, LocalTime time)
{
    ++m_lookedAt;
    const auto shown = span.plan->list.firstShown(
        m_sought, microseconds(std::max(time, span.begin) - span.listBegin),
        microseconds(span.end - span.listBegin));
    return shown ? std::make_optional(span.listBegin + millisecondsUp(*shown)) : std::nullopt;
}

} // namespace trel::mediadispatch
