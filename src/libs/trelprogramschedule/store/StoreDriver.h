#pragma once

#include <QSqlDatabase>
#include <QString>

namespace trel::mediadispatch {

/// A connection by a driver of the toolkit that is in no list of connections, so that any thread
/// may have one. Not open yet, and not valid where the driver is missing. Throws std::bad_alloc.
QSqlDatabase unlistedConnection(const QString& driver);

} // namespace trel::mediadispatch
