#include "InsertedScreen.h"

#include "trelprogramschedule/dispatch/ScreenPlan.h"

#include <algorithm>

namespace trel::mediadispatch {

PlayList insertedList(const PlayPlan& plan, const std::map<int, ProgramIten>& catalogue)
{
    return PlayList(plan.programs, catalogue, plan.serviceFlagB ? 1 : runsOf(plan));
}

InsertedScreen::InsertedScreen(const ScreenInsertion& insertion,
                               const std::map<int, ProgramIten>& catalogue, int planRow,
                               Instant ends)
    : m_list(insertedList(insertion.plan, catalogue))
    , m_freezes(insertion.plan.endAction != BlackScreen)
    , m_begins(insertion.begins)
    , m_ends(std::min(insertion.ends, ends))
{
    m_owner.taskId = insertion.taskId;
    m_owner.planId = insertion.planId;
    m_owner.planRow = planRow;
}

ScreenShown InsertedScreen::at(Instant moment) const
{
    const Microseconds elapsed = microseconds(moment - m_begins);
    const ListMoment list = m_list.at(elapsed);
    ScreenShown shown;
    shown.spanSince = m_begins;
    shown.state = m_owner;
    showList(shown.state, list, elapsed, ListOwner::Insertion, m_freezes);
    shown.state.since = m_begins + millisecondsUp(list.begin);
    shown.state.until =
        list.end == kEndless ? m_ends : std::min(m_ends, m_begins + millisecondsUp(list.end));
    shown.state.spanUntil = m_ends;
    return shown;
}

Instant InsertedScreen::nextPlay(Instant moment, const SoughtPlay& sought) const
{
    const auto shown =
        m_list.firstShown(sought, microseconds(moment - m_begins), microseconds(m_ends - m_begins));
    return shown ? m_begins + millisecondsUp(*shown) : kNever;
}

Instant InsertedScreen::listOver() const
{
    const Microseconds length = m_list.length();
    const Instant over = length == kEndless ? kNever : m_begins + millisecondsUp(length);
    return over < m_ends ? over : kNever;
}

} // namespace trel::mediadispatch
