#include "SqliteRows.h"

#include "SqliteRefusals.h"
#include "store/StoreConnection.h"

#include <QSqlError>

#include <sqlite3.h>

#include <new>
#include <utility>

namespace trel::mediadispatch {

void SqliteRows::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

SqliteRows::SqliteRows(sqlite3* database, QString path, const char* sql)
    : m_path(std::move(path))
    , m_database(database)
{
    sqlite3_stmt* statement = nullptr;
    const int code =
        sqlite3_prepare_v3(m_database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    m_statement.reset(statement);
    check(code);
}

SqliteRows::~SqliteRows() = default;

void SqliteRows::bind(int place, qint64 value)
{
    check(sqlite3_bind_int64(m_statement.get(), place, value));
}

void SqliteRows::bindBytes(int place, const QByteArray& bytes)
{
    check(sqlite3_bind_blob(m_statement.get(), place, bytes.constData(), bytes.size(),
                            SQLITE_TRANSIENT));
}

void SqliteRows::bindText(int place, const QByteArray& utf8)
{
    check(sqlite3_bind_text(m_statement.get(), place, utf8.constData(), utf8.size(),
                            SQLITE_TRANSIENT));
}

bool SqliteRows::next()
{
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        refuse(code);
    }
    reset();
    return false;
}

void SqliteRows::reset()
{
    // Tells once more what the last step has told.
    sqlite3_reset(m_statement.get());
}

qint64 SqliteRows::number(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

QByteArray SqliteRows::view(int column) const
{
    const void* const begin = sqlite3_column_blob(m_statement.get(), column);
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    return begin == nullptr ? QByteArray("")
                            : QByteArray::fromRawData(static_cast<const char*>(begin), size);
}

void SqliteRows::check(int code)
{
    if (code != SQLITE_OK) {
        refuse(code);
    }
}

void SqliteRows::refuse(int code)
{
    const QString words = QString::fromUtf8(sqlite3_errmsg(m_database));
    const int systemError = sqlite3_system_errno(m_database);
    if (m_statement != nullptr) {
        sqlite3_reset(m_statement.get());
    }
    if (code == SQLITE_NOMEM) {
        throw std::bad_alloc();
    }
    const QSqlError error(QString(), words, QSqlError::StatementError, QString::number(code));
    throw StoreError{refusal(error, m_path, systemError), code};
}

} // namespace trel::mediadispatch
