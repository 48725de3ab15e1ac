#include "SimulatedPlayer.h"

using namespace trel::mediadispatch;

namespace {

constexpr qint64 kFrame = 40;

bool isShort(const ScreenState& state)
{
    return state.isPlaying() && state.since != kEver && state.until != kNever &&
           state.until - state.since < kFrame;
}

} // namespace

TakenSchedule takenSchedule(Instant moment, const AsRunSchedule& schedule)
{
    TakenSchedule taken;
    taken.moment = moment;
    taken.schedule = schedule;
    taken.timeline = std::make_shared<ScreenTimeline>(schedule.tasks, schedule.catalogue,
                                                      QTimeZone(schedule.zone));
    taken.contents = asRunContents(schedule);
    taken.hash = asRunScheduleHash(taken.contents);
    return taken;
}

qint64 insertionAt(const TakenSchedule& taken, const ScreenState& state, Instant moment)
{
    qint64 number = 0;
    for (const ScreenInsertion& insertion : taken.schedule.insertions) {
        if (state.isInserted() && insertion.hasScreenAt(moment)) {
            number = insertion.number;
        }
    }
    return number;
}

std::vector<AsRunRecord> SimulatedPlayer::play(Instant end)
{
    m_at = m_schedules.front().moment;
    while (m_at < end) {
        while (m_next < m_schedules.size() && m_schedules[m_next].moment <= m_at) {
            AsRunRecord taken;
            taken.kind = AsRunKind::ScheduleTaken;
            taken.schedule = m_schedules[m_next].hash;
            taken.begins = taken.ends = m_schedules[m_next].moment;
            m_records.push_back(taken);
            ++m_next;
        }
        showNext(m_next < m_schedules.size() ? std::min(end, m_schedules[m_next].moment) : end);
    }
    return m_records;
}

void SimulatedPlayer::showNext(Instant end)
{
    const TakenSchedule& taken = m_schedules[m_next - 1];
    const ScreenState state = taken.timeline->at(m_at, taken.schedule.insertions);
    AsRunRecord record;
    record.schedule = taken.hash;
    record.picture = state.picture;
    record.taskId = state.taskId;
    record.planId = state.planId;
    record.planRow = state.planRow;
    record.entry = state.entry;
    record.play = state.play;
    record.run = state.run;
    record.insertion = insertionAt(taken, state, m_at);
    record.progIndex = state.progIndex;
    const auto program = taken.schedule.catalogue.find(state.progIndex);
    if (state.picture != ScreenPicture::Black && program != taken.schedule.catalogue.end()) {
        record.program = QString::fromStdString(program->second.progName);
    }
    record.plannedBegin = state.since;
    record.plannedEnd = state.until;
    record.begins = m_at;
    record.ends = std::min(state.until, end);
    for (ScreenState next = state; isShort(state) && isShort(next) && record.ends < end;) {
        next = taken.timeline->at(record.ends, taken.schedule.insertions);
        record.ends = isShort(next) ? std::min(next.until, end) : record.ends;
    }
    record.outcome = record.ends == end ? AsRunOutcome::GoesOn : AsRunOutcome::Complete;
    m_at = record.ends;
    spoil(record);
}

/// What can go wrong with a picture, and how a player tells it.
void SimulatedPlayer::spoil(AsRunRecord& record)
{
    const qint64 length = record.ends - record.begins;
    const int fault = below(100) < m_faults ? below(5) : -1;
    const Instant within =
        record.begins + (length < 2 ? 0 : below(int(std::min<qint64>(length, 5000))));
    switch (fault) {
    case 0: // The former picture stays.
        if (!m_records.empty() && m_records.back().kind == AsRunKind::Picture &&
            within > record.begins) {
            record.late = within - record.begins;
            m_records.back().ends = within;
            record.begins = within;
        }
        break;
    case 1: // It never comes.
        record.shown = AsRunShown::StandBy;
        record.why = QStringLiteral("no such file");
        break;
    case 2: { // It breaks, and comes back.
        AsRunRecord whole = record;
        whole.ends = within;
        whole.outcome = AsRunOutcome::CutByFault;
        add(whole);
        AsRunRecord last = record;
        last.begins = within;
        last.ends = within + (record.ends - within) / 2;
        last.shown = AsRunShown::LastFrame;
        last.why = QStringLiteral("decoder");
        add(last);
        record.begins = last.ends;
        record.late = last.ends - within;
        break;
    }
    case 3: { // The player is killed, and started some time later.
        record.ends = within;
        record.outcome = AsRunOutcome::CutByKill;
        add(record);
        record = AsRunRecord();
        record.kind = AsRunKind::Gap;
        record.outcome = AsRunOutcome::PlayerWasKilled;
        record.begins = within;
        record.ends = m_at;
        break;
    }
    case 4: // The screen goes black meanwhile, which is its stand-by picture.
        record.shown = AsRunShown::FormerPicture;
        break;
    default:
        break;
    }
    add(record);
}

void SimulatedPlayer::add(const AsRunRecord& record)
{
    if (record.ends > record.begins) {
        m_records.push_back(record);
    }
}
