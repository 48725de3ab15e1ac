#pragma once

#include "StoreContents.h"
#include "StoreFile.h"
#include "StoreResult.h"
#include "TaskSets.h"

#include <QString>
#include <QtGlobal>

#include <memory>
#include <vector>

namespace trel::mediadispatch {

class StoreConnection;
struct MediaSource;

/// Which parts to read.
enum class StorePart {
    Schedule,
    Catalogue,
    Both,
};

/// The store on disk: the one class that speaks to the database.
///
/// Every change is one transaction, synchronised to the disk before the call returns. A call that
/// fails leaves the file as it was and the object usable. One connection, which lives from open to
/// close; an object belongs to one thread, and needs a QCoreApplication.
class ScheduleDatabase
{
public:
    ScheduleDatabase();
    ~ScheduleDatabase();
    Q_DISABLE_COPY(ScheduleDatabase)

    /// See ScheduleHost::open. A file that is refused stays as it is, to the byte, and nothing is
    /// left beside it. No file of the process may be open on the same path.
    StoreResult open(const QString& path, StoreOpenMode mode);
    void close();
    bool isOpen() const { return m_connection != nullptr; }
    /// Where the file is, behind any links; empty when none is open.
    QString path() const { return m_file.path(); }

    /// Whether the file that was opened still stands at its path.
    bool isInPlace() const;
    /// Opens the file that has taken the place of the one that was opened. Where that is refused it
    /// can be tried again; all other calls may be refused until then.
    StoreResult reopen();
    /// Another program is about to commit. What it told the system of up to now can only be read
    /// when it has.
    bool isBeingWritten() const;

    StoreResult readRevision(StoreRevision& revision) const;
    /// Reads the parts and the revision that they have, all from one state of the store.
    StoreResult read(StorePart part, StoreContents& contents) const;
    /// As read, of a few programs only.
    StoreResult readPrograms(const std::vector<int>& indexes, StoreContents& contents) const;

    /// Writes what is to be changed in the tasks, if the store still has the schedule revision
    /// that is given; MovedOn otherwise. The revision is counted up, unless there is no change.
    StoreResult writeTasks(const TaskEdits& edits, qint64& revision);

    /// Puts sources into the catalogue; see ScheduleHost::addPrograms.
    ImportResult addPrograms(const std::vector<MediaSource>& sources);
    /// Takes programs out, all of them or none; an index that is not in the catalogue changes
    /// nothing.
    StoreResult removePrograms(const std::vector<int>& progIndexes);
    /// See ScheduleHost::plansWith.
    StoreResult countPlansWith(const std::vector<int>& progIndexes, int& count) const;

private:
    StoreResult judge(StoreOpenMode mode) const;
    StoreResult create() const;
    StoreResult probe() const;
    StoreResult connect();
    StoreResult leave();
    StoreResult judgeInPlace() const;

    StoreFile m_file;
    StoreFile::Identity m_identity;
    StoreFile::Identity m_logIdentity;
    std::unique_ptr<StoreConnection> m_connection;
};

} // namespace trel::mediadispatch
