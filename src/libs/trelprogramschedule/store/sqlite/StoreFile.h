#pragma once

#include "store/StoreResult.h"

#include <QString>

#include <cstdint>
#include <utility>

namespace trel::mediadispatch {

/// The file of a store as a file: what can be told, and refused, before a database is opened on it.
///
/// Whatever this class tells it tells without leaving a trace in the file or beside it.
class StoreFile
{
public:
    /// Device and number of a file.
    using Identity = std::pair<std::uint64_t, std::uint64_t>;

    StoreFile() = default;
    /// Follows links, since the database keeps its log beside the file that a link leads to.
    explicit StoreFile(const QString& path);

    QString path() const { return m_path; }

    bool isThere() const;
    /// There is certainly no file yet, or one that holds nothing.
    bool isVacant() const;
    /// Whether a store can be made here, or what is here can be opened as one of this program's
    /// with a schema up to the given one; ReadOnly asks for no right to write.
    StoreResult judge(StoreOpenMode mode, qint64 applicationId, int newestSchema) const;
    /// ReadOnly when the file or its folder is marked so. Marks count also for a user whom the
    /// system would let write all the same.
    StoreResult judgeWritable() const;

    /// What the file looks like from outside. While its log is empty or not there, another one
    /// means that the database has been written in between.
    struct Stamp
    {
        Identity identity;
        std::int64_t size = 0;
        std::int64_t changed = 0; ///< In nanoseconds.
        std::int64_t logSize = 0; ///< As good as empty where there is none.

        bool operator==(const Stamp& other) const
        {
            return identity == other.identity && size == other.size && changed == other.changed &&
                   logSize == other.logSize;
        }
    };
    Stamp stamp() const;

    /// There is an index of a log: another program has the store open, or the last one that had it
    /// was stopped on the way.
    bool hasLogIndex() const;
    /// Whether the system would let an index be made.
    bool canHaveLogIndex() const;
    /// Takes the index of the log away; only for one that this program made.
    void removeLogIndex() const;

    QString logPath() const;
    /// Another program works with the log. Not to be asked while this one does: the system would
    /// take its locks away.
    bool isLogInUse() const;

    /// Takes the log away, with its index, if it still is the one that is given; only for one whose
    /// database stands here no more.
    void removeLog(const Identity& log) const;

    /// Makes the empty file in which a new database is built, beside the place that it is for. Only
    /// its owner may read it. False, with the system's error in errno, when that is not possible.
    bool makeDraft() const;
    QString draftPath() const;
    /// Puts the finished database in the place of a vacant file. A file that was there keeps its
    /// mode. False when that is not possible.
    bool fillFromDraft() const;
    void removeDraft() const;
    /// Removes the drafts of programs that were stopped while they made a database here.
    void removeLeftDrafts() const;

    /// Device and number of the file that now stands at the path; zeros when there is none.
    Identity identity() const;
    /// The same of the log beside it.
    Identity logIdentity() const;

private:
    StoreResult judgeVacant(StoreOpenMode mode, bool isFileThere) const;
    StoreResult judgeHeader(qint64 applicationId, int newestSchema) const;
    QString logIndexPath() const;

    QString m_path;
};

} // namespace trel::mediadispatch
