#include "AsRunRecorder.h"

#include "clock/Clock.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

/// More than two readings of the clock and of the steady time are ever apart.
constexpr qint64 kLeap = 250;
/// A screen that knows of a leap of which the clocks know nothing has slept, with its machine.
constexpr qint64 kSleep = 1000;
/// How soon after a leap the screen shows what the new time says.
constexpr qint64 kLeapNoticed = 1000;

bool isSameInsertion(const ScreenInsertion& one, const ScreenInsertion& other)
{
    return one.number == other.number && one.requested == other.requested &&
           one.begins == other.begins && one.ends == other.ends;
}

void setPlay(AsRunRecord& record, const ScreenPlay& play)
{
    const ScreenState& state = play.state;
    record.picture = state.picture;
    record.taskId = state.taskId;
    record.planId = state.planId;
    record.planRow = state.planRow;
    record.entry = state.entry;
    record.play = state.play;
    record.run = state.run;
    record.insertion = state.isInserted() ? play.insertionNumber : 0;
    record.progIndex = state.progIndex;
    record.program = play.isBlack() ? QString() : play.name;
    record.plannedBegin = state.since;
    record.plannedEnd = state.until;
}

} // namespace

AsRunRecorder::AsRunRecorder(Steady steady, Words words, Take take)
    : m_steady(std::move(steady))
    , m_words(std::move(words))
    , m_take(std::move(take))
    , m_last({Clock::current().msecsSinceEpoch(), m_steady()})
{
    m_open.kind = AsRunKind::Gap;
    m_open.outcome = AsRunOutcome::NothingReadYet;
    m_open.begins = m_last.time;
    m_open.steadyBegin = m_last.steady;
}

void AsRunRecorder::take(const ScreenSchedule& schedule)
{
    m_given = schedule;
}

bool AsRunRecorder::isNew(const ScreenSchedule& schedule) const
{
    return schedule.timeline != m_schedule.timeline || !(schedule.start == m_schedule.start) ||
           !std::equal(schedule.insertions.begin(), schedule.insertions.end(),
                       m_schedule.insertions.begin(), m_schedule.insertions.end(), isSameInsertion);
}

void AsRunRecorder::note(const ScreenEvent& event)
{
    const Moment moment = now();
    switch (event.kind) {
    case ScreenEvent::Kind::ScheduleTaken:
        takeAt(moment);
        break;
    case ScreenEvent::Kind::Due:
        due(event, moment);
        break;
    case ScreenEvent::Kind::Shown:
        put(event, AsRunShown::AsPlanned, moment);
        break;
    case ScreenEvent::Kind::StoodIn:
        put(event,
            event.standIn == StandIn::LastPicture ? AsRunShown::LastFrame : AsRunShown::StandBy,
            moment);
        break;
    case ScreenEvent::Kind::Left:
        look(event.play);
        break;
    case ScreenEvent::Kind::Fault:
        if (m_open.kind == AsRunKind::Picture && m_open.shown != AsRunShown::AsPlanned &&
            event.play.isSamePlay(m_play)) {
            m_open.why = m_words(event.fault);
        }
        break;
    case ScreenEvent::Kind::ClockLeapt:
        leap(event.amount, moment);
        break;
    case ScreenEvent::Kind::Late:
    case ScreenEvent::Kind::Recovered:
    case ScreenEvent::Kind::CorrectedBySpeed:
    case ScreenEvent::Kind::Sought:
        break;
    }
    if (!m_goesOn || moment.steady > m_open.steadyBegin) {
        release();
    }
}

void AsRunRecorder::look(const ScreenPlay& play)
{
    const Moment moment = now();
    if (m_open.kind == AsRunKind::Picture && play.isSamePlay(m_play)) {
        m_open.plannedEnd = play.state.until;
        m_play = play;
    }
    if (moment.steady > m_open.steadyBegin) {
        release();
    }
}

AsRunRecord AsRunRecorder::open() const
{
    AsRunRecord record = m_open;
    record.ends = m_last.time;
    record.steadyEnd = m_last.steady;
    if (record.kind == AsRunKind::Picture) {
        record.outcome = AsRunOutcome::CutByKill;
    }
    return record;
}

AsRunRecord AsRunRecorder::end()
{
    const Moment moment = now();
    close(moment, AsRunOutcome::CutByPlayerEnd);
    release();
    goOn(moment);
    AsRunRecord left = open();
    left.kind = AsRunKind::Picture;
    left.outcome = AsRunOutcome::CutByPlayerEnd;
    return left;
}

AsRunRecorder::Moment AsRunRecorder::now()
{
    const Moment moment{Clock::current().msecsSinceEpoch(), m_steady()};
    const qint64 leap = (moment.time - m_last.time) - (moment.steady - m_last.steady);
    if (std::abs(leap) > kLeap) {
        m_leapt += leap;
        m_leaptAt = moment.steady;
        close({moment.time - leap, moment.steady}, AsRunOutcome::CutByClock);
        goOn(moment);
    }
    m_passed = moment.steady - m_last.steady;
    m_last = moment;
    return moment;
}

// What the schedule has.

void AsRunRecorder::takeAt(Moment moment)
{
    if (!m_given || !isNew(*m_given)) {
        m_given.reset();
        return;
    }
    m_schedule = *std::exchange(m_given, std::nullopt);
    close(moment, AsRunOutcome::GoesOn);
    AsRunEntry taken;
    taken.schedule = m_schedule;
    AsRunRecord& record = taken.record;
    record.kind = AsRunKind::ScheduleTaken;
    record.revision = m_schedule.start ? m_schedule.start->saved : 0;
    record.begins = record.ends = moment.time;
    record.steadyBegin = record.steadyEnd = moment.steady;
    m_closed.push_back(taken);
    goOn(moment);
}

void AsRunRecorder::due(const ScreenEvent& event, Moment moment)
{
    m_isForeseen = event.isSwitch;
    if (!event.isSwitch) {
        // What a schedule changes it has changed when it was taken.
        const bool isJustTaken = m_goesOn && moment.steady - m_open.steadyBegin < kFrame;
        const Moment border = isJustTaken ? Moment{m_open.begins, m_open.steadyBegin} : moment;
        close(border, causeOf(event.play));
        const bool hasNone = m_open.kind == AsRunKind::Gap || m_open.shown == AsRunShown::StandBy;
        begin(event.play, hasNone ? AsRunShown::StandBy : AsRunShown::FormerPicture, border);
        m_leaptAt.reset();
    }
}

AsRunOutcome AsRunRecorder::causeOf(const ScreenPlay& next) const
{
    if (m_leaptAt && m_last.steady - *m_leaptAt < kLeapNoticed) {
        return AsRunOutcome::CutByClock;
    }
    if (!m_schedule.start) {
        return AsRunOutcome::CutByStop;
    }
    return next.insertion != m_play.insertion ? AsRunOutcome::CutByInsertion
                                              : AsRunOutcome::CutBySchedule;
}

void AsRunRecorder::put(const ScreenEvent& event, AsRunShown shown, Moment moment)
{
    const bool isForeseen = std::exchange(m_isForeseen, false);
    const bool isBroken =
        shown != AsRunShown::AsPlanned && !isForeseen && m_open.shown == AsRunShown::AsPlanned;
    if (isBroken) {
        m_open.why = m_words(event.fault);
    }
    if (isForeseen || shown == AsRunShown::AsPlanned || shown != m_open.shown) {
        close(moment, isBroken ? AsRunOutcome::CutByFault : AsRunOutcome::Complete);
        begin(event.play, shown, moment);
    }
    if (shown == AsRunShown::AsPlanned) {
        m_open.late = std::max<qint64>(0, event.amount + heldUp(event, moment));
    } else if (event.fault) {
        m_open.why = m_words(event.fault);
    } else if (event.play.isTooShort()) {
        m_open.why = QStringLiteral("It is over before it could be seen.");
    }
}

/// How much later than the screen has told the record begins, on a machine that is busy.
qint64 AsRunRecorder::heldUp(const ScreenEvent& event, Moment moment) const
{
    const qint64 length = event.onScreenSince == kNever ? 0 : moment.time - event.onScreenSince;
    return length <= m_passed + kLeap ? std::max<qint64>(0, length) : 0;
}

// The clock.

void AsRunRecorder::leap(qint64 amount, Moment moment)
{
    const qint64 slept = amount - std::exchange(m_leapt, 0);
    m_leaptAt = moment.steady;
    if (slept > kSleep) {
        sleep(slept, moment);
    }
}

void AsRunRecorder::sleep(qint64 length, Moment moment)
{
    const Moment fellAsleep{std::max(m_open.begins, moment.time - length),
                            std::max(m_open.steadyBegin, moment.steady - length)};
    close(fellAsleep, AsRunOutcome::CutByClock);
    if (moment.steady <= fellAsleep.steady) {
        return;
    }
    AsRunEntry gap;
    gap.record.kind = AsRunKind::Gap;
    gap.record.revision = m_open.revision;
    gap.record.outcome = AsRunOutcome::MachineHadSlept;
    gap.record.begins = fellAsleep.time;
    gap.record.steadyBegin = fellAsleep.steady;
    gap.record.ends = moment.time;
    gap.record.steadyEnd = moment.steady;
    m_closed.push_back(gap);
    goOn(moment);
}

// The records.

void AsRunRecorder::begin(const ScreenPlay& play, AsRunShown shown, Moment moment)
{
    m_play = play;
    m_goesOn = false;
    m_open = AsRunRecord();
    m_open.revision = m_schedule.start ? m_schedule.start->saved : 0;
    m_open.begins = moment.time;
    m_open.steadyBegin = moment.steady;
    m_open.shown = shown;
    setPlay(m_open, play);
}

void AsRunRecorder::goOn(Moment moment)
{
    m_goesOn = true;
    m_open.revision = m_schedule.start ? m_schedule.start->saved : 0;
    m_open.begins = moment.time;
    m_open.steadyBegin = moment.steady;
    m_open.late = 0;
}

void AsRunRecorder::close(Moment moment, AsRunOutcome outcome)
{
    if (m_open.kind == AsRunKind::Gap) {
        outcome = m_open.outcome;
    }
    if (moment.steady > m_open.steadyBegin) {
        m_closed.push_back({m_open, {}});
        AsRunRecord& record = m_closed.back().record;
        record.ends = moment.time;
        record.steadyEnd = moment.steady;
        record.outcome = outcome;
        return;
    }
    // It was cut off where another schedule, under which it does not go on, was taken.
    const auto before =
        std::find_if(m_closed.rbegin(), m_closed.rend(), [](const AsRunEntry& entry) {
            return entry.record.kind == AsRunKind::Picture;
        });
    if (m_goesOn && before != m_closed.rend() && before->record.outcome == AsRunOutcome::GoesOn) {
        before->record.outcome = outcome;
    }
}

void AsRunRecorder::release()
{
    for (const AsRunEntry& entry : std::exchange(m_closed, {})) {
        m_take(entry);
    }
}

} // namespace trel::screen
