#pragma once

#include "StoreContents.h"
#include "StoreResult.h"
#include "StoredEffect.h"
#include "TaskSets.h"
#include "catalogue/ProgramContent.h"
#include "trelprogramschedule/history/ScheduleVersion.h"

#include <QString>
#include <QtGlobal>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace trel::mediadispatch {

class StoreConnection;
class StoreEngine;
struct MediaSource;

/// Which parts to read.
enum class StorePart {
    Schedule,
    Catalogue,
    Both,
};

/// Tasks that are to be in the store, and what turns it into them.
struct TasksToWrite
{
    const TaskMap* tasks = nullptr;
    TaskEdits edits;
};

/// Makes the tasks that are written together with programs: given is the index that each of these
/// has got, in their order, and the programs themselves.
using TasksOfPrograms =
    std::function<TasksToWrite(const std::vector<int>& indexes, const ProgramMap& programs)>;

/// The store: the one class that speaks to its database, by way of the engine that keeps it.
///
/// Every change is one transaction, synchronised to the disk before the call returns. A call that
/// fails leaves the file as it was and the object usable. One connection, which lives from open to
/// close; an object belongs to one thread, and needs a QCoreApplication. What is said of the file
/// is true of the schedule on a server as well, where the path is an address; see StorePlace.
class ScheduleDatabase
{
public:
    ScheduleDatabase();
    ~ScheduleDatabase();
    Q_DISABLE_COPY(ScheduleDatabase)

    /// See ScheduleHost::open. Reads what is asked for, for the first call of read to give. A file
    /// that is refused, for its contents too, stays as it is, to the byte, and nothing is left
    /// beside it. No file of the process may be open on the same path.
    StoreResult open(const QString& path, StoreOpenMode mode, StorePart part = StorePart::Both);
    /// See ScheduleHost::setPatience.
    void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }
    void close();
    bool isOpen() const;
    /// Where the file is, behind any links; empty when none is open.
    QString path() const;

    /// The id that a store on a server has for itself, also when it is restored from a copy; empty
    /// of one in a file.
    QString id() const;

    /// Whether the file that was opened still stands at its path.
    bool isInPlace() const;
    /// Opens the file that has taken the place of the one that was opened. Where that is refused it
    /// can be tried again; all other calls may be refused until then.
    StoreResult reopen();
    /// Another program is about to commit. What it told the system of up to now can only be read
    /// when it has. False for a store that is only read.
    bool isBeingWritten() const;

    StoreResult readRevision(StoreRevision& revision);
    /// Reads the parts and the revision that they have, all from one state of the store.
    StoreResult read(StorePart part, StoreContents& contents);
    /// Writes what is to be changed so that the store holds these tasks, if it still has the
    /// schedule revision that is given; MovedOn otherwise. The revision is counted up, unless there
    /// is no change. TooLarge for tasks beyond the limits of a schedule. The state before becomes a
    /// version; of what is written it is told which version is brought back by it, if one is.
    StoreResult writeTasks(const TaskMap& tasks, const TaskEdits& edits, qint64& revision,
                           qint64 restored = kNoVersion);

    /// Puts sources into the catalogue and writes tasks that may refer to them, all in one
    /// transaction, if the store still has the revisions of schedule and catalogue that are given;
    /// MovedOn otherwise. What is asked for the tasks is asked once, within the transaction. Gives
    /// the programs of the sources and the revisions after that. Otherwise as writeTasks.
    StoreResult writeWithPrograms(const std::vector<MediaSource>& sources,
                                  const TasksOfPrograms& tasksOf, StoreRevision& revision,
                                  ProgramMap& programs);

    /// Puts sources into the catalogue; see ScheduleHost::addPrograms. Gives their programs, and
    /// the revisions with them, as they stand in the store then.
    ImportResult addPrograms(const std::vector<MediaSource>& sources, StoreContents& contents);
    /// Takes programs out, all of them or none; an index that is not in the catalogue changes
    /// nothing. Gives the revisions after that.
    StoreResult removePrograms(const std::vector<int>& progIndexes, StoreRevision& revision);
    /// Reads what is known of the files of programs; nothing in a store of a former schema.
    StoreResult readContents(ProgramContents& contents);
    /// Reads what is in effect.
    StoreResult readEffect(StoredEffect& effect);
    /// Puts the saved tasks into effect, as they are in the store now, and gives what is in effect
    /// then. The revision that was started is written into the start.
    StoreResult startEffect(EffectStart start, StoredEffect& effect);
    /// Ends what is in effect, whatever it is, and gives that nothing is.
    StoreResult stopEffect(StoredEffect& effect);
    /// Writes the insertions, if what is in effect still has the revision that is given; MovedOn
    /// otherwise. Gives the new revision, and a number to the insertion that is new.
    StoreResult writeInsertions(ScreenInsertions& insertions, qint64& revision);

    /// Reads the list of the versions, newest first.
    StoreResult readVersions(std::vector<ScheduleVersion>& versions);
    /// Reads the tasks of a version.
    StoreResult readVersion(qint64 number, TaskMap& tasks);
    /// See ScheduleHost::nameVersion.
    StoreResult nameVersion(qint64 number, const QString& name, const QString& note);

    /// See ScheduleHost::plansWith.
    StoreResult countPlansWith(const std::vector<int>& progIndexes, int& count) const;

private:
    const StoreConnection& connection() const;
    /// Reads the parts that are looked for, while the store is opened.
    void look(const StoreConnection& connection);
    void forgetSeen();
    template <typename Reading>
    StoreResult readWith(const Reading& reading);
    template <typename Change>
    StoreResult changeEffect(const Change& change);
    void readParts(StorePart part, const StoreConnection& connection,
                   StoreContents& contents) const;
    bool takeSeen(StorePart part, StoreContents& contents);
    /// Within a transaction that writes, in a store of this revision of the schedule.
    void writeEdits(const TaskEdits& edits, qint64 revision, qint64 restored) const;
    StoreResult judgeChange() const;
    /// Throws where that is refused.
    void expectChange() const;

    /// What a look at the store has read of it, and was not asked for yet.
    struct Seen
    {
        StorePart part;
        StoreContents contents;
    };

    StorePart m_looksFor = StorePart::Both;
    std::optional<Seen> m_seen;
    std::optional<StoredEffect> m_seenEffect; ///< The same of what is in effect.
    std::unique_ptr<StoreEngine> m_engine;
    std::chrono::milliseconds m_patience{0}; ///< For the next one; 0 for what is usual.
};

} // namespace trel::mediadispatch
