#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/effect/EffectStart.h"
#include "trelprogramschedule/history/ScheduleVersion.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "trelprogramschedule_export.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace trel::mediadispatch {

class ScreenDispatch;
struct MediaSource;

/// The host's side of the schedule service: the same one service that scheduleManage shows to the
/// editor, with what the editor has no business knowing. GUI thread only.
///
/// Every call is one transaction, on the disk when it returns, or changes nothing at all: what was
/// refused does not come back with a later opening either. The one exception is
/// StoreProblem::Unclear, when a disk fails in the middle of a change and does not confirm that it
/// has gone: then the store is read without it, but after a power cut it may be there, and only
/// another disk is safe. On a server it is when the answer to a change is lost, and the server
/// cannot be asked what became of it: the change is there as a whole or not at all. A file that
/// another program holds is waited for, two seconds at most. Two hosts may have the same file open:
/// each sees the other's saves and imports when its list is next refreshed or on reload, and is
/// refused a save that would undo what it has not seen (StoreProblem::MovedOn).
// The destructor is private: only instance() makes or ends the one instance.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class TRELPROGRAMSCHEDULE_EXPORT ScheduleHost : public QObject
{
    Q_OBJECT

public:
    /// How open() takes a file that is missing, or may not be written.
    using OpenMode = StoreOpenMode;

    /// The one instance, beside scheduleManage::getInstance().
    static ScheduleHost& instance();

    /// The schedule in effect at work: started by scheduleManage::slotOpen with the saved schedule,
    /// taken up again when a store is opened that has one, and left by close. What is saved after
    /// the start shows from the next start on; what becomes of the programs shows at once. The same
    /// object on every call.
    ScreenDispatch& dispatch();

    /// Opens the store in a file and reads catalogue and stored set; a store that was open is
    /// closed first. On failure the file is left untouched and no store is open. Emits nothing, but
    /// that a schedule in effect has stopped or goes on and, later, workingSetChanged: an editor on
    /// show is to be refreshed by the host.
    ///
    /// With ReadOnly every change is refused from then on, a save with StoreProblem::ReadOnly.
    ///
    /// A file or folder that is marked read-only is not written, by whatever right. A file of no
    /// bytes is as good as none: it becomes a store where one may be made. Needs a
    /// QCoreApplication, and closes by itself when that goes.
    StoreResult open(const QString& path, OpenMode mode = OpenMode::CreateIfMissing);
    /// As open, for a host that has to do with the catalogue alone: the schedule is not read before
    /// the list is refreshed (scheduleManage::getgTaskMap) or the store reloaded. Until then both
    /// sets are empty, and a save is refused like one after MovedOn.
    StoreResult openCatalogue(const QString& path, OpenMode mode = OpenMode::CreateIfMissing);
    /// Forgets the store and everything read from it. What was not saved is lost. A schedule in
    /// effect stops here; in the store it stays in effect.
    void close();
    /// Whether a store is open.
    bool isOpen() const;
    /// Absolute path of the open store; empty when none is.
    QString path() const;

    /// True while the working set differs from the stored set, in more than the marks of collision
    /// that every display of a task works out afresh.
    bool hasUnsavedChanges() const;
    /// As scheduleManage::save, with the outcome as the result instead of a signal. After MovedOn
    /// it keeps refusing until the stored set has been read again, by reload or by a refresh of the
    /// list; a save after reload then overrides what the other editor did.
    StoreResult trySave();
    /// Replaces the stored set, and with it the working set, in one transaction. Tasks are filed
    /// under their own ids. Refused like a save.
    StoreResult replaceSchedule(const std::map<int, PlayTask>& tasks);
    /// Reads catalogue and stored set again. The working set stays. A file that was put in the
    /// place of the one that was opened is opened in its stead; on failure everything that was read
    /// stays, and reload can be tried again.
    StoreResult reload();
    /// True while another program is about to commit: only when it has, a reload reads what it
    /// wrote. Not known, and false, of a store that was opened with ReadOnly. For hosts that watch
    /// the file, since the system tells of the writing and not of the commit.
    bool isBeingWritten() const;

    /// Notices from now on when files of programs come or go, and never looks at a file within a
    /// call: that happens in a thread of its own, also when the store is opened, when the list is
    /// refreshed, on reload and on import. What it finds comes later, with catalogueChanged; until
    /// then a file that has not been looked at is taken to be there. What happens to a local file
    /// is noticed at once, what happens on a server or to a whole file system within seconds.
    /// Without this, each of those calls looks at the files before it returns, which takes long
    /// where they lie on a server. Off at first and, since it needs a QCoreApplication, when that
    /// has gone.
    void watchFiles(bool isOn = true);

    /// Puts sources into the catalogue in one transaction: a path that is known updates its
    /// program and keeps the index, any other gets the next index, which was never given out. All
    /// of them or, on failure, none. Where a length changes, the plans whose end follows from it
    /// end at the new time in both sets, which alone makes no unsaved change.
    ImportResult addPrograms(const std::vector<MediaSource>& sources);
    /// Takes a program out of the catalogue. Its index is never given out again; plans that use it
    /// find their entries marked invalid when the stored set is next read. An index that is not in
    /// the catalogue changes nothing.
    StoreResult removeProgram(int progIndex);
    /// As removeProgram, of any number: one transaction and one announcement for all of them.
    StoreResult removePrograms(const std::vector<int>& progIndexes);
    /// How many plans of the stored set, as it is in the store now, have an entry of one of these
    /// programs that has not gone bad. Reads no schedule into memory. 0 when the store cannot be
    /// read.
    int plansWith(const std::vector<int>& progIndexes) const;

    /// The working set itself, for a look that costs no copy. Valid until the next call that edits
    /// or the next turn of the event loop.
    const std::map<int, PlayTask>& workingSet() const;
    /// The programs as they are at this moment, as a record that does not change any more and that
    /// threads may share. The same one on every call as long as no program changes. Never null.
    std::shared_ptr<const std::map<int, ProgramIten>> catalogue() const;

    // What is in effect lives in the store: it outlasts this process, and everything that has the
    // store open agrees on it. Each call below is one transaction, as those above. Two programs
    // that cut in at the same moment come one after the other, and the later one reckons with the
    // earlier. With no store open all of it is this process's own.

    /// When, from which save and by which program the schedule in effect was started; none while
    /// nothing is in effect.
    std::optional<EffectStart> started() const;
    /// As scheduleManage::slotOpen, with the outcome as the result instead of a signal.
    StoreResult startSchedule();
    /// Ends what is in effect, for everybody. Where nothing is, nothing happens.
    StoreResult stopSchedule();
    /// As scheduleManage::setInsertPlanTask, with the outcome as the result instead of a signal.
    /// Nothing happens when the plan is not in effect.
    StoreResult insertPlan(int taskId, int planId, const PlayPlan& plan, bool isDelayed);
    /// Takes back the insertion that waits, or else ends the one that has the screen. Where there
    /// is none, nothing happens.
    StoreResult cancelInsertion();
    /// Ends the play on screen at once, and goes on with the one that would come next: that of the
    /// insertion that waits, or else of the list that plays, which from then on is cut in for its
    /// plan. An insertion that plays its program once, or has nothing to play, ends instead. Where
    /// nothing plays, nothing happens.
    StoreResult skipPlay();
    /// The saved tasks, read from the store, that differ from what is in effect: other, missing in
    /// one of the two, or new. Marks of collision and ends that follow from lengths are no
    /// difference. Empty while nothing is in effect. Reads both schedules when one of them is
    /// another than the last time, and costs next to nothing otherwise.
    StoreResult tasksNotInEffect(std::set<int>& taskIds) const;

    /// Takes over from now on what other programs put into effect, end or cut in, within a second.
    /// Looks when the system tells that the store was written, and once a second besides. Off at
    /// first and, since it needs a QCoreApplication, when that has gone. Without this, open,
    /// reload and a refresh of the list take it over.
    void followStore(bool isOn = true);
    /// How long the answer of a server to one statement is waited for, from the next open on. What
    /// the server works at takes three quarters of that at most. 40 seconds at first and for 0;
    /// less than 3 seconds count as 3. A host whose window stands still with each call chooses a
    /// short time. A file is waited for as before.
    void setPatience(std::chrono::milliseconds patience);
    /// Plays the stored set in this process alone, until the store has something in effect. For
    /// hosts that show a schedule which nobody has started. Nothing happens while one is in effect.
    void rehearse();

    /// As scheduleManage::addTask, of a state from before: entries whose programs have left the
    /// catalog since are marked, and ends that follow from lengths are those of today. For hosts
    /// that take edits back; the editor shows it with scheduleControlUI::slotShowTask.
    void restoreTask(const PlayTask& task);

    // Each save keeps the state before it, in the same transaction. What is kept is a version, with
    // the number of the save that made it; the newest is what is saved. The last 200 stay, and all
    // that have a name; the others thin out with their age, to one a day, one a week and one in
    // thirty days, for ten years. A save that changes nothing makes none.

    /// The versions that the store has, the newest first, which is what is saved. Empty in a store
    /// of a former schema that is only read. Left as it is where the result is a refusal.
    StoreResult versions(std::vector<ScheduleVersion>& versions) const;
    /// The tasks of a version, by their ids, with the ends that follow from the lengths of today,
    /// and entries of programs that have left the catalogue marked as gone bad. Refused with
    /// StoreProblem::Other, and VersionUnknown or VersionDamaged as the cause, where there is no
    /// such version, or no longer, or where what the store has of it is not whole.
    StoreResult versionTasks(qint64 number, std::map<int, PlayTask>& tasks) const;
    /// Gives a version a name and a note, in the place of those that it had; both may be empty.
    /// One transaction. Refused as versionTasks, and with VersionTextTooLong or VersionTextHidden
    /// for what faultOfVersionTexts() refuses.
    StoreResult nameVersion(qint64 number, const QString& name, const QString& note);
    /// Saves a version once more: as replaceSchedule with its tasks, so that what was saved before
    /// becomes a version itself. The working set is lost. Where nothing differs nothing is written.
    StoreResult restoreVersion(qint64 number);

    // The way out of a save that was refused with StoreProblem::MovedOn, for a host that puts both
    // together with ScheduleMerge: read what was saved elsewhere, take over what comes of it, and
    // try the save again. Where a third program has saved by then, that is refused with MovedOn
    // once more, and the same way leads on from what was taken over.

    /// Reads the newest save, with its number, beside what is edited here and what was read before,
    /// which both stay. The catalogue is read again, so that the programs of the save are known.
    /// Both are left as they are where the result is a refusal: with VersionUnknown as the cause in
    /// a store that has no versions.
    StoreResult readNewestSave(ScheduleVersion& version, std::map<int, PlayTask>& tasks);
    /// From now on the working set is this one, edited from the save of that number: what was read
    /// before and what was edited is forgotten, and nothing is written. Marks and ends follow from
    /// the catalogue, as with restoreTask. The editor is to be shown the tasks that are others than
    /// before, with scheduleControlUI::slotShowTask. Refused as versionTasks, and changes nothing
    /// then.
    StoreResult mergeWith(qint64 number, const std::map<int, PlayTask>& merged);

Q_SIGNALS:
    /// scheduleManage::save could not commit. Emitted while save still runs, so that a receiver can
    /// still ask the operator, call trySave again or write the working set elsewhere.
    void saveFailed(const trel::mediadispatch::StoreResult& reason);
    /// The stored set was replaced by save, replaceSchedule or reload, and is another than before.
    /// After the latter two a host refreshes the editor. Comes with mergeWith as well.
    void storedSetChanged();
    /// The working set may be another than before: a task was edited, or the whole set read or
    /// replaced. Comes from the event loop, once for everything since its last turn.
    void workingSetChanged();
    /// Programs were added, changed or removed, or their files came or went.
    void catalogueChanged();
    /// Comes right before workingSetChanged and names every task that was put in, taken out or
    /// edited since it last came; a task that was edited back stands among them.
    void workingTasksChanged(const std::set<int>& taskIds);

    /// A schedule was started, here or elsewhere, was stopped, or has other insertions. What is on
    /// screen for it is told by dispatch(), before this.
    void effectChanged();
    /// A start or an insertion by scheduleManage could not be written; what was in effect goes on.
    void effectRefused(const trel::mediadispatch::StoreResult& reason);
    /// Another program has saved: the store holds another schedule than was last read or saved here
    /// with a signal. Comes while the store is followed.
    void savedElsewhere();
    /// Another program has changed the catalogue, or the file that was opened no longer stands in
    /// its place. Comes while the store is followed, with every look until reload has taken it
    /// over; what was read stays until then.
    void changedElsewhere();

private:
    ScheduleHost();
    ~ScheduleHost() override;
};

} // namespace trel::mediadispatch
