#include "PlainScreen.h"

#include "trelprogramschedule/dispatch/PlaySearch.h"

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

PlainScreen::PlainScreen(const std::map<int, PlayTask>& tasks,
                         const std::map<int, ProgramIten>& catalogue, const QTimeZone& zone)
    : m_offsets(zone)
    , m_calendar(tasks, catalogue)
{}

PlainScreen::PlainScreen(ZoneOffsets offsets, PlanCalendar calendar)
    : m_offsets(std::move(offsets))
    , m_calendar(std::move(calendar))
{}

PlainScreen PlainScreen::withTasks(const ScreenTasks& tasks) const
{
    return {m_offsets, m_calendar.withTasks(tasks)};
}

Microseconds PlainScreen::Held::elapsed(Instant moment) const
{
    return microseconds(period.local(moment) - span.listBegin);
}

Instant PlainScreen::Held::reaches(Microseconds time) const
{
    return period.instant(span.listBegin + millisecondsUp(time));
}

PlainScreen::Held PlainScreen::held(const HeldSpan& span, const OffsetPeriod& period)
{
    return {span, period, std::max(period.begin, period.instant(span.begin)),
            std::min(period.end, period.instant(span.end))};
}

std::optional<PlainScreen::Held> PlainScreen::heldAt(Instant moment) const
{
    const OffsetPeriod& period = m_offsets.periodAt(moment);
    const std::optional<HeldSpan> span = m_calendar.firstAfter(period.local(moment));
    if (!span || span->begin > period.local(moment)) {
        return std::nullopt;
    }
    return held(*span, period);
}

std::optional<PlainScreen::Held> PlainScreen::partBefore(const Held& part) const
{
    if (part.begin > part.period.begin) {
        return std::nullopt;
    }
    std::optional<Held> before = heldAt(part.begin - 1);
    return before && before->span.plan == part.span.plan ? before : std::nullopt;
}

std::optional<PlainScreen::Held> PlainScreen::partAfter(const Held& part) const
{
    if (part.end < part.period.end) {
        return std::nullopt;
    }
    std::optional<Held> after = heldAt(part.end);
    return after && after->span.plan == part.span.plan ? after : std::nullopt;
}

// These searches go from one period of the clock to the next, and pass over those in which no plan
// can have the screen because the nearest one is more than an offset away.

std::optional<PlainScreen::Held> PlainScreen::lastHeld(Instant moment) const
{
    for (Instant before = moment;;) {
        const OffsetPeriod& period = m_offsets.periodAt(before - 1);
        if (const auto span = m_calendar.lastBefore(period.local(before))) {
            const Held found = held(*span, period);
            if (found.begin < found.end) {
                return found;
            }
        }
        // An earlier period may have shown later times.
        const auto span = m_calendar.lastBefore(period.begin + kLargestOffset);
        if (period.begin == kEver || !span) {
            return std::nullopt;
        }
        before = std::min(period.begin, span->end + kLargestOffset);
    }
}

Instant PlainScreen::nextHeld(Instant moment) const
{
    for (Instant from = moment;;) {
        const OffsetPeriod& period = m_offsets.periodAt(from);
        if (const auto span = m_calendar.firstAfter(period.local(from))) {
            const Instant begin = std::max(from, period.instant(span->begin));
            if (begin < period.end) {
                return begin;
            }
        }
        if (period.end == kNever) {
            return kNever;
        }
        const auto span = m_calendar.firstAfter(period.end - kLargestOffset);
        if (!span) {
            return kNever;
        }
        from = std::max(period.end, span->begin - kLargestOffset);
    }
}

Instant PlainScreen::nextPlay(Instant moment, const SoughtPlay& sought) const
{
    PlaySearch search(m_calendar, sought);
    for (Instant from = moment;;) {
        const OffsetPeriod& period = m_offsets.periodAt(from);
        if (const auto shown = search.firstFrom(period.local(from))) {
            if (period.instant(*shown) < period.end) {
                return period.instant(*shown);
            }
        }
        if (period.end == kNever) {
            return kNever;
        }
        // A later period may show earlier times.
        const auto shown = search.firstFrom(period.end - kLargestOffset);
        if (!shown) {
            return kNever;
        }
        from = std::max(period.end, *shown - kLargestOffset);
    }
}

Instant PlainScreen::nextTaken(Instant moment) const
{
    return nextHeld(heldAt(moment) ? at(moment).state.spanUntil : moment);
}

Instant PlainScreen::listOver(Instant moment) const
{
    for (auto part = heldAt(moment); part; part = partAfter(*part)) {
        const Microseconds length = part->span.plan->list.length();
        const Instant over =
            length == kEndless ? kNever : std::max(part->begin, part->reaches(length));
        if (over < part->end) {
            return over;
        }
    }
    return kNever;
}

ScreenShown PlainScreen::at(Instant moment) const
{
    const std::optional<Held> part = heldAt(moment);
    return part ? ofPlan(*part, moment) : leftBehind(moment);
}

ScreenShown PlainScreen::ofPlan(const Held& part, Instant moment) const
{
    ScreenShown shown;
    ScreenState& state = shown.state;
    state.taskId = part.span.taskId;
    state.planId = part.span.plan->planId;
    state.planRow = part.span.row;

    // A plan keeps the screen over a change of the clock if it has it on both sides.
    shown.spanSince = part.begin;
    for (auto before = partBefore(part); before; before = partBefore(*before)) {
        shown.spanSince = before->begin;
    }
    state.spanUntil = part.end;
    for (auto after = partAfter(part); after; after = partAfter(*after)) {
        state.spanUntil = after->end;
    }

    const ListMoment list = part.list(moment);
    showList(state, list, part.elapsed(moment), ListOwner::Plan, part.span.plan->freezes);
    switch (list.kind) {
    case ListMoment::Kind::Nothing:
        state.since = shown.spanSince;
        state.until = state.spanUntil;
        break;
    case ListMoment::Kind::Playing:
        state.since = std::max(part.begin, part.reaches(list.begin));
        state.until = list.end == kEndless ? part.end : std::min(part.end, part.reaches(list.end));
        break;
    case ListMoment::Kind::RanOut:
        state.since = ranOutSince(part);
        state.until = ranOutUntil(part);
        break;
    }
    return shown;
}

Instant PlainScreen::ranOutSince(const Held& part) const
{
    const Instant ranOut = part.reaches(part.span.plan->list.length());
    if (ranOut > part.begin) {
        return ranOut;
    }
    const std::optional<Held> before = partBefore(part);
    const bool ranOutBefore =
        before && before->list(before->end - 1).kind == ListMoment::Kind::RanOut;
    return ranOutBefore ? ranOutSince(*before) : part.begin;
}

Instant PlainScreen::ranOutUntil(const Held& part) const
{
    const std::optional<Held> after = partAfter(part);
    const bool staysSo = after && after->list(after->begin).kind == ListMoment::Kind::RanOut;
    return staysSo ? ranOutUntil(*after) : part.end;
}

ScreenShown PlainScreen::leftBehind(Instant moment) const
{
    ScreenShown shown;
    ScreenState& state = shown.state;
    state.reason = ScreenReason::NoPlanYet;
    state.since = kEver;
    state.until = nextHeld(moment);
    state.spanUntil = state.until;
    const std::optional<Held> last = lastHeld(moment);
    if (!last) {
        return shown;
    }
    state.reason = ScreenReason::PlanEnded;
    state.taskId = last->span.taskId;
    state.planId = last->span.plan->planId;
    state.planRow = last->span.row;
    state.since = last->end;
    shown.spanSince = last->end;
    const ListMoment list = last->list(last->end - 1);
    if (last->span.plan->freezes && list.kind != ListMoment::Kind::Nothing) {
        state.picture = ScreenPicture::Frozen;
        showEntry(state, list, last->elapsed(last->end));
    }
    return shown;
}

} // namespace trel::mediadispatch
