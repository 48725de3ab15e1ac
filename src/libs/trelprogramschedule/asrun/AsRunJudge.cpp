#include "AsRunJudge.h"

#include <cstdlib>

namespace trel::mediadispatch {

namespace {

constexpr std::size_t kMostKept = 1000;
/// What a kill takes of the records at most, in milliseconds.
constexpr qint64 kLostByKill = 5000;

using Kind = AsRunDeviation::Kind;

bool isNear(Instant a, Instant b)
{
    return a == b || (a != kEver && b != kEver && a != kNever && b != kNever &&
                      std::abs(a - b) <= kShortestSeen);
}

AsRunDeviation deviationOf(Kind kind, const AsRunStretch& stretch)
{
    AsRunDeviation deviation;
    deviation.kind = kind;
    deviation.from = stretch.from;
    deviation.to = stretch.to;
    if (stretch.record != nullptr) {
        deviation.number = stretch.record->number;
        deviation.shownProgram = stretch.record->program;
    }
    if (stretch.planned != nullptr) {
        deviation.progIndex = stretch.planned->progIndex;
        deviation.plannedProgram = stretch.plannedProgram;
    }
    return deviation;
}

} // namespace

void AsRunJudge::see(const AsRunRecord& record)
{
    if (record.kind == AsRunKind::ScheduleTaken) {
        return;
    }
    m_hasLeapt = m_ends != kEver && hasClockLeapt(m_end, record);
    if (m_ends != kEver && !m_hasLeapt && record.begins < m_ends - kShortestSeen) {
        AsRunDeviation overlap;
        overlap.kind = Kind::Overlap;
        overlap.from = record.begins;
        overlap.to = m_ends;
        overlap.number = record.number;
        overlap.shownProgram = record.program;
        note(overlap);
    }
    m_ends = record.ends;
    m_end = asRunEnd(record);
}

void AsRunJudge::add(const AsRunStretch& stretch)
{
    if (stretch.record != nullptr && stretch.record->number != m_number) {
        addRecord(stretch);
    }
    if (stretch.record == nullptr) {
        addPending(Kind::NothingSaid, stretch);
    } else if (stretch.record->kind == AsRunKind::Gap) {
        resolve(&stretch);
        m_times.gaps += stretch.length();
    } else if (stretch.planned == nullptr) {
        addPending(Kind::NotFollowed, stretch);
    } else if (!stretch.isAsPlanned()) {
        addPending(Kind::OtherPicture, stretch);
    } else {
        resolve(&stretch);
        (stretch.record->shown == AsRunShown::AsPlanned ? m_times.asPlanned : m_times.stoodIn) +=
            stretch.length();
    }
}

/// Looks at what a record says once, where it begins.
void AsRunJudge::addRecord(const AsRunStretch& stretch)
{
    const AsRunRecord& record = *stretch.record;
    const bool isSaidOfPlan = record.begins == stretch.from && stretch.isAsPlanned() &&
                              record.picture != ScreenPicture::Black;
    if (isSaidOfPlan && record.program != stretch.plannedProgram) {
        note(deviationOf(Kind::OtherName, stretch));
    }
    const ScreenState* const planned = stretch.planned;
    // What goes on was planned by what came before.
    const bool goesOn = m_outcome == AsRunOutcome::GoesOn ||
                        m_outcome == AsRunOutcome::CutByClock ||
                        m_outcome == AsRunOutcome::MachineHadSlept;
    if (isSaidOfPlan && !goesOn && planned->isPlaying() &&
        planned->until - planned->since >= kShortestSeen &&
        (!isNear(planned->since, record.plannedBegin) ||
         !isNear(planned->until, record.plannedEnd))) {
        note(deviationOf(Kind::OtherTimes, stretch));
    }
    m_goesOn = goesOn;
    m_number = record.number;
    m_outcome = record.outcome;
}

void AsRunJudge::addPending(Kind kind, const AsRunStretch& stretch)
{
    const AsRunDeviation deviation = deviationOf(kind, stretch);
    const Instant since = stretch.planned == nullptr ? 0 : stretch.planned->since;
    if (m_pending) {
        AsRunDeviation& pending = m_pending->deviation;
        // One hole is one deviation, however much was planned in it.
        const bool goesOn = pending.kind == kind && pending.to == stretch.from &&
                            pending.number == deviation.number &&
                            (kind != Kind::OtherPicture || m_pending->since == since);
        if (goesOn) {
            pending.to = stretch.to;
            return;
        }
    }
    resolve(&stretch);
    const bool isFormer =
        stretch.record != nullptr && (m_goesOn || stretch.record->begins < stretch.from);
    const bool isAfterLeap = kind == Kind::NothingSaid && m_hasLeapt;
    m_pending = Pending{deviation, since, isFormer, isAfterLeap};
}

/// Decides about what is pending by what follows it.
void AsRunJudge::resolve(const AsRunStretch* next)
{
    if (!m_pending) {
        return;
    }
    const AsRunDeviation& deviation = m_pending->deviation;
    const qint64 length = deviation.to - deviation.from;
    if (m_pending->isAfterLeap) {
        // No time has passed.
    } else if (isExplained(next)) {
        m_times.late += length;
    } else {
        m_times.unexplained += length;
        note(deviation);
    }
    m_pending.reset();
}

bool AsRunJudge::isExplained(const AsRunStretch* next) const
{
    const AsRunDeviation& deviation = m_pending->deviation;
    const qint64 length = deviation.to - deviation.from;
    if (length <= kShortestSeen) {
        return true;
    }
    if (deviation.kind != Kind::OtherPicture || !m_pending->isFormer || next == nullptr) {
        return false;
    }
    // What was late, and would have told so, went with a kill.
    const bool isKilled = next->record != nullptr && next->record->kind == AsRunKind::Gap &&
                          (next->record->outcome == AsRunOutcome::PlayerWasKilled ||
                           next->record->outcome == AsRunOutcome::MachineHadStopped);
    if (isKilled) {
        return length <= kLostByKill;
    }
    return next->isAsPlanned() && next->planned->since == m_pending->since &&
           next->record->begins == next->from &&
           (next->record->shown != AsRunShown::AsPlanned ||
            next->record->late + kShortestSeen >= length);
}

void AsRunJudge::finish()
{
    resolve(nullptr);
}

void AsRunJudge::note(const AsRunDeviation& deviation)
{
    ++m_count;
    if (m_deviations.size() < kMostKept) {
        m_deviations.push_back(deviation);
    }
}

} // namespace trel::mediadispatch
