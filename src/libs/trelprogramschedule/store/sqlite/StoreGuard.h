#pragma once

#include <QSqlDatabase>
#include <QString>

struct sqlite3;

namespace trel::mediadispatch {

/// The handle that the driver of the toolkit works with, for what SQL cannot say. It belongs to the
/// connection. Null where the connection is not open, or where the driver brings an SQLite of its
/// own, which the functions of this program's must not touch.
sqlite3* sqliteHandle(const QSqlDatabase& database);

/// Keeps a connection from running what a file brings along: no triggers, no views, no functions in
/// the schema, no other databases, and no value larger than kLargestStoredValue.
void guardConnection(sqlite3* handle);

/// Of a row, a text or a statement, in bytes. A row holds a name and a path at most.
constexpr int kLargestStoredValue = 1024 * 1024;

} // namespace trel::mediadispatch
