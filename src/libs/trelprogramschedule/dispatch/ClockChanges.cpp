#include "trelprogramschedule/dispatch/ClockChanges.h"

#include "service/DateText.h"
#include "service/PlanConflicts.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"
#include "trelprogramschedule/dispatch/TaskDays.h"
#include "trelprogramschedule/dispatch/ZoneOffsets.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace trel::mediadispatch {

namespace {

int secondOn(DayNumber day, LocalTime time)
{
    return static_cast<int>((time - timeOn(day, 0)) / 1000);
}

/// What the clock leaves out or shows twice, cut at midnight.
void appendDays(std::vector<ClockChange>& changes, ClockChangeKind kind, LocalTime begin,
                LocalTime end, Instant moment)
{
    while (begin < end) {
        const DayNumber day = dayOf(begin);
        const LocalTime until = std::min(end, timeOn(day + 1, 0));
        changes.push_back({dateOf(day), kind, secondOn(day, begin), secondOn(day, until), moment});
        begin = until;
    }
}

/// Walks from change to change of a zone.
class ChangeWalk
{
public:
    ChangeWalk(const ZoneOffsets& offsets, const QDate& first)
        : m_offsets(offsets)
        , m_moment(earliest(first))
    {}

    /// What the next change of the clock does, one piece for each day that it touches. Empty when
    /// there is none any more.
    std::vector<ClockChange> next()
    {
        std::vector<ClockChange> changes;
        const OffsetPeriod& before = m_offsets.periodAt(m_moment);
        if (before.end == kNever) {
            return changes;
        }
        m_moment = before.end;
        const OffsetPeriod& after = m_offsets.periodAt(m_moment);
        if (after.offset > before.offset) {
            appendDays(changes, ClockChangeKind::LeftOut, before.local(m_moment),
                       after.local(m_moment), m_moment);
        } else {
            appendDays(changes, ClockChangeKind::Doubled, after.local(m_moment),
                       before.local(m_moment), m_moment);
        }
        return changes;
    }

    /// Passes over the changes before a day, unless it is beyond it already.
    void skipTo(const QDate& day) { m_moment = std::max(m_moment, earliest(day)); }

private:
    /// A moment before all that belong to a local day, or to a change that touches it.
    static Instant earliest(const QDate& day)
    {
        return timeOn(dayNumber(day), 0) - 2 * kLargestOffset;
    }

    const ZoneOffsets& m_offsets;
    Instant m_moment;
};

/// Valid on these days, whether it has a plan on them or not.
TaskValidity validityOf(const PlayTask& task)
{
    const QDate first = dateFromText(task.startDate);
    const QDate last = dateFromText(task.endDate);
    return first.isValid() && last.isValid()
               ? TaskValidity{dayNumber(first), dayNumber(last), kAllWeekdays}
               : TaskValidity();
}

bool playsOn(const std::string& weeks, const QDate& day)
{
    std::vector<int> numbers;
    return parseWeeks(weeks, numbers) ||
           std::find(numbers.begin(), numbers.end(), day.dayOfWeek()) != numbers.end();
}

ClockChangeEffect effectOn(const TouchedPlan& plan, const ClockChange& change)
{
    const bool isStartInside = plan.begin >= change.begin;
    const bool isEndInside = plan.end <= change.end;
    const bool isLeftOut = change.isLeftOut();
    if (isStartInside && isEndInside) {
        return isLeftOut ? ClockChangeEffect::Lost : ClockChangeEffect::PlaysTwice;
    }
    if (isStartInside) {
        return isLeftOut ? ClockChangeEffect::BeginsLate : ClockChangeEffect::BeginsTwice;
    }
    if (isEndInside) {
        return isLeftOut ? ClockChangeEffect::EndsEarly : ClockChangeEffect::EndsTwice;
    }
    return isLeftOut ? ClockChangeEffect::Skips : ClockChangeEffect::RepeatsAPart;
}

int secondOfDay(const QTime& time)
{
    return time.msecsSinceStartOfDay() / 1000;
}

/// The plans of a task, with their spans.
class SpansOfTask
{
public:
    SpansOfTask(const PlayTask& task, const std::map<int, ProgramIten>& catalogue)
    {
        const auto hasNoDuration = [&catalogue](int progIndex) {
            const auto program = catalogue.find(progIndex);
            return program != catalogue.end() && !hasOwnLength(program->second);
        };
        m_claims = planClaims(task.plans, catalogue, hasNoDuration);
        m_plans.reserve(m_claims.size());
        for (std::size_t row = 0; row < m_claims.size(); ++row) {
            TouchedPlan plan;
            plan.planId = task.plans[row].id;
            plan.row = static_cast<int>(row);
            const QTime begin = timeFromText(m_claims[row].start);
            const QTime end = timeFromText(m_claims[row].end);
            if (begin.isValid() && end.isValid()) {
                plan.begin = secondOfDay(begin);
                plan.end = secondOfDay(end);
            }
            m_plans.push_back(plan);
        }
    }

    std::vector<TouchedPlan> touchedBy(const ClockChange& change) const
    {
        std::vector<TouchedPlan> touched;
        for (std::size_t row = 0; row < m_plans.size(); ++row) {
            TouchedPlan plan = m_plans[row];
            const bool sharesTime =
                plan.begin < plan.end && plan.begin < change.end && plan.end > change.begin;
            if (sharesTime && playsOn(m_claims[row].weeks, change.date)) {
                plan.effect = effectOn(plan, change);
                touched.push_back(plan);
            }
        }
        return touched;
    }

private:
    std::vector<PlanClaim> m_claims;
    std::vector<TouchedPlan> m_plans;
};

} // namespace

std::vector<ClockChange> clockChanges(const QDate& first, const QDate& last, const QTimeZone& zone)
{
    std::vector<ClockChange> result;
    if (!first.isValid() || !last.isValid()) {
        return result;
    }
    // A change on a day after the last may begin on the evening of the last.
    const QDate end = last.addDays(2);
    const ZoneOffsets offsets(zone);
    ChangeWalk walk(offsets, first);
    for (std::vector<ClockChange> changes = walk.next();
         !changes.empty() && changes.front().date <= end; changes = walk.next()) {
        std::copy_if(changes.begin(), changes.end(), std::back_inserter(result),
                     [&](const ClockChange& c) { return first <= c.date && c.date <= last; });
    }
    return result;
}

class ClockChangeSearch::Private
{
public:
    explicit Private(const QTimeZone& zone)
        : offsets(zone)
    {}

    /// A task with what is known of it.
    struct Task
    {
        std::shared_ptr<const PlayTask> record;
        TaskValidity validity;
        std::optional<SpansOfTask> spans; ///< Once a change falls on one of its days.
    };

    /// The task in effect on a day; null where there is none.
    Task* inEffect(const QDate& date)
    {
        const std::optional<TaskDay> found = days().lastUpTo(dayNumber(date));
        return found && found->day == dayNumber(date) ? order[static_cast<std::size_t>(found->task)]
                                                      : nullptr;
    }

    std::optional<QDate> nextDayInEffect(const QDate& after)
    {
        const std::optional<TaskDay> found = days().firstFrom(dayNumber(after) + 1);
        return found ? std::make_optional(dateOf(found->day)) : std::nullopt;
    }

    const SpansOfTask& spansOf(Task& task) const
    {
        if (!task.spans) {
            task.spans.emplace(*task.record, *catalogue);
        }
        return *task.spans;
    }

    ZoneOffsets offsets;
    std::map<int, Task> tasks;
    std::shared_ptr<const std::map<int, ProgramIten>> catalogue =
        std::make_shared<const std::map<int, ProgramIten>>();
    /// Which of the tasks is in effect when; none since the days of one have changed.
    std::optional<TaskDays> knownDays;
    std::vector<Task*> order; ///< The tasks as the days number them.

private:
    const TaskDays& days()
    {
        if (!knownDays) {
            std::vector<TaskValidity> validities;
            order.clear();
            for (auto& [id, task] : tasks) {
                validities.push_back(task.validity);
                order.push_back(&task);
            }
            knownDays.emplace(validities);
        }
        return *knownDays;
    }
};

ClockChangeSearch::ClockChangeSearch(const QTimeZone& zone)
    : d(std::make_unique<Private>(zone))
{}

ClockChangeSearch::~ClockChangeSearch() = default;
ClockChangeSearch::ClockChangeSearch(ClockChangeSearch&&) noexcept = default;
ClockChangeSearch& ClockChangeSearch::operator=(ClockChangeSearch&&) noexcept = default;

void ClockChangeSearch::setTask(int taskId, std::shared_ptr<const PlayTask> task)
{
    if (!task) {
        d->tasks.erase(taskId);
        d->knownDays.reset();
        return;
    }
    const auto [place, isNew] = d->tasks.try_emplace(taskId);
    Private::Task& known = place->second;
    const TaskValidity validity = validityOf(*task);
    if (isNew || !(known.validity == validity)) {
        d->knownDays.reset();
    }
    known = {std::move(task), validity, std::nullopt};
}

void ClockChangeSearch::setCatalogue(std::shared_ptr<const std::map<int, ProgramIten>> catalogue)
{
    d->catalogue = std::move(catalogue);
    for (auto& [id, task] : d->tasks) {
        task.spans.reset();
    }
}

std::vector<TaskClockChange> ClockChangeSearch::next(const QDate& from, int count,
                                                     const std::function<bool()>& goesOn)
{
    std::vector<TaskClockChange> result;
    if (!from.isValid()) {
        return result;
    }
    ChangeWalk walk(d->offsets, from);
    for (std::vector<ClockChange> changes = walk.next(); !changes.empty() && (!goesOn || goesOn());
         changes = walk.next()) {
        bool isInEffect = false;
        for (const ClockChange& change : changes) {
            Private::Task* task = change.date < from ? nullptr : d->inEffect(change.date);
            if (task == nullptr) {
                continue;
            }
            if (static_cast<int>(result.size()) >= count) {
                return result;
            }
            isInEffect = true;
            result.push_back({change, task->record->id, d->spansOf(*task).touchedBy(change)});
        }
        if (isInEffect || changes.back().date < from) {
            continue;
        }
        // Nothing is in effect here; the next change that counts is not before the next task.
        const std::optional<QDate> next = d->nextDayInEffect(changes.back().date);
        if (!next) {
            break;
        }
        walk.skipTo(*next);
    }
    return result;
}

std::vector<TaskClockChange> clockChangesOfTask(const PlayTask& task,
                                                const std::map<int, ProgramIten>& catalogue,
                                                const std::vector<ClockChange>& changes)
{
    std::vector<TaskClockChange> result;
    const TaskValidity validity = validityOf(task);
    std::optional<SpansOfTask> spans;
    for (const ClockChange& change : changes) {
        const DayNumber day = dayNumber(change.date);
        if (day < validity.first || validity.last < day) {
            continue;
        }
        if (!spans) {
            spans.emplace(task, catalogue);
        }
        std::vector<TouchedPlan> touched = spans->touchedBy(change);
        if (!touched.empty()) {
            result.push_back({change, task.id, std::move(touched)});
        }
    }
    return result;
}

std::vector<TaskClockChange> nextClockChanges(const std::map<int, PlayTask>& tasks,
                                              const std::map<int, ProgramIten>& catalogue,
                                              const QTimeZone& zone, const QDate& from, int count)
{
    // The records outlive the search, which therefore need not own them.
    const std::shared_ptr<void> unowned;
    ClockChangeSearch search(zone);
    search.setCatalogue(std::shared_ptr<const std::map<int, ProgramIten>>(unowned, &catalogue));
    for (const auto& [id, task] : tasks) {
        search.setTask(id, std::shared_ptr<const PlayTask>(unowned, &task));
    }
    return search.next(from, count);
}

} // namespace trel::mediadispatch
