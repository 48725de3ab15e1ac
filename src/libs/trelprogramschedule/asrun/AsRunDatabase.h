#pragma once

#include "trelprogramschedule/asrun/AsRunNumbers.h"
#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "trelprogramschedule_export.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace trel::mediadispatch {

/// The chain of a screen: where it begins and where it ends.
struct AsRunScreen
{
    QString name;
    qint64 lastNumber = 0; ///< Of the last record that was added; 0 for none.
    QByteArray lastHash;
    /// The last record that was removed because of its age; 0 and asRunFirstHash for none.
    qint64 anchorNumber = 0;
    QByteArray anchorHash;
    QByteArray anchorSchedule; ///< What the player followed then.
    /// The records that are really there; 0 for none.
    qint64 firstStored = 0;
    qint64 lastStored = 0;
};

/// What was on screens, in a database of its own beside the store.
///
/// Each screen has a chain of records, to which records are only added. Players and consoles on one
/// machine may use it at the same time. Every change is one transaction, on the disk when the call
/// returns; a call that is refused leaves the file as it was. An object belongs to one thread, and
/// needs a QCoreApplication.
class TRELPROGRAMSCHEDULE_EXPORT AsRunDatabase
{
public:
    AsRunDatabase();
    ~AsRunDatabase();
    Q_DISABLE_COPY(AsRunDatabase)

    /// Where the database of a store is.
    static QString pathFor(const QString& store);

    /// A file that is refused stays as it is. A new one may be read by its owner alone. ReadOnly
    /// needs no right to write and leaves nothing behind.
    StoreResult open(const QString& path, StoreOpenMode mode);
    void close();
    bool isOpen() const { return m_d != nullptr; }
    /// Empty when none is open.
    QString path() const;

    /// Adds records to the chain of a screen, in order, each once: `source` counts what it hands in
    /// from 1, and what it has handed in before is left out. Where some have not come, because they
    /// were handed in to a file in whose place an older one was put, a gap that says so takes their
    /// place; not before the first record of a screen. `number` and `hash` of the records are
    /// given here. `contents` are those of schedules that the records name, see asRunContents;
    /// those that are known already may be left out or not. All or nothing is added.
    ///
    /// Other when the file was removed or replaced since it was opened: open it once more.
    StoreResult append(const QString& screen, const QByteArray& source, qint64 firstSequence,
                       const std::vector<AsRunRecord>& records,
                       const std::vector<QByteArray>& contents);

    /// All screens, by name.
    StoreResult screens(std::vector<AsRunScreen>& screens);
    /// The records of a screen that have to do with a time, `from` included and `to` not, at the
    /// cost of that time. The clock may have leapt, so that others can lie between them.
    StoreResult numbersIn(const QString& screen, Instant from, Instant to, AsRunNumbers& numbers);

    /// False ends the reading.
    using Visitor = std::function<bool(const AsRunRecord& record)>;
    /// Gives the records with these numbers that are there, in the order of their numbers. The
    /// database is not locked while the visitor works, and takes a bounded amount of memory.
    StoreResult visit(const QString& screen, const AsRunNumbers& numbers, const Visitor& visitor);

    /// The same step by step: reads the first of these records, some thousand at most, into the
    /// place of others, and takes their numbers from those that are left. Empty when none is left.
    StoreResult readSome(const QString& screen, AsRunNumbers& numbers,
                         std::vector<AsRunRecord>& records);

    /// Removes the oldest records of a screen that ended before a moment, some thousand at most, so
    /// that players are not kept waiting; to be called until it removes none. The last of them
    /// becomes the anchor of the chain. What was followed by none that are left goes too.
    StoreResult removeBefore(const QString& screen, Instant before, qint64& removed);

    /// The contents of a schedule by their hash; empty where they are not there, or are not what
    /// the hash says.
    StoreResult readContents(const QByteArray& hash, QByteArray& contents);

    /// How many rows of records were read since it was opened.
    qint64 rowsRead() const;

private:
    class Private;

    std::unique_ptr<Private> m_d;
};

} // namespace trel::mediadispatch
