#pragma once

#include "trelprogramschedule/dispatch/PlanCalendar.h"

#include <optional>

namespace trel::mediadispatch {

/// Looks for plays by the local clock, whatever is done to it: whether a time of day comes at all,
/// and when, is for others to find out.
class PlaySearch
{
public:
    /// The calendar has to live on.
    PlaySearch(const PlanCalendar& calendar, const SoughtPlay& sought);

    /// The first time from one on at which a plan plays what is sought; nothing when none does any
    /// more. Looks at the spans of seven days, and of the one that the time lies in, for each
    /// stretch of days on which one task is in effect, however long such a stretch lasts.
    std::optional<LocalTime> firstFrom(LocalTime time);

    /// How many spans have been looked at.
    std::size_t lookedAt() const { return m_lookedAt; }

private:
    std::optional<LocalTime> firstIn(const HeldSpan& span, LocalTime time);

    const PlanCalendar& m_calendar;
    SoughtPlay m_sought;
    std::size_t m_lookedAt = 0;
};

} // namespace trel::mediadispatch
