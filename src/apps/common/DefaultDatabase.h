#pragma once

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QString>

namespace trel::hosts {

/// Where the hosts keep the user's own schedule when no file is named: one place in the user's
/// data, whatever the host that asks is called, so that all of them work on the same schedule.
inline QString defaultDatabasePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/trel/schedule/schedule.db");
}

/// As defaultDatabasePath, and makes the folder of the file, so that a database can be made in it.
/// A folder that cannot be made is found out by opening the database.
inline QString makeDefaultDatabaseFolder()
{
    QString path = defaultDatabasePath();
    QDir().mkpath(QFileInfo(path).absolutePath());
    return path;
}

} // namespace trel::hosts
