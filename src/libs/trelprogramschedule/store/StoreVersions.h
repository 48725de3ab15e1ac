#pragma once

#include "TaskSets.h"
#include "history/FormerPieces.h"
#include "trelprogramschedule/history/ScheduleVersion.h"

#include <QString>
#include <QtGlobal>

#include <vector>

namespace trel::mediadispatch {

class StoreConnection;
class StoreDeadline;

/// Reads the former states of what is saved, in the tables that are for them, and names them. A
/// state is kept as what of its tasks is another one in the next version, so that it is put
/// together from what is saved and all versions from its own on, and damage to one is damage to all
/// before it. Members throw StoreError, and have to be called within a transaction.
class StoreVersions
{
public:
    StoreVersions(const StoreConnection& connection, QString path);

    /// Newest first. None in a store whose schema had no place for them yet. Reads no tasks.
    std::vector<ScheduleVersion> list() const;

    /// The tasks of a version; refused with VersionUnknown or VersionDamaged as the cause. Where a
    /// deadline is given, it holds for what is done between statements as well.
    TaskMap read(qint64 number, const StoreDeadline* deadline = nullptr) const;

    /// Refused with VersionUnknown as the cause.
    void name(qint64 number, const QString& name, const QString& note) const;

    /// The pieces of a version that is not the newest; not whole where they are damaged.
    PieceReader pieces(qint64 number) const;

private:
    bool contains(qint64 number) const;
    [[noreturn]] void refuse(FaultCode code, qint64 number) const;

    const StoreConnection& m_connection;
    QString m_path;
};

} // namespace trel::mediadispatch
