#pragma once

#include "TaskSets.h"
#include "catalogue/ProgramCatalogue.h"
#include "store/StoreResult.h"
#include "store/StoredEffect.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <functional>
#include <optional>
#include <vector>

namespace trel::mediadispatch {

class ScheduleDatabase;
struct StoreRevision;

/// The schedule that was started, apart from what is saved and what is being edited, and what the
/// editor asks of it: which plans are in use, and whether and how others are cut in.
///
/// It lives in the store that is open, for all programs that have it open: each change is written
/// there first and refused where that is not possible, and follow takes over what others have
/// changed. While no store is open it is this process's own.
class ScheduleInEffect
{
public:
    ScheduleInEffect(const ProgramCatalogue& catalogue, ScheduleDatabase& database)
        : m_catalogue(catalogue)
        , m_database(database)
        , m_dispatch(catalogue.programs())
    {}

    /// Puts the saved schedule into effect, as it is in the store. Its insertions go with the
    /// former one. The tasks are those for a process without a store.
    StoreResult start(const TaskMap& tasks);
    /// Ends what is in effect. Nothing that was not is no refusal.
    StoreResult stop();
    /// Plays tasks in this process alone, until the store has something in effect.
    void rehearse(const TaskMap& tasks);
    /// Forgets what is in effect, which the store keeps.
    void leave();
    /// To be called when another file has taken the place of the store: its revisions count other
    /// changes, so that the next follow reads it whatever they are.
    void expectAnotherStore() { m_revision = -1; }
    /// Takes over what is in effect in the store, if that is anything else than is known here.
    StoreResult follow();
    /// The same, where the revision of the store is known.
    StoreResult followTo(const StoreRevision& known);

    /// To be called when programs have changed.
    void updatePrograms() { m_dispatch.updatePrograms(); }

    /// Counts what has become of it here: another number means that it was changed or taken over.
    int changes() const { return m_changes; }

    /// When, from which save and by which program it was started; none while nothing is in effect.
    const std::optional<EffectStart>& started() const { return m_start; }

    /// Whether an insertion can be taken: a schedule is in effect, and no insertion waits.
    bool takesInsertion() const;
    /// As findPlan; the inserted plan instead while it has the screen. Its end is the one that
    /// follows from its programs now.
    PlayPlan plan(int taskId, int planId, int& index) const;

    /// Cuts a plan in for one in effect, at once or when the current play has ended. Ignored when
    /// that plan is not in effect.
    StoreResult insert(int taskId, int planId, const PlayPlan& plan, bool isDelayed);
    /// Takes back the insertion that waits, or else ends the one that has the screen. Ignored when
    /// there is none.
    StoreResult cancelInsertion();
    /// Ends the play on screen, and goes on with the next one; see ScheduleHost::skipPlay.
    StoreResult skipPlay();
    /// Kept with the insertion that was taken last here; ignored when that has gone.
    StoreResult setOriginal(const std::vector<struProgInfo>& programs);

    ScreenDispatch& dispatch() { return m_dispatch; }
    const ScreenDispatch& dispatch() const { return m_dispatch; }

private:
    /// The insertions that are to be; none to leave them as they are.
    using InsertionChange = std::function<std::optional<ScreenInsertions>()>;

    bool isShared() const;
    void take(StoredEffect effect);
    /// The insertions as they stand once the play on screen is skipped; none where nothing is.
    std::optional<ScreenInsertions> insertionsWithoutPlay();
    /// The insertion that has the screen, or the plan that has it, as one.
    ScreenInsertion whatPlays(const ScreenState& state) const;
    /// Writes what becomes of the insertions; works it out again where another program was first.
    StoreResult changeInsertions(const InsertionChange& change);

    const ProgramCatalogue& m_catalogue;
    ScheduleDatabase& m_database;
    ScreenDispatch m_dispatch;
    std::optional<EffectStart> m_start;
    qint64 m_revision = 0;      ///< What has been read of the store.
    qint64 m_lastInsertion = 0; ///< The number of the one that was taken last here.
    bool m_isRehearsing = false;
    int m_changes = 0;
};

} // namespace trel::mediadispatch
