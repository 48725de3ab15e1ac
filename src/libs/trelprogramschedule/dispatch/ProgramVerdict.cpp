#include "trelprogramschedule/dispatch/ProgramVerdict.h"

#include "service/DateText.h"
#include "service/PlanConflicts.h"
#include "service/PlanFaults.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QDateTime>

#include <algorithm>
#include <optional>

namespace trel::mediadispatch {

namespace {

using Tasks = std::map<int, PlayTask>;
using Programs = std::map<int, ProgramIten>;

bool holdsProgram(const PlayPlan& plan, int progIndex)
{
    return std::any_of(
        plan.programs.begin(), plan.programs.end(),
        [progIndex](const struProgInfo& entry) { return entry.progIndex == progIndex; });
}

bool holdsDay(const PlayTask& task, const QDate& day)
{
    const QDate first = dateFromText(task.startDate);
    const QDate last = dateFromText(task.endDate);
    return first.isValid() && last.isValid() && first <= day && day <= last;
}

bool runsOn(const std::string& weeks, int weekday)
{
    std::vector<int> numbers;
    return parseWeeks(weeks, numbers) ||
           std::find(numbers.begin(), numbers.end(), weekday) != numbers.end();
}

/// What a claim comes to at a local time: Plays when it holds it, or what keeps it from that.
VerdictRule judgeClaim(const PlanClaim& claim, const QDateTime& shown)
{
    if (!runsOn(claim.weeks, shown.date().dayOfWeek())) {
        return VerdictRule::OtherWeekday;
    }
    const QTime start = timeFromText(claim.start);
    const QTime end = timeFromText(claim.end);
    if (!start.isValid() || !end.isValid()) {
        return VerdictRule::SpanUnreadable;
    }
    if (end <= start) {
        return end == start ? VerdictRule::SpanEmpty : VerdictRule::SpanInverted;
    }
    if (shown.time() < start) {
        return VerdictRule::NotYet;
    }
    return shown.time() < end ? VerdictRule::Plays : VerdictRule::Over;
}

/// Judges the entries of one program in lists that have the screen.
class ListJudge
{
public:
    ListJudge(const ScreenTimeline& timeline, const Programs& catalogue,
              const ScreenInsertions& insertions, int progIndex, const ScreenState& screen)
        : m_timeline(timeline)
        , m_catalogue(catalogue)
        , m_insertions(insertions)
        , m_progIndex(progIndex)
        , m_screen(screen)
    {}

    void judge(const PlayPlan& plan, PlanVerdict& verdict) const
    {
        const std::optional<int> seen = firstSeen(plan.programs);
        verdict.entry = seen.value_or(firstHeld(plan.programs));
        if (!seen) {
            verdict.rule = fault(plan.programs[static_cast<std::size_t>(verdict.entry)]);
        } else if (m_screen.isPlaying() && m_screen.progIndex == m_progIndex) {
            verdict.rule = VerdictRule::Plays;
            verdict.entry = m_screen.entry;
        } else if (runsLessThanOnce(plan)) {
            verdict.rule = VerdictRule::NoRuns;
        } else if (!m_screen.isPlaying()) {
            verdict.rule = VerdictRule::RanOut;
        } else {
            judgeTurn(plan, verdict);
        }
    }

private:
    /// Plays when the entry can be seen, or what keeps it from that.
    VerdictRule fault(const struProgInfo& entry) const
    {
        if (entry.isInvalid) {
            return VerdictRule::EntryInvalid;
        }
        const auto found = m_catalogue.find(entry.progIndex);
        if (found == m_catalogue.end()) {
            return VerdictRule::NotInCatalogue;
        }
        const ProgramIten& program = found->second;
        if (program.isNull) {
            return VerdictRule::FileGone;
        }
        // Lengths count in whole microseconds, and one that is no number counts for nothing.
        constexpr double leastLength = 0.0005;
        if (hasOwnLength(program) && !(program.durationMs >= leastLength)) {
            return VerdictRule::NoLength;
        }
        return entry.playCount < 1 ? VerdictRule::NoPlays : VerdictRule::Plays;
    }

    bool isSeen(const struProgInfo& entry) const { return fault(entry) == VerdictRule::Plays; }

    std::optional<int> firstSeen(const std::vector<struProgInfo>& entries) const
    {
        const auto found =
            std::find_if(entries.begin(), entries.end(), [this](const struProgInfo& entry) {
                return entry.progIndex == m_progIndex && isSeen(entry);
            });
        return found == entries.end() ? std::nullopt
                                      : std::optional<int>(int(found - entries.begin()));
    }

    int firstHeld(const std::vector<struProgInfo>& entries) const
    {
        const auto found =
            std::find_if(entries.begin(), entries.end(), [this](const struProgInfo& entry) {
                return entry.progIndex == m_progIndex;
            });
        return int(found - entries.begin());
    }

    void judgeTurn(const PlayPlan& plan, PlanVerdict& verdict) const
    {
        const auto first = plan.programs.begin();
        const auto holder =
            std::find_if(first, first + verdict.entry, [this](const struProgInfo& entry) {
                return isSeen(entry) && !hasOwnLength(m_catalogue.at(entry.progIndex));
            });
        if (holder != first + verdict.entry) {
            verdict.rule = VerdictRule::NeverReached;
            verdict.otherEntry = int(holder - first);
            return;
        }
        verdict.rule = VerdictRule::NotItsTurn;
        verdict.otherEntry = m_screen.entry;
        const auto turn = m_timeline.nextPlay(m_screen.until, m_screen.spanUntil, m_insertions,
                                              {m_progIndex, false});
        if (turn) {
            verdict.entry = turn->entry;
            verdict.nextTurn = turn->since;
        }
    }

    const ScreenTimeline& m_timeline;
    const Programs& m_catalogue;
    const ScreenInsertions& m_insertions;
    int m_progIndex;
    const ScreenState& m_screen;
};

/// Judges the plans of all tasks, one task after the other.
class PlanJudge
{
public:
    PlanJudge(const Tasks& tasks, const Programs& catalogue, const ListJudge& lists,
              const QDateTime& shown, int progIndex, const ScreenState& screen)
        : m_catalogue(catalogue)
        , m_lists(lists)
        , m_shown(shown)
        , m_progIndex(progIndex)
        , m_screen(screen)
    {
        const auto inEffect = std::find_if(tasks.begin(), tasks.end(), [&](const auto& task) {
            return holdsDay(task.second, shown.date());
        });
        m_taskInEffect = inEffect == tasks.end() ? nullptr : &inEffect->second;
    }

    void judge(const PlayTask& task, std::vector<PlanVerdict>& verdicts) const
    {
        const auto holds = [this](const PlayPlan& plan) { return holdsProgram(plan, m_progIndex); };
        if (std::none_of(task.plans.begin(), task.plans.end(), holds)) {
            return;
        }
        const auto claims = planClaims(task.plans, m_catalogue, [this](int progIndex) {
            const auto found = m_catalogue.find(progIndex);
            return found != m_catalogue.end() && !hasOwnLength(found->second);
        });
        int row = 0;
        std::optional<int> claimingRow;
        for (const PlayPlan& plan : task.plans) {
            const PlanClaim& claim = claims[static_cast<std::size_t>(row)];
            const VerdictRule rule = judgeClaim(claim, m_shown);
            if (holds(plan)) {
                PlanVerdict verdict;
                verdict.rule = rule;
                verdict.taskId = task.id;
                verdict.planId = plan.id;
                verdict.planRow = row;
                verdict.start = claim.start;
                verdict.end = claim.end;
                verdict.entry = entryOf(plan);
                judge(task, plan, claimingRow, verdict);
                verdicts.push_back(std::move(verdict));
            }
            if (rule == VerdictRule::Plays && !claimingRow) {
                claimingRow = row;
            }
            ++row;
        }
    }

private:
    /// Completes the verdict on a plan whose own claim is judged.
    void judge(const PlayTask& task, const PlayPlan& plan, std::optional<int> claimingRow,
               PlanVerdict& verdict) const
    {
        if (!holdsDay(task, m_shown.date())) {
            verdict.rule = VerdictRule::TaskNotValid;
        } else if (&task != m_taskInEffect) {
            verdict.rule = VerdictRule::OtherTask;
            verdict.otherTaskId = m_taskInEffect->id;
        } else if (verdict.rule == VerdictRule::Plays && claimingRow) {
            verdict.rule = VerdictRule::EarlierRow;
            verdict.otherTaskId = task.id;
            verdict.otherPlanId = task.plans[static_cast<std::size_t>(*claimingRow)].id;
            verdict.otherRow = *claimingRow;
        } else if (verdict.rule == VerdictRule::Plays && m_screen.isInserted()) {
            verdict.rule = VerdictRule::Insertion;
            verdict.otherTaskId = m_screen.taskId;
            verdict.otherPlanId = m_screen.planId;
            verdict.otherRow = m_screen.planRow;
        } else if (verdict.rule == VerdictRule::Plays) {
            m_lists.judge(plan, verdict);
        }
    }

    int entryOf(const PlayPlan& plan) const
    {
        const auto found =
            std::find_if(plan.programs.begin(), plan.programs.end(),
                         [this](const auto& entry) { return entry.progIndex == m_progIndex; });
        return int(found - plan.programs.begin());
    }

    const Programs& m_catalogue;
    const ListJudge& m_lists;
    const QDateTime& m_shown;
    int m_progIndex;
    const ScreenState& m_screen;
    const PlayTask* m_taskInEffect = nullptr;
};

/// The insertion that has the screen; of several the one that took it last.
const ScreenInsertion* insertionAt(const ScreenInsertions& insertions, Instant moment)
{
    const auto found = std::find_if(
        insertions.rbegin(), insertions.rend(),
        [moment](const ScreenInsertion& insertion) { return insertion.hasScreenAt(moment); });
    return found == insertions.rend() ? nullptr : &*found;
}

PlanVerdict judgeInsertion(const ScreenInsertion& insertion, const ListJudge& lists,
                           const ScreenState& screen)
{
    PlanVerdict verdict;
    verdict.isInsertion = true;
    verdict.taskId = insertion.taskId;
    verdict.planId = insertion.planId;
    verdict.planRow = screen.planRow;
    verdict.start = insertion.plan.startTime;
    verdict.end = insertion.plan.endTime;
    lists.judge(insertion.plan, verdict);
    return verdict;
}

} // namespace

bool ProgramVerdict::plays() const
{
    return std::any_of(plans.begin(), plans.end(), [](const PlanVerdict& verdict) {
        return verdict.rule == VerdictRule::Plays;
    });
}

ProgramVerdict programVerdict(const ScreenTimeline& timeline, const Tasks& tasks,
                              const Programs& catalogue, const ScreenInsertions& insertions,
                              int progIndex, Instant moment)
{
    ProgramVerdict verdict;
    verdict.screen = timeline.at(moment, insertions);
    const ListJudge lists(timeline, catalogue, insertions, progIndex, verdict.screen);
    const ScreenInsertion* const insertion = insertionAt(insertions, moment);
    if (insertion != nullptr && holdsProgram(insertion->plan, progIndex)) {
        verdict.plans.push_back(judgeInsertion(*insertion, lists, verdict.screen));
    }
    const QDateTime shown = timeline.local(moment);
    const PlanJudge judge(tasks, catalogue, lists, shown, progIndex, verdict.screen);
    for (const auto& [id, task] : tasks) {
        judge.judge(task, verdict.plans);
    }
    return verdict;
}

} // namespace trel::mediadispatch
