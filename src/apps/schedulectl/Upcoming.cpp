#include "Upcoming.h"

#include <utility>

using namespace trel::mediadispatch;

namespace {

bool isOfPlan(const ScreenState& state)
{
    switch (state.reason) {
    case ScreenReason::NothingInEffect:
    case ScreenReason::NoPlanYet:
    case ScreenReason::PlanEnded:
        return false;
    default:
        return true;
    }
}

/// Looks for a program other than one, span by span. A list that has run once from its start
/// without another program will not bring one later either, so the rest of its span is passed over.
class OtherProgram
{
public:
    OtherProgram(const ScreenTimeline& timeline, int progIndex)
        : m_timeline(timeline)
        , m_progIndex(progIndex)
    {}

    std::optional<ScreenState> from(Instant moment)
    {
        m_resume = moment;
        while (m_resume != kNever && !m_found) {
            const Instant start = std::exchange(m_resume, kNever);
            m_spanUntil = kEver;
            m_timeline.visitPlays(start, kNever, {},
                                  [this](const ScreenState& state) { return lookAt(state); });
        }
        return m_found;
    }

private:
    bool lookAt(const ScreenState& state)
    {
        if (!state.isPlaying()) {
            return true;
        }
        if (state.progIndex != m_progIndex) {
            m_found = state;
            return false;
        }
        if (state.spanUntil != m_spanUntil) {
            m_spanUntil = state.spanUntil;
            m_firstRun = state.run;
        }
        const bool isKnown = state.run > m_firstRun + 1;
        if (isKnown) {
            m_resume = state.spanUntil;
        }
        return !isKnown;
    }

    const ScreenTimeline& m_timeline;
    int m_progIndex;
    Instant m_resume = kNever;
    Instant m_spanUntil = kEver;
    int m_firstRun = 0;
    std::optional<ScreenState> m_found;
};

std::optional<ScreenState> nextPlan(const ScreenTimeline& timeline, Instant moment)
{
    std::optional<ScreenState> found;
    if (moment != kNever) {
        timeline.visitSpans(moment, kNever, {}, [&found](const ScreenState& state) {
            if (isOfPlan(state)) {
                found = state;
            }
            return !found;
        });
    }
    return found;
}

} // namespace

Upcoming upcoming(const ScreenTimeline& timeline, const ScreenState& now)
{
    constexpr int noProgram = -1;
    return {OtherProgram(timeline, now.isPlaying() ? now.progIndex : noProgram).from(now.until),
            nextPlan(timeline, now.spanUntil)};
}
