#pragma once

#include "trelprogramschedule/dispatch/PlanCalendar.h"
#include "trelprogramschedule/dispatch/ScreenShown.h"
#include "trelprogramschedule/dispatch/ZoneOffsets.h"

#include <optional>

namespace trel::mediadispatch {

/// What the plans of a schedule show, were there no insertions.
class PlainScreen
{
public:
    PlainScreen(const std::map<int, PlayTask>& tasks, const std::map<int, ProgramIten>& catalogue,
                const QTimeZone& zone);
    /// The screen of other tasks on the same clock. Shares what is the same in both.
    PlainScreen withTasks(const ScreenTasks& tasks) const;

    const ZoneOffsets& offsets() const { return m_offsets; }
    const PlanCalendar& calendar() const { return m_calendar; }

    ScreenShown at(Instant moment) const;
    /// The next instant at which a plan has the screen, the moment itself included; kNever when
    /// none has it any more.
    Instant nextHeld(Instant moment) const;
    /// When a plan next takes the screen: one that has it at the moment keeps it first.
    Instant nextTaken(Instant moment) const;
    /// The next instant at which a plan plays what is sought, the moment itself included; kNever
    /// when none does any more. Where it lies does not count for the cost: beside the spans that
    /// PlaySearch looks at, it grows with the changes of the clock that leave out what it finds.
    Instant nextPlay(Instant moment, const SoughtPlay& sought) const;

    /// When the list that a plan plays at a moment has run as often as it should, if it has the
    /// screen by then; kNever where it plays for as long as it has.
    Instant listOver(Instant moment) const;

private:
    PlainScreen(ZoneOffsets offsets, PlanCalendar calendar);

    /// A span in which a plan has the screen, as far as it lies within one period of the clock.
    struct Held
    {
        HeldSpan span;
        OffsetPeriod period;
        Instant begin = 0;
        Instant end = 0;

        /// Since the start of the plan's list.
        Microseconds elapsed(Instant moment) const;
        ListMoment list(Instant moment) const { return span.plan->list.at(elapsed(moment)); }
        /// When the list, undisturbed, gets to a time since its start.
        Instant reaches(Microseconds time) const;
    };

    static Held held(const HeldSpan& span, const OffsetPeriod& period);
    std::optional<Held> heldAt(Instant moment) const;
    /// The part of the same plan's span that follows, or comes before, where the clock is changed.
    std::optional<Held> partBefore(const Held& part) const;
    std::optional<Held> partAfter(const Held& part) const;
    std::optional<Held> lastHeld(Instant moment) const;

    ScreenShown ofPlan(const Held& part, Instant moment) const;
    ScreenShown leftBehind(Instant moment) const;
    Instant ranOutSince(const Held& part) const;
    Instant ranOutUntil(const Held& part) const;

    ZoneOffsets m_offsets;
    PlanCalendar m_calendar;
};

} // namespace trel::mediadispatch
