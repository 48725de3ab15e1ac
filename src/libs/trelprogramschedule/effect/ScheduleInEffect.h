#pragma once

#include "TaskSets.h"
#include "catalogue/ProgramCatalogue.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <vector>

namespace trel::mediadispatch {

/// The schedule that was started, apart from what is stored and what is being edited, and what the
/// editor asks of it: which plans are in use, and whether and how others are cut in.
class ScheduleInEffect
{
public:
    explicit ScheduleInEffect(const ProgramCatalogue& catalogue)
        : m_catalogue(catalogue)
        , m_dispatch(catalogue.programs())
    {}

    /// Puts a schedule in the place of the former one, whose insertions go with it.
    void start(const TaskMap& tasks) { m_dispatch.start(tasks); }
    void stop() { m_dispatch.stop(); }
    /// To be called when programs have changed.
    void updatePrograms() { m_dispatch.updatePrograms(); }

    /// Whether an insertion can be taken: a schedule is in effect, and no insertion waits.
    bool takesInsertion() const;
    /// As findPlan; the inserted plan instead while it has the screen. Its end is the one that
    /// follows from its programs now.
    PlayPlan plan(int taskId, int planId, int& index) const;

    /// Cuts a plan in for one in effect, at once or when the current play has ended. Ignored when
    /// that plan is not in effect.
    void insert(int taskId, int planId, const PlayPlan& plan, bool isDelayed);
    /// Kept with the last insertion; ignored when there is none.
    void setOriginal(const std::vector<struProgInfo>& programs)
    {
        m_dispatch.setOriginal(programs);
    }

    ScreenDispatch& dispatch() { return m_dispatch; }

private:
    const ProgramCatalogue& m_catalogue;
    ScreenDispatch m_dispatch;
};

} // namespace trel::mediadispatch
