#include "SqliteConnection.h"

#include "SqliteRefusals.h"
#include "SqliteRows.h"
#include "StoreGuard.h"
#include "store/StoreDeadline.h"
#include "store/StoreDriver.h"
#include "store/StoreElements.h"
#include "store/StoreRefusals.h"
#include "store/StoreSingleInserts.h"

#include <QSqlError>
#include <QUrl>
#include <QVariant>

#include <sqlite3.h>

#include <cerrno>
#include <new>

namespace trel::mediadispatch {

namespace {

/// How long a call waits for another program that holds the file, in milliseconds: longer than a
/// save of a large schedule takes, shorter than an operator's patience.
constexpr int kBusyTimeout = 2000;

/// Between two looks at the time, in steps of the database's machine: some tenths of a millisecond.
constexpr int kStepsBetweenLooks = 10000;

/// More than any schema has, so that one that has more shows.
constexpr int kMostElements = 1000;

/// Whether a commit failed while it wrote the log. The part that makes it a commit is written last,
/// so that it is not there.
bool isLogCutShort(int code)
{
    return code == SQLITE_FULL || code == SQLITE_IOERR_WRITE;
}

int hasPassed(void* deadline)
{
    return static_cast<const StoreDeadline*>(deadline)->hasPassed() ? 1 : 0;
}

QString fileAddress(const QString& path, SqliteConnection::Access access)
{
    QString address = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    switch (access) {
    case SqliteConnection::Access::Create:
        return address + QLatin1String("?mode=rwc");
    case SqliteConnection::Access::ReadWrite:
        return address + QLatin1String("?mode=rw");
    case SqliteConnection::Access::ReadOnly:
        return address + QLatin1String("?mode=ro");
    case SqliteConnection::Access::Untouched:
        return address + QLatin1String("?mode=ro&immutable=1");
    case SqliteConnection::Access::Memory:
        return QStringLiteral("file::memory:");
    }
    return address;
}

} // namespace

SqliteConnection::SqliteConnection(const QString& path, Access access)
    : StoreConnection(path, unlistedConnection(QStringLiteral("QSQLITE")))
{
    database().setDatabaseName(fileAddress(path, access));
    QString options = QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(kBusyTimeout);
    if (access == Access::ReadOnly || access == Access::Untouched) {
        options += QLatin1String(";QSQLITE_OPEN_READONLY");
    }
    database().setConnectOptions(options);
    errno = 0;
    // A failure shows in the first statement.
    m_systemError = database().open() ? 0 : errno;
    m_handle = sqliteHandle(database());
    if (m_handle != nullptr) {
        guardConnection(m_handle);
    }
}

SqliteConnection::~SqliteConnection() = default;

std::unique_ptr<StoreInserts> SqliteConnection::inserts(const QString& statement,
                                                        StoreInserts* before) const
{
    // Each row is in its table as soon as it is put there.
    Q_UNUSED(before)
    return std::make_unique<StoreSingleInserts>(*this, statement);
}

std::unique_ptr<StoreRows> SqliteConnection::rows(const QString& path, const char* sql) const
{
    if (m_handle == nullptr) {
        // What went wrong when it was opened shows there.
        run(QStringLiteral("SELECT 1"));
        throw StoreError{refusal(StoreProblem::Other, path, {FaultCode::OtherDriver, {}})};
    }
    return std::make_unique<SqliteRows>(m_handle, path, sql);
}

qint64 SqliteConnection::applicationId() const
{
    return value(QStringLiteral("PRAGMA application_id")).toLongLong();
}

int SqliteConnection::schemaVersion() const
{
    return value(QStringLiteral("PRAGMA user_version")).toInt();
}

void SqliteConnection::seal(qint64 applicationId, int schemaVersion) const
{
    run(QStringLiteral("PRAGMA user_version = %1").arg(schemaVersion));
    run(QStringLiteral("PRAGMA application_id = %1").arg(applicationId));
}

StoreElements SqliteConnection::elements() const
{
    QSqlQuery row =
        query(QStringLiteral("SELECT type, name, tbl_name, sql FROM sqlite_schema LIMIT %1")
                  .arg(kMostElements));
    StoreElements elements;
    while (next(row)) {
        elements.add(row.value(0).toString(), row.value(1).toString(), row.value(2).toString(),
                     row.value(3).toString());
    }
    return elements;
}

StoreElements SqliteConnection::elementsMadeBy(const QStringList& statements) const
{
    return elementsOf(statements);
}

StoreElements SqliteConnection::elementsOf(const QStringList& statements)
{
    const SqliteConnection fresh(QString(), Access::Memory);
    for (const QString& statement : statements) {
        fresh.run(statement);
    }
    return fresh.elements();
}

void SqliteConnection::expectSound(const QString& path) const
{
    const QString finding = value(QStringLiteral("PRAGMA quick_check(1)")).toString().simplified();
    if (finding != QLatin1String("ok")) {
        throw StoreError{refusalOfFinding(finding, path)};
    }
}

void SqliteConnection::expectOpen() const
{
    if (!database().isOpen()) {
        throw StoreError{refusal(database().lastError(), path(), m_systemError)};
    }
    if (m_handle == nullptr) {
        throw StoreError{refusal(StoreProblem::Other, path(), {FaultCode::OtherDriver, {}})};
    }
}

StoreError SqliteConnection::errorOf(const QSqlError& error) const
{
    const int systemError = m_handle == nullptr ? 0 : sqlite3_system_errno(m_handle);
    return {refusal(error, path(), systemError), error.nativeErrorCode().toInt()};
}

void SqliteConnection::setPatient(bool isPatient) const
{
    // Not by a statement, which may lack memory on the way back.
    sqlite3_busy_timeout(m_handle, isPatient ? kBusyTimeout : 0);
}

void SqliteConnection::setDeadline(StoreDeadline* deadline) const
{
    if (m_handle == nullptr) {
        return;
    }
    if (deadline == nullptr) {
        sqlite3_progress_handler(m_handle, 0, nullptr, nullptr);
    } else {
        sqlite3_progress_handler(m_handle, kStepsBetweenLooks, &hasPassed, deadline);
    }
}

void SqliteConnection::begin(StorePurpose purpose) const
{
    if (m_handle != nullptr && sqlite3_get_autocommit(m_handle) == 0) {
        rollBack(); // There was no memory to undo the former one.
    }
    run(purpose == StorePurpose::Write ? QStringLiteral("BEGIN IMMEDIATE")
                                       : QStringLiteral("BEGIN"));
}

void SqliteConnection::commit() const
{
    try {
        run(QStringLiteral("COMMIT"));
    } catch (const StoreError& error) {
        const int systemError = sqlite3_system_errno(m_handle);
        rollBack();
        if (!isLogCutShort(error.code) && !clearFailedCommit()) {
            throw StoreError{refusal(StoreProblem::Unclear, path(),
                                     systemError == 0 ? Fault{FaultCode::DiskError, {}}
                                                      : faultOf(FaultCode::System, systemError))};
        }
        throw;
    } catch (const std::bad_alloc&) {
        // The driver may lack memory for its answer when all has been done.
        if (!hasCommitted()) {
            throw;
        }
    }
}

bool SqliteConnection::hasCommitted() const
{
    const int code = sqlite3_errcode(m_handle);
    return sqlite3_get_autocommit(m_handle) != 0 && (code == SQLITE_OK || code == SQLITE_DONE);
}

void SqliteConnection::rollBack() const
{
    // The database undoes a change by itself after some failures and then refuses this.
    sqlite3_exec(m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
}

bool SqliteConnection::clearFailedCommit() const
{
    try {
        if (value(QStringLiteral("PRAGMA journal_mode")).toString() != QLatin1String("wal")) {
            return true; // Undone from the journal, which is deleted last.
        }
        run(QStringLiteral("BEGIN IMMEDIATE"));
    } catch (const StoreError&) {
        return false;
    }
    const bool isSpoiled = spoilLogEnd();
    QSqlQuery(database()).exec(QStringLiteral("ROLLBACK"));
    return isSpoiled;
}

bool SqliteConnection::spoilLogEnd() const
{
    // When the log is written but cannot be synchronised, its last part is complete, and a program
    // that reads the log from the disk the next time takes it for a change that was committed. A
    // page that belongs to no commit is written over the first one of that part: all others hang
    // together with it by their checksums. It has to differ from any page of a real change.
    try {
        run(QStringLiteral("UPDATE store SET schedule_revision = -1 - schedule_revision"));
    } catch (const StoreError&) {
        return false;
    }
    sqlite3_file* log = nullptr;
    return sqlite3_db_cacheflush(m_handle) == SQLITE_OK &&
           sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log) ==
               SQLITE_OK &&
           log != nullptr && log->pMethods != nullptr &&
           log->pMethods->xSync(log, SQLITE_SYNC_FULL) == SQLITE_OK;
}

SqliteHaste::SqliteHaste(const SqliteConnection& connection)
    : m_connection(connection)
{
    m_connection.setPatient(false);
}

SqliteHaste::~SqliteHaste()
{
    m_connection.setPatient(true);
}

} // namespace trel::mediadispatch
