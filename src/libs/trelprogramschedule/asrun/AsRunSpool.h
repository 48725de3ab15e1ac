#pragma once

#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "trelprogramschedule_export.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace trel::mediadispatch {

/// Records that wait to be handed in to an as-run database, in the order of their sequence.
struct AsRunBatch
{
    qint64 firstSequence = 1;
    std::vector<AsRunRecord> records;
    std::vector<QByteArray> contents; ///< Of the schedules that the records take.
};

/// What the player of a screen keeps of its records on its own disk until an as-run database has
/// them, and what was on screen when it last wrote: a small database for one process at a time.
///
/// Every change is one transaction, on the disk when the call returns; one that is refused leaves
/// all as it was and can be tried again. An object belongs to one thread.
class TRELPROGRAMSCHEDULE_EXPORT AsRunSpool
{
public:
    AsRunSpool();
    ~AsRunSpool();
    Q_DISABLE_COPY(AsRunSpool)

    /// Opens the file, or makes it, for its owner alone, where its folder is there. A file that is
    /// refused stays as it is; see setAside.
    StoreResult open(const QString& path);
    /// A spool without a file, which is gone with the object.
    StoreResult openInMemory();
    void close();
    bool isOpen() const { return m_d != nullptr; }

    /// Takes a file that was refused out of the way, with what belongs to it, so that a new one can
    /// be made. Returns its new path; empty where it cannot be moved.
    static QString setAside(const QString& path);
    /// Whether a refusal is about what stands in the file, so that trying again is of no use.
    static bool isSpoiled(const StoreResult& result);

    // While none is open, it is empty, and all else is refused.

    /// Made up once for each file: whose sequence it is.
    QByteArray source() const;
    /// What was on screen when that was last written, and the last record before it; as of the
    /// opening or the last write.
    std::optional<AsRunRecord> onScreen() const;
    std::optional<AsRunRecord> last() const;
    /// The room that all takes, in bytes.
    qint64 size() const;
    bool isEmpty() const;

    /// Adds records, with the contents of the schedules that they take, and puts what is on screen
    /// in the place of what was; none leaves none. Where this fails and is tried again, nothing is
    /// there twice.
    StoreResult write(const std::vector<AsRunRecord>& records,
                      const std::vector<QByteArray>& contents,
                      const std::optional<AsRunRecord>& onScreen);
    /// The first records that are there, as many as the most. Damaged where they cannot be read.
    StoreResult read(int most, AsRunBatch& batch) const;
    /// Takes the records up to a sequence away.
    StoreResult remove(qint64 lastSequence);

private:
    class Private;

    std::unique_ptr<Private> m_d;
};

} // namespace trel::mediadispatch
