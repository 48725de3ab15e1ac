#include "screen/ProgramDay.h"

#include "screen/StoredScreen.h"
#include "service/TimeText.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// Rules that keep a plan away at every moment of a day.
bool holdsForTheDay(VerdictRule rule)
{
    switch (rule) {
    case VerdictRule::TaskNotValid:
    case VerdictRule::OtherTask:
    case VerdictRule::OtherWeekday:
    case VerdictRule::SpanUnreadable:
    case VerdictRule::SpanEmpty:
    case VerdictRule::SpanInverted:
        return true;
    default:
        return false;
    }
}

void addPlay(std::vector<ProgramDay::Stretch>& stretches, const ScreenState& state, Instant from,
             Instant to)
{
    const Instant begin = std::max(state.since, from);
    const Instant end = std::min(state.until, to);
    if (!stretches.empty()) {
        ProgramDay::Stretch& last = stretches.back();
        if (last.spanUntil == state.spanUntil && last.taskId == state.taskId &&
            last.planRow == state.planRow && last.isInserted == state.isInserted()) {
            last.to = end;
            ++last.plays;
            return;
        }
    }
    stretches.push_back({begin, end, 1, state.taskId, state.planId, state.planRow,
                         state.isInserted(), state.spanUntil});
}

/// Judges the program at moments of a day, once at each.
class DayJudge
{
public:
    DayJudge(const StoredScreen& screen, int progIndex)
        : m_screen(screen)
        , m_progIndex(progIndex)
    {}

    const ProgramVerdict& at(Instant moment)
    {
        const auto known = m_verdicts.find(moment);
        return known != m_verdicts.end()
                   ? known->second
                   : m_verdicts
                         .emplace(moment, programVerdict(m_screen.timeline(), m_screen.tasks(),
                                                         m_screen.programs(), m_screen.insertions(),
                                                         m_progIndex, moment))
                         .first->second;
    }

    /// Of a plan at a moment.
    ProgramDay::Reason reason(const PlanVerdict& plan, Instant moment)
    {
        const ProgramVerdict& verdict = at(moment);
        const auto found = std::find_if(
            verdict.plans.begin(), verdict.plans.end(), [&plan](const PlanVerdict& candidate) {
                return !candidate.isInsertion && candidate.taskId == plan.taskId &&
                       candidate.planRow == plan.planRow;
            });
        return {moment, false, verdict.screen, *found};
    }

private:
    const StoredScreen& m_screen;
    int m_progIndex;
    std::map<Instant, ProgramVerdict> m_verdicts;
};

} // namespace

ProgramDay programDay(const StoredScreen& screen, int progIndex, const QString& name,
                      const QDate& date)
{
    ProgramDay day;
    day.progIndex = progIndex;
    day.name = name;
    day.date = date;
    const ScreenTimeline& timeline = screen.timeline();
    const Instant from = timeline.instant(date, QTime(0, 0));
    const Instant to = timeline.instant(date.addDays(1), QTime(0, 0));
    day.from = from;
    std::set<std::pair<int, int>> seen;
    timeline.visitPlays(from, to, screen.insertions(), [&](const ScreenState& state) {
        if (state.isPlaying() && state.progIndex == progIndex) {
            addPlay(day.stretches, state, from, to);
            seen.emplace(state.taskId, state.planRow);
        }
        return true;
    });
    DayJudge judge(screen, progIndex);
    const ProgramVerdict atStart = judge.at(from);
    for (const PlanVerdict& plan : atStart.plans) {
        day.isInAnyPlan = true;
        if (plan.isInsertion || seen.count({plan.taskId, plan.planRow}) > 0) {
            continue;
        }
        if (holdsForTheDay(plan.rule)) {
            day.reasons.push_back({from, true, atStart.screen, plan});
            continue;
        }
        const QTime start = timeFromText(plan.start);
        day.reasons.push_back(
            judge.reason(plan, std::clamp(timeline.instant(date, start), from, to - 1)));
    }
    return day;
}

} // namespace trel::console
