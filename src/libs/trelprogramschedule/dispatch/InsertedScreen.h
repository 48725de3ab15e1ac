#pragma once

#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenShown.h"

#include <map>

namespace trel::mediadispatch {

/// What an insertion shows while it has the screen. Its list runs on evenly from the moment at
/// which it begins, whatever is done to the local clock.
class InsertedScreen
{
public:
    /// `planRow` is that of the plan in effect that the insertion stands for. It ends at `ends` at
    /// the latest.
    InsertedScreen(const ScreenInsertion& insertion, const std::map<int, ProgramIten>& catalogue,
                   int planRow, Instant ends);

    Instant begins() const { return m_begins; }
    Instant ends() const { return m_ends; }
    bool hasScreenAt(Instant moment) const { return m_begins <= moment && moment < m_ends; }

    /// Only for a moment at which it has the screen.
    ScreenShown at(Instant moment) const;
    /// The next instant at which it plays what is sought, the moment itself included; kNever when
    /// it does not while it has the screen.
    Instant nextPlay(Instant moment, const SoughtPlay& sought) const;

    /// When its list has run as often as it should, if it has the screen by then; kNever otherwise.
    Instant listOver() const;

private:
    ScreenState m_owner;
    PlayList m_list;
    bool m_freezes = false;
    Instant m_begins = 0;
    Instant m_ends = 0;
};

/// The list that an insertion plays: one run of it outside the span of its plan.
PlayList insertedList(const PlayPlan& plan, const std::map<int, ProgramIten>& catalogue);

} // namespace trel::mediadispatch
