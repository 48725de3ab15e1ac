#include "AsRunComparison.h"

#include "AsRunSchedule.h"
#include "dispatch/ScreenTimeline.h"

#include <QTimeZone>

#include <algorithm>
#include <deque>
#include <list>
#include <map>
#include <tuple>

namespace trel::mediadispatch {

namespace {

/// An insertion takes a schedule with it and one without it, so that a few come again.
constexpr std::size_t kMostTimelines = 4;

/// A schedule that was followed, with its timeline.
struct Followed
{
    QByteArray hash;
    ScreenInsertions insertions;
    std::map<int, QString> names;
    std::shared_ptr<const ScreenTimeline> timeline;
};

bool isTooShort(Instant since, Instant until)
{
    return since != kEver && until != kNever && until - since < kShortestSeen;
}

Followed followed(const QByteArray& hash, const AsRunSchedule& schedule)
{
    Followed result;
    result.hash = hash;
    result.insertions = schedule.insertions;
    for (const auto& [index, program] : schedule.catalogue) {
        result.names.emplace(index, QString::fromStdString(program.progName));
    }
    result.timeline = std::make_shared<const ScreenTimeline>(schedule.tasks, schedule.catalogue,
                                                             QTimeZone(schedule.zone));
    return result;
}

} // namespace

bool AsRunStretch::isAsPlanned() const
{
    if (planned == nullptr || record == nullptr || record->kind != AsRunKind::Picture ||
        planned->picture != record->picture) {
        return false;
    }
    if (planned->picture == ScreenPicture::Black ||
        (planned->isPlaying() && isTooShort(planned->since, planned->until) &&
         isTooShort(record->plannedBegin, record->plannedEnd))) {
        return true;
    }
    const auto of = [](const auto& play, qint64 number) {
        return std::make_tuple(play.taskId, play.planId, play.entry, play.progIndex, play.play,
                               play.run, number);
    };
    return of(*planned, insertion) == of(*record, record->insertion);
}

AsRunEnd asRunEnd(const AsRunRecord& record)
{
    return {record.kind, record.outcome, record.boot, record.steadyEnd};
}

bool hasClockLeapt(const AsRunEnd& before, const AsRunRecord& next)
{
    if (before.kind == AsRunKind::Gap) {
        return !before.boot.isEmpty() && before.boot == next.boot &&
               before.steady == next.steadyBegin;
    }
    return before.outcome == AsRunOutcome::CutByClock;
}

class AsRunComparison::Private
{
public:
    void pull();
    void apply();
    void follow(const QByteArray& hash);
    bool hasTaken() const { return !m_taken.empty() && m_taken.front().moment <= m_at; }
    bool hasEnded() const { return m_isStopped || m_at >= m_to || m_record == nullptr; }
    void walk(const Visitor& visitor);
    bool step(Instant end, const ScreenState* planned, const Visitor& visitor);
    void give(Instant end, const ScreenState* planned, const Visitor& visitor);

    struct Taken
    {
        Instant moment;
        QByteArray hash;
    };

    Records m_records;
    Contents m_contents;
    Gaps m_gaps;
    std::list<Followed> m_timelines;       ///< The one in force first.
    std::deque<Taken> m_taken;             ///< From now on.
    const AsRunRecord* m_record = nullptr; ///< Of a picture or a gap; null behind the last.
    Instant m_at = 0;
    Instant m_to = kNever;
    bool m_isStopped = false;
    bool m_hasLeapt = false;
};

/// Goes to the next picture or gap. A picture is written when it is over, so that whatever was
/// taken while it was on has come before it.
void AsRunComparison::Private::pull()
{
    const bool isFirst = m_record == nullptr;
    const AsRunEnd former = isFirst ? AsRunEnd() : asRunEnd(*m_record);
    const AsRunRecord* next = m_records();
    for (; next != nullptr && next->kind == AsRunKind::ScheduleTaken; next = m_records()) {
        m_taken.push_back({next->begins, next->schedule});
    }
    m_record = next;
    if (next == nullptr) {
        return;
    }
    m_hasLeapt = !isFirst && m_record->begins < m_at && hasClockLeapt(former, *m_record);
    if (m_hasLeapt) {
        for (Taken& taken : m_taken) {
            // It was taken before the clock leapt.
            taken.moment = std::min(taken.moment, m_record->begins);
        }
    }
    const QByteArray known = !m_taken.empty()      ? m_taken.back().hash
                             : m_timelines.empty() ? QByteArray()
                                                   : m_timelines.front().hash;
    // A gap is measured by what was followed before it.
    if (m_taken.empty() && m_record->kind == AsRunKind::Picture && m_record->schedule != known) {
        m_taken.push_back({m_record->begins, m_record->schedule});
    }
}

/// Puts the schedule into force that was taken last.
void AsRunComparison::Private::apply()
{
    QByteArray hash;
    for (; hasTaken(); m_taken.pop_front()) {
        hash = m_taken.front().hash;
    }
    follow(hash);
}

void AsRunComparison::Private::follow(const QByteArray& hash)
{
    const auto known = std::find_if(m_timelines.begin(), m_timelines.end(),
                                    [&hash](const Followed& one) { return one.hash == hash; });
    if (known != m_timelines.end()) {
        m_timelines.splice(m_timelines.begin(), m_timelines, known);
        return;
    }
    const std::optional<AsRunSchedule> schedule = asRunSchedule(m_contents(hash));
    Followed unknown;
    unknown.hash = hash;
    m_timelines.push_front(schedule ? followed(hash, *schedule) : unknown);
    if (m_timelines.size() > kMostTimelines) {
        m_timelines.pop_back();
    }
}

void AsRunComparison::Private::give(Instant end, const ScreenState* planned, const Visitor& visitor)
{
    AsRunStretch stretch;
    stretch.from = m_at;
    stretch.to = end;
    stretch.planned = planned;
    if (planned != nullptr) {
        const Followed& force = m_timelines.front();
        if (planned->isInserted()) {
            for (const ScreenInsertion& insertion : force.insertions) {
                stretch.insertion =
                    insertion.hasScreenAt(m_at) ? insertion.number : stretch.insertion;
            }
        }
        const auto name = force.names.find(planned->progIndex);
        stretch.plannedProgram = name == force.names.end() ? QString() : name->second;
    }
    stretch.record = m_record->begins <= m_at ? m_record : nullptr;
    m_at = end;
    m_isStopped = !visitor(stretch);
}

/// Goes on within one picture of the timeline, up to its end. False where another timeline has to
/// be asked, or the same one at another moment.
bool AsRunComparison::Private::step(Instant end, const ScreenState* planned, const Visitor& visitor)
{
    while (m_at < end && !hasEnded()) {
        if (hasTaken()) {
            return false;
        }
        if (m_record->ends <= m_at && m_record->begins <= m_at) {
            pull();
            if (m_record != nullptr && m_hasLeapt) {
                m_at = m_record->begins;
                return false;
            }
            continue;
        }
        Instant until = m_record->begins <= m_at ? std::min(end, m_record->ends)
                                                 : std::min(end, m_record->begins);
        if (!m_taken.empty()) {
            until = std::min(until, m_taken.front().moment);
        }
        const bool isGap = m_record->kind == AsRunKind::Gap && m_record->begins <= m_at;
        if (isGap && m_gaps == Gaps::AsOne && planned != nullptr) {
            until =
                m_taken.empty() ? m_record->ends : std::min(m_record->ends, m_taken.front().moment);
            give(std::min(until, m_to), nullptr, visitor);
            if (m_at > end) {
                return false;
            }
            continue;
        }
        give(until, planned, visitor);
    }
    return !hasEnded();
}

void AsRunComparison::Private::walk(const Visitor& visitor)
{
    const Followed& force = m_timelines.front();
    if (!force.timeline) {
        step(m_to, nullptr, visitor);
        return;
    }
    const Instant began = m_at;
    force.timeline->visitPlays(m_at, m_to, force.insertions, [&](const ScreenState& state) {
        return step(std::min(state.until, m_to), &state, visitor);
    });
    if (m_at == began && !hasTaken() && !hasEnded()) {
        m_isStopped = true; // Never where the timeline has something for each moment.
    }
}

AsRunComparison::AsRunComparison(Records records, Contents contents, Gaps gaps)
    : m_d(std::make_unique<Private>())
{
    m_d->m_records = std::move(records);
    m_d->m_contents = std::move(contents);
    m_d->m_gaps = gaps;
}

AsRunComparison::~AsRunComparison() = default;

void AsRunComparison::visit(Instant from, Instant to, const Visitor& visitor)
{
    m_d->pull();
    if (m_d->m_record == nullptr) {
        return;
    }
    m_d->m_at = from == kEver ? m_d->m_record->begins : from;
    m_d->m_to = to;
    // What was in force at the beginning: the record tells, unless a schedule was taken before it.
    if (!m_d->hasTaken()) {
        m_d->follow(m_d->m_record->schedule);
    }
    while (!m_d->hasEnded()) {
        if (m_d->hasTaken()) {
            m_d->apply();
        }
        m_d->walk(visitor);
    }
}

} // namespace trel::mediadispatch
