#pragma once

#include "TaskSets.h"
#include "catalogue/ProgramCatalogue.h"
#include "catalogue/ProgramFileWatch.h"
#include "effect/ScheduleInEffect.h"
#include "effect/StoreFollower.h"
#include "store/ScheduleDatabase.h"

#include <QCoreApplication>
#include <QObject>
#include <QPointer>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace trel::mediadispatch {

struct MediaSource;
struct ScheduleImport;

/// What the service holds in memory.
struct ScheduleState
{
    explicit ScheduleState(ScheduleDatabase& database)
        : inEffect(catalogue, database)
    {}

    TaskSets tasks;
    ProgramCatalogue catalogue;
    ScheduleInEffect inEffect;
    std::string selectedProgram; ///< UTF-8; see scheduleManage::setqstrSelectedProgram.
};

/// Which tasks of a save differ from those of another one that is in effect.
struct EffectComparison
{
    qint64 saved = 0;
    qint64 inEffect = 0;
    std::set<int> taskIds;
};

/// The one service behind scheduleManage and ScheduleHost: its state and the store it is kept in.
///
/// Works with no store as well; then nothing can be saved and the catalogue is empty. Emits
/// nothing while a set or the catalogue is being changed: signals go out once all of it holds.
// The destructor is private: instance() alone makes the one instance.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class ScheduleService : public QObject
{
    Q_OBJECT

public:
    static ScheduleService& instance();

    ScheduleState& state() { return m_state; }
    const ScheduleState& state() const { return m_state; }

    StoreResult open(const QString& path, StoreOpenMode mode, StorePart part = StorePart::Both);
    void close();
    const ScheduleDatabase& database() const { return m_database; }
    /// What has been read of the store.
    const StoreRevision& revision() const { return m_revision; }

    /// A change of what is in effect.
    using EffectChange = std::function<StoreResult(ScheduleInEffect& inEffect)>;

    /// Puts the saved schedule into effect.
    StoreResult start();
    /// The same, with effectRefused in the place of a refusal.
    void startOrTell();
    /// Carries out a change of what is in effect, and tells of it.
    StoreResult changeEffect(const EffectChange& change);
    /// The same, with effectRefused in the place of a refusal.
    void changeEffectOrTell(const EffectChange& change);
    /// Plays the stored set in this process alone while the store has nothing in effect.
    void rehearse();
    /// See ScheduleHost::tasksNotInEffect.
    StoreResult tasksNotInEffect(std::set<int>& taskIds);
    /// See ScheduleHost::followStore.
    void followStore(bool isOn);
    /// See ScheduleHost::setPatience.
    void setPatience(std::chrono::milliseconds patience) { m_database.setPatience(patience); }

    /// Commits the working set.
    StoreResult save();
    /// The same, with saveFailed in the place of a refusal.
    void saveOrTell();
    /// Commits other tasks and makes them the working set; they may be a version that is brought
    /// back.
    StoreResult replace(const TaskMap& tasks, qint64 restored = kNoVersion);
    /// See mediadispatch::importSchedule.
    StoreResult importSchedule(const ScheduleImport& import);
    /// See ScheduleHost::versions.
    StoreResult readVersions(std::vector<ScheduleVersion>& versions);
    /// See ScheduleHost::versionTasks.
    StoreResult readVersion(qint64 number, TaskMap& tasks);
    /// See ScheduleHost::nameVersion.
    StoreResult nameVersion(qint64 number, const QString& name, const QString& note);
    /// See ScheduleHost::restoreVersion.
    StoreResult restoreVersion(qint64 number);
    /// See ScheduleHost::readNewestSave.
    StoreResult readNewestSave(ScheduleVersion& version, TaskMap& tasks);
    /// See ScheduleHost::mergeWith.
    StoreResult mergeWith(qint64 number, const TaskMap& merged);
    /// Reads catalogue and stored set again; the working set stays.
    StoreResult reload();
    /// Takes over what other editors have changed in the store and has the files looked at.
    /// What cannot be read stays as it was.
    void refresh();

    /// See ScheduleHost::watchFiles.
    void watchFiles(bool isOn);

    /// Tells, once the event loop has its turn, that the working set is another one. However often
    /// it is called until then, what comes of it comes once.
    void noteWorkingSet();

    /// See ScheduleHost::restoreTask.
    void restoreTask(PlayTask task);

    ImportResult addPrograms(const std::vector<MediaSource>& sources);
    /// See readStoredContents().
    StoreResult readContents(ProgramContents& contents);
    /// Takes programs out, all in one transaction and with one announcement.
    StoreResult removePrograms(const std::vector<int>& progIndexes);

signals:
    // For the two classes that show the service: each passes on what its own users wait for. What
    // comes of one change is emitted in the order in which the signals stand here.

    void programsChanged();
    void lengthsChanged();
    void catalogueChanged();
    void storedSetChanged();
    /// Displays of tasks are to read them again.
    void tasksReplaced();
    void workingTasksChanged(const std::set<int>& taskIds);
    void workingSetChanged();
    /// A save was refused that no caller waits for.
    void saveFailed(const trel::mediadispatch::StoreResult& reason);
    void effectChanged();
    /// A change of what is in effect was refused that no caller waits for.
    void effectRefused(const trel::mediadispatch::StoreResult& reason);
    /// Another program has saved.
    void savedElsewhere();
    void changedElsewhere();

private:
    ScheduleService() = default;
    ~ScheduleService() override = default;

    /// Works out afresh the ends that follow from lengths, in both sets.
    void updateEnds();
    /// Reads the parts that are asked for into the state.
    StoreResult read(StorePart part);
    void takeCatalogue(StoreContents& contents);
    /// Has the files looked at: at once, or, where they are watched, in the thread of the watch,
    /// whose findings come later. True when something is found at once.
    bool checkFiles();
    bool checkFile(int progIndex);
    /// False without a watch.
    bool leaveLookToWatch();
    /// Tells everybody how the catalogue has changed, and has other files watched.
    void announce(const CatalogueChange& change);
    void tellEverybody(const CatalogueChange& change);
    /// Tells that ends have changed, unless it is told already.
    void tellEnds();
    /// Takes over what other programs have put into effect, ended, or cut in.
    StoreResult followEffect();
    /// The same, and tells when another program has saved.
    void lookAtStore();
    /// What the look has found has to be told of once more, until it is taken over.
    void lookAgain();
    /// Follows the store that is open now, where one is to be followed.
    void renewFollower();
    /// Lets the watch know that the files, or what is known of them, are others.
    void renewWatch();
    /// Reads the catalogue and tells how it has changed.
    StoreResult readCatalogue();
    /// Takes over the programs that have just been written; all of them, where another program
    /// wrote as well.
    void takePrograms(StoreContents contents);
    /// Puts programs of the store into the catalogue in memory.
    CatalogueChange putPrograms(ProgramMap programs);
    /// Takes over tasks that have just been written as both sets.
    void takeWritten(TaskMap tasks);
    /// Has everybody show them.
    void tellReplaced();
    /// Nothing but one change of this program lies between what was read and this revision.
    bool isNextCatalogue(const StoreRevision& revision) const;
    /// Marks stored entries whose programs have left the catalogue.
    void markLostEntries();

    ScheduleDatabase m_database;
    ScheduleState m_state{m_database};
    StoreRevision m_revision; ///< What has been read of the store.
    /// Since entries were last marked, programs or stored tasks have changed.
    bool m_isMarkingDue = false;
    /// Ends in the working set have changed, and no signal has told of it yet.
    bool m_areEndsUntold = false;
    std::unique_ptr<ProgramFileWatch> m_fileWatch; ///< Only while files are watched.
    std::unique_ptr<StoreFollower> m_follower;     ///< Only while an open store is followed.
    bool m_isFollowing = false;
    qint64 m_toldSave = 0; ///< The save that a signal has told of, or that was opened.
    std::optional<EffectComparison> m_compared; ///< The last one in the store that is open.
    /// The application whose event loop is still to tell of the working set.
    QPointer<QCoreApplication> m_noticeDue;
};

} // namespace trel::mediadispatch
