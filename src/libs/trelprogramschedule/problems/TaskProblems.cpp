#include "trelprogramschedule/problems/TaskProblems.h"

#include "service/DateText.h"
#include "service/PlanCollisions.h"
#include "service/PlanFaults.h"
#include "service/TimeText.h"
#include "trelprogramschedule/dispatch/ScreenTask.h"
#include "trelprogramschedule/problems/MidnightSplit.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

namespace trel::mediadispatch {

namespace {

using Programs = std::map<int, ProgramIten>;

constexpr int kDaysPerWeek = 7;
constexpr int kSecondsPerDay = 86'400;
/// That of the last time that a plan can end at.
constexpr int kLastSecond = kSecondsPerDay - 1;
constexpr Microseconds kSecond = 1'000'000;
constexpr int kShortestBlack = 60;
/// Lengths count in whole microseconds; of less than a half of one nothing is left.
constexpr double kLeastLength = 0.0005;

WeekdaySet setOf(int weekday)
{
    return 1U << static_cast<unsigned>(weekday);
}

/// Some days in a row.
struct DayRange
{
    QDate first;
    QDate last;

    bool isEmpty() const { return !first.isValid() || !last.isValid() || last < first; }

    /// The first of them that is one of these days of the week; an invalid date for none.
    QDate firstOn(WeekdaySet weekdays) const
    {
        for (int step = 0; step < kDaysPerWeek; ++step) {
            const QDate day = first.addDays(step);
            if (last < day) {
                break;
            }
            if (holdsWeekday(weekdays, day.dayOfWeek())) {
                return day;
            }
        }
        return {};
    }

    WeekdaySet weekdays() const
    {
        WeekdaySet result = 0;
        for (int step = 0; step < kDaysPerWeek && first.addDays(step) <= last; ++step) {
            result |= setOf(first.addDays(step).dayOfWeek());
        }
        return result;
    }
};

/// What keeps an entry from being seen; nothing where it is seen.
std::optional<ProblemKind> troubleOf(const struProgInfo& entry, const ProgramIten* program)
{
    if (entry.isInvalid || program == nullptr) {
        return ProblemKind::InvalidEntry;
    }
    if (program->isNull) {
        return ProblemKind::MissingFile;
    }
    const bool hasLength = !hasOwnLength(*program) || program->durationMs >= kLeastLength;
    return hasLength && entry.playCount >= 1 ? std::nullopt
                                             : std::make_optional(ProblemKind::EntryTakesNoTime);
}

/// Looks at one task.
class TaskLook
{
public:
    TaskLook(const PlayTask& task, const Programs& catalogue, const ProblemScope& scope)
        : m_task(task)
        , m_catalogue(catalogue)
        , m_scope(scope)
    {}

    std::vector<ScheduleProblem> problems()
    {
        if (!lookAtPeriod()) {
            return std::move(m_problems);
        }
        const NoDurationTest hasNoDuration = [this](int progIndex) {
            const ProgramIten* const program = programOf(progIndex);
            return program != nullptr && !hasOwnLength(*program);
        };
        m_claims = planClaims(m_task.plans, m_catalogue, hasNoDuration);
        m_collisions = firstCollisions(m_claims);
        const ScreenTask screen(m_task, m_catalogue);
        m_weekdays = m_days.weekdays();
        const std::vector<bool> isSeen = seenPlans(screen);
        for (std::size_t row = 0; row < m_task.plans.size(); ++row) {
            lookAtPlan(row, screen.plans(), isSeen[row]);
        }
        lookForBlack(screen);
        lookAtClocks();
        std::sort(m_problems.begin(), m_problems.end(), comesBefore);
        return std::move(m_problems);
    }

private:
    const ProgramIten* programOf(int progIndex) const
    {
        const auto found = m_catalogue.find(progIndex);
        return found == m_catalogue.end() ? nullptr : &found->second;
    }

    /// False when no day is left to look at.
    bool lookAtPeriod()
    {
        m_days = {dateFromText(m_task.startDate), dateFromText(m_task.endDate)};
        if (m_days.isEmpty()) {
            ScheduleProblem problem;
            problem.kind = ProblemKind::TaskNeverValid;
            problem.taskId = m_task.id;
            problem.startText = m_task.startDate;
            problem.endText = m_task.endDate;
            m_problems.push_back(std::move(problem));
            return false;
        }
        if (m_scope.from.isValid()) {
            m_days.first = std::max(m_days.first, m_scope.from);
        }
        return !m_days.isEmpty();
    }

    /// For each plan whether it has the screen at any time.
    std::vector<bool> seenPlans(const ScreenTask& screen) const
    {
        std::vector<bool> isSeen(m_task.plans.size(), false);
        for (int weekday = Monday; weekday <= Sunday; ++weekday) {
            if (!holdsWeekday(m_weekdays, weekday)) {
                continue;
            }
            for (const DaySpan& span : screen.spansOn(weekday)) {
                isSeen[static_cast<std::size_t>(span.row)] = true;
            }
        }
        return isSeen;
    }

    ScheduleProblem ofPlan(ProblemKind kind, std::size_t row, const ScreenPlan& screen) const
    {
        ScheduleProblem problem;
        problem.kind = kind;
        problem.taskId = m_task.id;
        problem.planId = m_task.plans[row].id;
        problem.planRow = static_cast<int>(row);
        problem.weekdays = screen.weekdays & m_weekdays;
        problem.first = m_days.firstOn(screen.weekdays);
        problem.last = problem.first.isValid() ? m_days.last : QDate();
        problem.begin = screen.claim.begin;
        problem.end = screen.claim.end;
        problem.startText = m_claims[row].start;
        problem.endText = m_claims[row].end;
        return problem;
    }

    void lookAtPlan(std::size_t row, const std::vector<ScreenPlan>& plans, bool isSeen)
    {
        const PlayPlan& plan = m_task.plans[row];
        const ScreenPlan& screen = plans[row];
        lookAtEntries(row, screen);
        const PlanFault fault = faultOf(row);
        if (fault != PlanFault::None) {
            ScheduleProblem problem = ofPlan(ProblemKind::PlanNeverPlays, row, screen);
            if (fault == PlanFault::InvertedSpan && plan.mode == TimeMode) {
                problem.kind = ProblemKind::OverMidnight;
                problem.canBeSplit = true;
            }
            problem.fault = fault;
            m_problems.push_back(std::move(problem));
            return;
        }
        if (!m_days.firstOn(screen.weekdays).isValid()) {
            m_problems.push_back(ofPlan(ProblemKind::PlanHasNoDate, row, screen));
            return;
        }
        if (m_collisions[row] >= 0) {
            addCollision(row, plans, isSeen);
        }
        if (isSeen) {
            lookAtList(row, screen);
        }
    }

    /// Also of a plan that has the screen, but runs its list less than once.
    PlanFault faultOf(std::size_t row) const
    {
        const PlayPlan& plan = m_task.plans[row];
        const PlanFault fault = planFault(plan, m_claims[row].end);
        return fault == PlanFault::None && runsLessThanOnce(plan) ? PlanFault::RunsLessThanOnce
                                                                  : fault;
    }

    void addCollision(std::size_t row, const std::vector<ScreenPlan>& plans, bool isSeen)
    {
        const auto other = static_cast<std::size_t>(m_collisions[row]);
        ScheduleProblem problem = ofPlan(
            isSeen ? ProblemKind::PlansCollide : ProblemKind::PlanNeverSeen, row, plans[row]);
        problem.otherPlanId = m_task.plans[other].id;
        problem.otherRow = m_collisions[row];
        if (isSeen) {
            problem.weekdays &= plans[other].weekdays;
            problem.first = m_days.firstOn(problem.weekdays);
            problem.last = problem.first.isValid() ? m_days.last : QDate();
        }
        m_problems.push_back(std::move(problem));
    }

    void lookAtEntries(std::size_t row, const ScreenPlan& screen)
    {
        const std::vector<struProgInfo>& entries = m_task.plans[row].programs;
        if (entries.empty()) {
            m_problems.push_back(ofPlan(ProblemKind::NothingToPlay, row, screen));
            return;
        }
        std::map<ProblemKind, ScheduleProblem> found;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const auto trouble = troubleOf(entries[i], programOf(entries[i].progIndex));
            if (!trouble) {
                continue;
            }
            const auto [place, isNew] = found.try_emplace(*trouble);
            if (isNew) {
                place->second = ofPlan(*trouble, row, screen);
                setEntry(place->second, row, static_cast<int>(i));
            }
            ++place->second.count;
        }
        for (auto& [kind, problem] : found) {
            m_problems.push_back(std::move(problem));
        }
    }

    void setEntry(ScheduleProblem& problem, std::size_t row, int number) const
    {
        const struProgInfo& entry = m_task.plans[row].programs[static_cast<std::size_t>(number)];
        const ProgramIten* const program = programOf(entry.progIndex);
        problem.entry = number;
        problem.progIndex = entry.progIndex;
        problem.name = entry.isInvalid || program == nullptr ? entry.progName : program->progName;
    }

    void lookAtList(std::size_t row, const ScreenPlan& screen)
    {
        const PlayPlan& plan = m_task.plans[row];
        // The last second of a day belongs to no plan.
        const bool isToMidnight = screen.claim.end == kLastSecond;
        const int end = isToMidnight ? kSecondsPerDay : screen.claim.end;
        const Microseconds span = (end - screen.claim.begin) * kSecond;
        const PlayList firstRun(plan.programs, m_catalogue, 1);
        if (firstRun.isEmpty()) {
            return;
        }
        if (firstRun.length() == kEndless) {
            lookAtEndlessList(row, screen, firstRun, span);
            return;
        }
        const PlayList& list = countsRuns(plan) ? screen.list : firstRun;
        // Ends are cut to whole seconds.
        if (list.length() < span + kSecond) {
            return;
        }
        if (plan.mode == FrequencyMode && isToMidnight) {
            ScheduleProblem problem = ofPlan(ProblemKind::OverMidnight, row, screen);
            problem.end = static_cast<int>(std::min<Microseconds>((list.length() - span) / kSecond,
                                                                  std::numeric_limits<int>::max()));
            problem.canBeSplit = planSplitAtMidnight(plan, m_catalogue).has_value();
            m_problems.push_back(std::move(problem));
            return;
        }
        addCutOff(row, screen, list.at(span).entry);
    }

    /// A list with an entry that does not end by itself.
    void lookAtEndlessList(std::size_t row, const ScreenPlan& screen, const PlayList& list,
                           Microseconds span)
    {
        const std::vector<struProgInfo>& entries = m_task.plans[row].programs;
        const auto isEndless = [this](const struProgInfo& entry) {
            const ProgramIten* const program = programOf(entry.progIndex);
            return !troubleOf(entry, program) && !hasOwnLength(*program);
        };
        const auto endless = std::find_if(entries.begin(), entries.end(), isEndless);
        const int place = static_cast<int>(endless - entries.begin());
        // A list of ten thousand years counts as endless, too.
        if (list.at(span - kSecond).entry < place || endless == entries.end()) {
            addCutOff(row, screen, list.at(span).entry);
            return;
        }
        const auto behind =
            std::find_if(std::next(endless), entries.end(), [this](const struProgInfo& entry) {
                return !troubleOf(entry, programOf(entry.progIndex));
            });
        if (behind != entries.end()) {
            ScheduleProblem problem = ofPlan(ProblemKind::NeverReached, row, screen);
            problem.otherEntry = place;
            setEntry(problem, row, static_cast<int>(behind - entries.begin()));
            m_problems.push_back(std::move(problem));
        }
    }

    void addCutOff(std::size_t row, const ScreenPlan& screen, int entry)
    {
        ScheduleProblem problem = ofPlan(ProblemKind::CutOff, row, screen);
        setEntry(problem, row, entry);
        m_problems.push_back(std::move(problem));
    }

    /// What a span leaves behind, and whether it has anything to show itself.
    struct Light
    {
        bool isShown = false;
        bool isLeft = false;
    };

    static Light lightOf(const ScreenTask& screen, const DaySpan& span)
    {
        const ScreenPlan& plan = screen.plans()[static_cast<std::size_t>(span.row)];
        const bool isShown = !plan.list.isEmpty();
        return {isShown, isShown && plan.freezes};
    }

    /// Whether a last frame stands at the start of a day of the week.
    bool beginsWithFrame(const ScreenTask& screen, int weekday) const
    {
        for (int back = 1; back <= kDaysPerWeek; ++back) {
            const int before = (weekday - 1 - back + kDaysPerWeek) % kDaysPerWeek + 1;
            if (!holdsWeekday(m_weekdays, before)) {
                continue;
            }
            if (const std::vector<DaySpan>& spans = screen.spansOn(before); !spans.empty()) {
                return lightOf(screen, spans.back()).isLeft;
            }
        }
        return false;
    }

    void lookForBlack(const ScreenTask& screen)
    {
        std::map<std::pair<int, int>, WeekdaySet> found;
        for (int weekday = Monday; weekday <= Sunday; ++weekday) {
            if (!holdsWeekday(m_weekdays, weekday)) {
                continue;
            }
            bool isBlack = !beginsWithFrame(screen, weekday);
            int since = 0;
            const auto endBlack = [&](int until) {
                if (isBlack && until - since >= kShortestBlack) {
                    found[{since, until}] |= setOf(weekday);
                }
            };
            // Black goes on from one stretch to the next where nothing comes between.
            const auto turn = [&](int second, bool isBlackNow) {
                if (isBlack != isBlackNow) {
                    endBlack(second);
                    isBlack = isBlackNow;
                    since = second;
                }
            };
            for (const DaySpan& span : screen.spansOn(weekday)) {
                const Light light = lightOf(screen, span);
                turn(span.begin, !light.isShown);
                turn(span.end, !light.isLeft);
            }
            endBlack(kSecondsPerDay);
        }
        for (const auto& [stretch, weekdays] : found) {
            ScheduleProblem problem;
            problem.kind = ProblemKind::NoPicture;
            problem.taskId = m_task.id;
            problem.first = m_days.firstOn(weekdays);
            problem.last = m_days.last;
            problem.begin = stretch.first;
            problem.end = stretch.second;
            problem.weekdays = weekdays;
            m_problems.push_back(std::move(problem));
        }
    }

    void lookAtClocks()
    {
        for (const TaskClockChange& change :
             clockChangesOfTask(m_task, m_catalogue, m_scope.changes)) {
            if (change.change.date < m_days.first) {
                continue;
            }
            for (const TouchedPlan& plan : change.plans) {
                ScheduleProblem problem;
                problem.kind = ProblemKind::ClockChange;
                problem.taskId = m_task.id;
                problem.planId = plan.planId;
                problem.planRow = plan.row;
                problem.first = problem.last = change.change.date;
                problem.begin = plan.begin;
                problem.end = plan.end;
                problem.change = change.change;
                problem.touched = plan;
                m_problems.push_back(std::move(problem));
            }
        }
    }

    const PlayTask& m_task;
    const Programs& m_catalogue;
    const ProblemScope& m_scope;
    DayRange m_days; ///< That are looked at.
    WeekdaySet m_weekdays = 0;
    std::vector<PlanClaim> m_claims;
    std::vector<int> m_collisions;
    std::vector<ScheduleProblem> m_problems;
};

} // namespace

std::vector<ScheduleProblem> taskProblems(const PlayTask& task,
                                          const std::map<int, ProgramIten>& catalogue,
                                          const ProblemScope& scope)
{
    return TaskLook(task, catalogue, scope).problems();
}

} // namespace trel::mediadispatch
