#include "trelprogramschedule/dispatch/ClockChanges.h"

#include "service/DateText.h"
#include "service/PlanConflicts.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"
#include "trelprogramschedule/dispatch/WallTime.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace trel::mediadispatch {

namespace {

int secondOn(DayNumber day, LocalTime time)
{
    return static_cast<int>((time - timeOn(day, 0)) / 1000);
}

/// What the clock leaves out or shows twice, cut at midnight.
void appendDays(std::vector<ClockChange>& changes, ClockChangeKind kind, LocalTime begin,
                LocalTime end)
{
    while (begin < end) {
        const DayNumber day = dayOf(begin);
        const LocalTime until = std::min(end, timeOn(day + 1, 0));
        changes.push_back({dateOf(day), kind, secondOn(day, begin), secondOn(day, until)});
        begin = until;
    }
}

/// Walks from change to change of a zone.
class ChangeWalk
{
public:
    ChangeWalk(const QTimeZone& zone, const QDate& first)
        : m_wall(zone)
        , m_moment(earliest(first))
    {}

    /// What the next change of the clock does, one piece for each day that it touches. Empty when
    /// there is none any more.
    std::vector<ClockChange> next()
    {
        std::vector<ClockChange> changes;
        const WallPiece& before = m_wall.pieceAt(m_moment);
        if (before.end == kNever) {
            return changes;
        }
        m_moment = before.end;
        const WallPiece& after = m_wall.pieceAt(m_moment);
        if (after.offset > before.offset) {
            appendDays(changes, ClockChangeKind::LeftOut, before.local(m_moment),
                       after.local(m_moment));
        } else {
            appendDays(changes, ClockChangeKind::Doubled, after.local(m_moment),
                       before.local(m_moment));
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

    WallTime m_wall;
    Instant m_moment;
};

/// The days of one task.
struct Validity
{
    QDate first;
    QDate last;
    const PlayTask* task = nullptr;
};

/// Those that are not over before a day, in ascending order of ids, so that the first one that
/// holds a day is in effect on it.
std::vector<Validity> validitiesFrom(const std::map<int, PlayTask>& tasks, const QDate& from)
{
    std::vector<Validity> result;
    for (const auto& [id, task] : tasks) {
        const Validity validity{dateFromText(task.startDate), dateFromText(task.endDate), &task};
        if (validity.first.isValid() && validity.last.isValid() &&
            validity.first <= validity.last && validity.last >= from) {
            result.push_back(validity);
        }
    }
    return result;
}

const PlayTask* taskInEffect(const std::vector<Validity>& validities, const QDate& day)
{
    const auto found =
        std::find_if(validities.begin(), validities.end(),
                     [&day](const Validity& v) { return v.first <= day && day <= v.last; });
    return found == validities.end() ? nullptr : found->task;
}

/// The first day after the given one on which a task becomes valid.
std::optional<QDate> nextValidDay(const std::vector<Validity>& validities, const QDate& day)
{
    std::optional<QDate> next;
    for (const Validity& validity : validities) {
        if (validity.first > day && (!next || validity.first < *next)) {
            next = validity.first;
        }
    }
    return next;
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
    ChangeWalk walk(zone, first);
    for (std::vector<ClockChange> changes = walk.next();
         !changes.empty() && changes.front().date <= end; changes = walk.next()) {
        std::copy_if(changes.begin(), changes.end(), std::back_inserter(result),
                     [&](const ClockChange& c) { return first <= c.date && c.date <= last; });
    }
    return result;
}

std::vector<TaskClockChange> nextClockChanges(const std::map<int, PlayTask>& tasks,
                                              const std::map<int, ProgramIten>& catalogue,
                                              const QTimeZone& zone, const QDate& from, int count)
{
    std::vector<TaskClockChange> result;
    if (!from.isValid()) {
        return result;
    }
    const std::vector<Validity> valid = validitiesFrom(tasks, from);
    std::map<const PlayTask*, SpansOfTask> spans;
    ChangeWalk walk(zone, from);
    for (std::vector<ClockChange> changes = walk.next(); !changes.empty(); changes = walk.next()) {
        bool isInEffect = false;
        for (const ClockChange& change : changes) {
            const PlayTask* task = change.date < from ? nullptr : taskInEffect(valid, change.date);
            if (task == nullptr) {
                continue;
            }
            if (static_cast<int>(result.size()) >= count) {
                return result;
            }
            isInEffect = true;
            const auto known = spans.try_emplace(task, *task, catalogue).first;
            result.push_back({change, task->id, known->second.touchedBy(change)});
        }
        if (isInEffect || changes.back().date < from) {
            continue;
        }
        // Nothing is in effect here; the next change that counts is not before the next task.
        const std::optional<QDate> next = nextValidDay(valid, changes.back().date);
        if (!next) {
            break;
        }
        walk.skipTo(*next);
    }
    return result;
}

} // namespace trel::mediadispatch
