#include "StoreGuard.h"

#include <QSqlDriver>
#include <QSqlQuery>
#include <QVariant>

#include <sqlite3.h>

#include <cstring>

namespace trel::mediadispatch {

namespace {

/// The driver and this program have to mean the same library by the handle.
bool isSameLibrary(const QSqlDatabase& database)
{
    static const bool isSame = [&database] {
        QSqlQuery query(database);
        return query.exec(QStringLiteral("SELECT sqlite_source_id()")) && query.next() &&
               query.value(0).toByteArray() == sqlite3_sourceid();
    }();
    return isSame;
}

} // namespace

sqlite3* sqliteHandle(const QSqlDatabase& database)
{
    const QVariant handle = database.driver()->handle();
    if (!database.isOpen() || !handle.isValid() ||
        std::strcmp(handle.typeName(), "sqlite3*") != 0 || !isSameLibrary(database)) {
        return nullptr;
    }
    return *static_cast<sqlite3* const*>(handle.constData());
}

void guardConnection(sqlite3* handle)
{
    constexpr int on = 1;
    constexpr int off = 0;
    int* const unasked = nullptr;
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, on, unasked);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, off, unasked);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, off, unasked);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, off, unasked);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, off, unasked);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, kLargestStoredValue);
    sqlite3_limit(handle, SQLITE_LIMIT_SQL_LENGTH, kLargestStoredValue);
    sqlite3_limit(handle, SQLITE_LIMIT_ATTACHED, off);
}

} // namespace trel::mediadispatch
