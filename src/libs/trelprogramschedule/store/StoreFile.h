#pragma once

#include "StoreResult.h"

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
    /// There is no file yet, or one that holds nothing.
    bool isVacant() const;
    /// Whether a store can be made here, or what is here can be opened as one of this program's
    /// with a schema up to the given one.
    StoreResult judge(StoreOpenMode mode, qint64 applicationId, int newestSchema) const;
    /// ReadOnly when the file or its folder is marked so. Marks count also for a user whom the
    /// system would let write all the same.
    StoreResult judgeWritable() const;

    /// The log beside the file or its index exist: another program has the store open, or the last
    /// one that had it was stopped on the way.
    bool hasSidecars() const;
    bool hasLogIndex() const;
    /// Takes the index of the log away; only for one that this program made.
    void removeLogIndex() const;

    /// Takes the log away, with its index, if it still is the one that is given; only for one whose
    /// database stands here no more.
    void removeLog(const Identity& log) const;

    /// Puts a finished database in the place of a vacant file. False when that is not possible.
    bool fillFrom(const QString& finished) const;

    /// Device and number of the file that now stands at the path; zeros when there is none.
    Identity identity() const;
    /// The same of the log beside it.
    Identity logIdentity() const;

private:
    StoreResult judgeVacant(StoreOpenMode mode) const;
    StoreResult judgeHeader(qint64 applicationId, int newestSchema) const;
    QString logPath() const;
    QString logIndexPath() const;

    QString m_path;
};

} // namespace trel::mediadispatch
