#include "trelprogramschedule/dispatch/ClockChanges.h"

#include "service/DateText.h"
#include "service/PlanConflicts.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"

#include <QDateTime>

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>

namespace trel::mediadispatch {

namespace {

constexpr qint64 kSecondsPerDay = 86'400;

/// Local days begin at most this long before or after those of universal time.
constexpr qint64 kFurthestOffset = 2 * kSecondsPerDay;

/// The first moment that may belong to a local day, in seconds since 1970-01-01 00:00:00 UTC.
qint64 earliestSecond(const QDate& day)
{
    return QDateTime(day, QTime(0, 0), Qt::UTC).toSecsSinceEpoch() - kFurthestOffset;
}

/// What the local clock shows, in seconds since its own 1970-01-01 00:00:00, cut at midnight.
void appendDays(std::vector<ClockChange>& changes, ClockChangeKind kind, qint64 begin, qint64 end)
{
    const QDate epoch(1970, 1, 1);
    while (begin < end) {
        const qint64 second = (begin % kSecondsPerDay + kSecondsPerDay) % kSecondsPerDay;
        const qint64 midnight = begin - second;
        const qint64 length = std::min(end - begin, kSecondsPerDay - second);
        changes.push_back({epoch.addDays(midnight / kSecondsPerDay), kind, static_cast<int>(second),
                           static_cast<int>(second + length)});
        begin += length;
    }
}

/// Walks from change to change of a zone.
class ChangeWalk
{
public:
    ChangeWalk(const QTimeZone& zone, const QDate& first)
        : m_zone(zone)
    {
        skipTo(first);
    }

    /// What the next change of the clock does, one piece for each day that it touches. Empty when
    /// there is none any more.
    std::vector<ClockChange> next()
    {
        std::vector<ClockChange> changes;
        while (changes.empty() && m_zone.hasTransitions()) {
            const QTimeZone::OffsetData change =
                m_zone.nextTransition(QDateTime::fromSecsSinceEpoch(m_second, Qt::UTC));
            if (!change.atUtc.isValid() || change.atUtc.toSecsSinceEpoch() <= m_second) {
                break;
            }
            m_second = change.atUtc.toSecsSinceEpoch();
            append(changes, change.offsetFromUtc);
        }
        return changes;
    }

    /// Passes over the changes before a day, unless it is beyond it already.
    void skipTo(const QDate& day) { m_second = std::max(m_second, earliestSecond(day)); }

private:
    void append(std::vector<ClockChange>& changes, int offset) const
    {
        const int before =
            m_zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(m_second - 1, Qt::UTC));
        if (offset > before) {
            appendDays(changes, ClockChangeKind::LeftOut, m_second + before, m_second + offset);
        } else {
            appendDays(changes, ClockChangeKind::Doubled, m_second + offset, m_second + before);
        }
    }

    QTimeZone m_zone;
    qint64 m_second = std::numeric_limits<qint64>::min();
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
    const bool isLeftOut = change.kind == ClockChangeKind::LeftOut;
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
