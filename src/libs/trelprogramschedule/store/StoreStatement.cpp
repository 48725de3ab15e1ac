#include "StoreStatement.h"

#include "StoreConnection.h"
#include "StoreRefusals.h"

#include <QSqlError>

#include <sqlite3.h>

#include <new>

namespace trel::mediadispatch {

void StoreStatement::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

StoreStatement::StoreStatement(const StoreConnection& connection, const QString& path,
                               const char* sql)
    : m_path(path)
    , m_database(connection.handle())
{
    if (m_database == nullptr) {
        // What went wrong when it was opened shows there.
        connection.run(QStringLiteral("SELECT 1"));
        throw StoreError{refusal(StoreProblem::Other, path, {FaultCode::OtherDriver, {}})};
    }
    sqlite3_stmt* statement = nullptr;
    const int code =
        sqlite3_prepare_v3(m_database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    m_statement.reset(statement);
    check(code);
}

void StoreStatement::bind(int place, qint64 value)
{
    check(sqlite3_bind_int64(m_statement.get(), place, value));
}

void StoreStatement::bindBytes(int place, const QByteArray& bytes)
{
    check(sqlite3_bind_blob(m_statement.get(), place, bytes.constData(), bytes.size(),
                            SQLITE_TRANSIENT));
}

void StoreStatement::bindText(int place, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    check(sqlite3_bind_text(m_statement.get(), place, utf8.constData(), utf8.size(),
                            SQLITE_TRANSIENT));
}

bool StoreStatement::next()
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

void StoreStatement::run()
{
    while (next()) {
    }
}

void StoreStatement::reset()
{
    // Tells once more what the last step has told.
    sqlite3_reset(m_statement.get());
}

qint64 StoreStatement::number(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

QByteArray StoreStatement::view(int column) const
{
    const void* const begin = sqlite3_column_blob(m_statement.get(), column);
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    return begin == nullptr ? QByteArray("")
                            : QByteArray::fromRawData(static_cast<const char*>(begin), size);
}

QByteArray StoreStatement::bytes(int column) const
{
    const QByteArray shown = view(column);
    return {shown.constData(), shown.size()};
}

QString StoreStatement::text(int column) const
{
    return QString::fromUtf8(view(column));
}

void StoreStatement::check(int code)
{
    if (code != SQLITE_OK) {
        refuse(code);
    }
}

void StoreStatement::refuse(int code)
{
    const QString words = QString::fromUtf8(sqlite3_errmsg(m_database));
    const int systemError = sqlite3_system_errno(m_database);
    if (m_statement != nullptr) {
        reset();
    }
    if (code == SQLITE_NOMEM) {
        throw std::bad_alloc();
    }
    const QSqlError error(QString(), words, QSqlError::StatementError, QString::number(code));
    throw StoreError{refusal(error, m_path, systemError), code};
}

} // namespace trel::mediadispatch
