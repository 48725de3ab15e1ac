#include "AsRunLedger.h"

#include "trelprogramschedule/asrun/AsRunSchedule.h"

#include <utility>

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace trel::player {

namespace {

AsRunSchedule contentsOf(const ScreenSchedule& schedule)
{
    AsRunSchedule contents;
    contents.start = schedule.start;
    if (schedule.tasks) {
        contents.tasks = *schedule.tasks;
    }
    contents.insertions = schedule.insertions;
    contents.catalogue = *schedule.catalogue;
    contents.zone = schedule.zone.id();
    return contents;
}

AsRunOutcome absenceAfter(const AsRunRecord& last, const QByteArray& boot)
{
    if (last.outcome == AsRunOutcome::CutByPlayerEnd) {
        return AsRunOutcome::PlayerHadEnded;
    }
    return last.boot == boot ? AsRunOutcome::PlayerWasKilled : AsRunOutcome::MachineHadStopped;
}

} // namespace

AsRunLedger::AsRunLedger(QByteArray boot)
    : m_boot(std::move(boot))
{}

bool AsRunLedger::isMark(const AsRunRecord& record)
{
    return record.kind == AsRunKind::Gap && record.outcome == AsRunOutcome::NotRecorded &&
           record.steadyBegin == record.steadyEnd && record.begins == record.ends;
}

void AsRunLedger::bridge(AsRunRecord& gap, const AsRunRecord& before)
{
    gap.begins = before.ends;
    if (before.boot == gap.boot) {
        gap.steadyBegin = before.steadyEnd;
    }
}

void AsRunLedger::begin(const AsRunRecord& first, const std::optional<AsRunRecord>& onScreen,
                        const std::optional<AsRunRecord>& last)
{
    AsRunRecord gap = markAt(first);
    if (onScreen && onScreen->steadyEnd > onScreen->steadyBegin) {
        m_records.push_back(*onScreen);
    }
    if (const std::optional<AsRunRecord>& before = onScreen ? onScreen : last) {
        gap.schedule = before->schedule;
        gap.revision = before->revision;
        gap.outcome = absenceAfter(*before, m_boot);
        bridge(gap, *before);
    }
    m_records.push_back(gap);
    m_last = gap;
    // The player itself follows none yet.
    m_schedule.clear();
    m_revision = 0;
}

void AsRunLedger::take(const AsRunLetter& letter, bool hasRoom)
{
    for (const AsRunEntry& entry : letter.entries) {
        const bool isTaken = entry.record.kind == AsRunKind::ScheduleTaken;
        if (!hasRoom) {
            m_leftOut = isTaken ? entry.schedule : m_leftOut;
            continue;
        }
        if (isTaken) {
            m_leftOut.reset();
        }
        mend(entry.record);
        if (isTaken) {
            addTaken(entry.schedule, entry.record);
        } else {
            add(entry.record);
        }
    }
    if (letter.scheduleLeftOut) {
        m_leftOut = letter.scheduleLeftOut;
    }
    if (letter.onScreen) {
        setOnScreen(*letter.onScreen);
    }
    if (m_onScreen && m_onScreen->steadyBegin < m_last.steadyEnd) {
        // It is among the finished ones by now.
        m_onScreen.reset();
    }
}

void AsRunLedger::setOnScreen(const AsRunRecord& record)
{
    m_onScreen = record;
    if (record.steadyBegin > m_last.steadyEnd) {
        m_onScreen = gapUntil(record);
        m_onScreen->ends = record.ends;
        m_onScreen->steadyEnd = record.steadyEnd;
    }
    m_onScreen->boot = m_boot;
    m_onScreen->schedule = m_schedule;
}

void AsRunLedger::clear()
{
    m_records.clear();
    m_contents.clear();
}

void AsRunLedger::startOver()
{
    AsRunRecord next = m_last;
    next.begins = m_last.ends;
    next.steadyBegin = m_last.steadyEnd;
    m_records.insert(m_records.begin(), markAt(m_records.empty() ? next : m_records.front()));
    m_leftOut = m_leftOut ? m_leftOut : m_taken;
}

void AsRunLedger::add(AsRunRecord record)
{
    record.boot = m_boot;
    record.schedule = m_schedule;
    m_records.push_back(record);
    m_last = std::move(record);
}

void AsRunLedger::addTaken(const ScreenSchedule& schedule, const AsRunRecord& at)
{
    m_contents.push_back(asRunContents(contentsOf(schedule)));
    m_schedule = asRunScheduleHash(m_contents.back());
    m_revision = schedule.start ? schedule.start->saved : 0;
    AsRunRecord taken;
    taken.kind = AsRunKind::ScheduleTaken;
    taken.revision = m_revision;
    taken.begins = taken.ends = at.begins;
    taken.steadyBegin = taken.steadyEnd = at.steadyBegin;
    add(taken);
    m_taken = schedule;
}

/// Between the last record and the next one that is there.
void AsRunLedger::mend(const AsRunRecord& next)
{
    if (next.steadyBegin > m_last.steadyEnd) {
        add(gapUntil(next));
    }
    if (m_leftOut) {
        addTaken(*std::exchange(m_leftOut, std::nullopt), next);
    }
}

/// A gap without length.
AsRunRecord AsRunLedger::markAt(const AsRunRecord& first) const
{
    AsRunRecord mark;
    mark.kind = AsRunKind::Gap;
    mark.outcome = AsRunOutcome::NotRecorded;
    mark.boot = m_boot;
    mark.begins = mark.ends = first.begins;
    mark.steadyBegin = mark.steadyEnd = first.steadyBegin;
    return mark;
}

AsRunRecord AsRunLedger::gapUntil(const AsRunRecord& next) const
{
    AsRunRecord gap;
    gap.kind = AsRunKind::Gap;
    gap.outcome = AsRunOutcome::NotRecorded;
    gap.revision = m_revision;
    gap.begins = m_last.ends;
    gap.steadyBegin = m_last.steadyEnd;
    gap.ends = next.begins;
    gap.steadyEnd = next.steadyBegin;
    return gap;
}

} // namespace trel::player
