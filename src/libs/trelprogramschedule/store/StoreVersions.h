#pragma once

#include "TaskSets.h"
#include "trelprogramschedule/history/ScheduleVersion.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <vector>

namespace trel::mediadispatch {

class PieceReader;
class StoreConnection;

/// A save as its version tells of it.
struct SaveMark
{
    Instant saved = 0;
    QString by;
    qint64 restored = kNoVersion;
};

/// Reads and writes the former states of what is saved, in the tables that are for them. A state
/// is kept as what of its tasks is another one in the next version, so that it is put together from
/// what is saved and all versions from its own on, and damage to one is damage to all before it.
/// Members throw StoreError, and have to be called within a transaction.
class StoreVersions
{
public:
    StoreVersions(const StoreConnection& connection, QString path);

    /// Newest first. None in a store whose schema had no place for them yet. Reads no tasks.
    std::vector<ScheduleVersion> list() const;

    /// The tasks of a version; refused with VersionUnknown or VersionDamaged as the cause.
    TaskMap read(qint64 number) const;

    /// Keeps the state that the edits do away with, and enters the one that they make of it, which
    /// is going to be these tasks under the number after the former. Whatever the tables hold, it
    /// is no reason to refuse a save. With every so many saves it takes out what is not kept any
    /// more.
    void keep(qint64 former, const TaskEdits& edits, const TaskMap& tasks,
              const SaveMark& mark) const;

    /// Refused with VersionUnknown as the cause.
    void name(qint64 number, const QString& name, const QString& note) const;

private:
    void enter(qint64 number, const VersionChange& change, const SaveMark& mark) const;
    /// Takes out what a sound store has not, and puts in what it has, before the next save.
    void prepare(qint64 former) const;
    void keepTasks(qint64 number, const TaskEdits& edits, const TaskMap& tasks) const;
    void writeParts(qint64 number, const std::vector<QByteArray>& parts) const;
    /// The pieces of a version that is not the newest; not whole where they are damaged.
    PieceReader pieces(qint64 number) const;
    void thinOut(Instant now) const;
    void drop(qint64 number, qint64 before) const;
    bool contains(qint64 number) const;
    [[noreturn]] void refuse(FaultCode code, qint64 number) const;

    const StoreConnection& m_connection;
    QString m_path;
};

} // namespace trel::mediadispatch
