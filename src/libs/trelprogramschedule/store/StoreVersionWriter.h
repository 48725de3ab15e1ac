#pragma once

#include "StoreStatement.h"
#include "TaskSets.h"
#include "trelprogramschedule/history/ScheduleVersion.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <vector>

namespace trel::mediadispatch {

class StoreConnection;

/// A save as its version tells of it.
struct SaveMark
{
    Instant saved = 0;
    QString by;
    qint64 restored = kNoVersion;
};

/// Keeps with each save the state before it, in the form that StoreVersions tells of. Made for one
/// save. Members throw StoreError, and have to be called within a transaction that writes.
class StoreVersionWriter
{
public:
    StoreVersionWriter(const StoreConnection& connection, QString path);

    /// Keeps the state that the edits do away with, and enters the one that they make of it under
    /// the number after the former. Whatever the tables hold, it is no reason to refuse a save.
    /// With every so many saves it takes out what is not kept any more.
    void keep(qint64 former, const TaskEdits& edits, const SaveMark& mark);

private:
    void enter(qint64 number, const VersionChange& change, const SaveMark& mark);
    bool isSound(qint64 former);
    /// Takes out what a sound store has not, and puts in what it has, before the next save.
    void prepare(qint64 former);
    void keepTasks(qint64 number, const TaskEdits& edits);
    void writeParts(qint64 number, const std::vector<QByteArray>& parts);
    void thinOut(Instant now);
    void dropRun(const std::vector<qint64>& run, qint64 before);
    void remove(qint64 number) const;

    const StoreConnection& m_connection;
    QString m_path;
    StoreStatement m_sound;
    StoreStatement m_part;
    StoreStatement m_version;
};

} // namespace trel::mediadispatch
