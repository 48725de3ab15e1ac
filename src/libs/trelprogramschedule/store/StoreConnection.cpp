#include "StoreConnection.h"

#include "StoreGuard.h"
#include "StoreRefusals.h"

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

/// Whether a commit failed while it wrote the log. The part that makes it a commit is written last,
/// so that it is not there.
bool isLogCutShort(int code)
{
    return code == SQLITE_FULL || code == SQLITE_IOERR_WRITE;
}

/// A connection that is in no list. The toolkit's own list is locked while it is changed, and stays
/// so where memory runs out meanwhile: its module knows no exceptions.
class UnlistedConnection : public QSqlDatabase
{
public:
    UnlistedConnection()
        : QSqlDatabase(QStringLiteral("QSQLITE"))
    {}
};

/// Has the toolkit make what stands for no connection and for no query, which it needs for each one
/// that is made or goes. Where memory runs out there they stay half made, and the next need of them
/// waits for ever or throws, in a destructor too. So they are made before all others, and tried
/// once.
bool arePlaceholdersMade()
{
    static const bool areMade = [] {
        try {
            const QSqlDatabase none;
            return !none.isValid() && !QSqlQuery(none).isActive();
        } catch (const std::bad_alloc&) {
            return false;
        }
    }();
    return areMade;
}

QSqlDatabase newConnection()
{
    if (!arePlaceholdersMade()) {
        throw std::bad_alloc();
    }
    return UnlistedConnection();
}

QString fileAddress(const QString& path, StoreConnection::Access access)
{
    QString address = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    switch (access) {
    case StoreConnection::Access::Create:
        return address + QLatin1String("?mode=rwc");
    case StoreConnection::Access::ReadWrite:
        return address + QLatin1String("?mode=rw");
    case StoreConnection::Access::ReadOnly:
        return address + QLatin1String("?mode=ro");
    case StoreConnection::Access::Untouched:
        return address + QLatin1String("?mode=ro&immutable=1");
    case StoreConnection::Access::Memory:
        return QStringLiteral("file::memory:");
    }
    return address;
}

} // namespace

StoreConnection::StoreConnection(const QString& path, Access access)
    : m_path(path)
    , m_database(newConnection())
{
    m_database.setDatabaseName(fileAddress(path, access));
    QString options = QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(kBusyTimeout);
    if (access == Access::ReadOnly || access == Access::Untouched) {
        options += QLatin1String(";QSQLITE_OPEN_READONLY");
    }
    m_database.setConnectOptions(options);
    errno = 0;
    // A failure shows in the first statement.
    m_systemError = m_database.open() ? 0 : errno;
    m_handle = sqliteHandle(m_database);
    if (m_handle != nullptr) {
        guardConnection(m_handle);
    }
}

StoreConnection::~StoreConnection()
{
    m_database.close();
}

void StoreConnection::run(const QString& statement) const
{
    query(statement);
}

QVariant StoreConnection::value(const QString& statement) const
{
    QSqlQuery row = query(statement);
    if (!next(row)) {
        throw StoreError{refusal(StoreProblem::Damaged, m_path, {FaultCode::RowMissing, {}})};
    }
    return row.value(0);
}

QSqlQuery StoreConnection::prepare(const QString& statement) const
{
    if (!m_database.isOpen()) {
        throw StoreError{refusal(m_database.lastError(), m_path, m_systemError)};
    }
    if (m_handle == nullptr) {
        throw StoreError{refusal(StoreProblem::Other, m_path, {FaultCode::OtherDriver, {}})};
    }
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (!query.prepare(statement)) {
        refuse(query);
    }
    return query;
}

QSqlQuery StoreConnection::query(const QString& statement) const
{
    QSqlQuery query = prepare(statement);
    exec(query);
    return query;
}

void StoreConnection::exec(QSqlQuery& query) const
{
    if (!query.exec()) {
        refuse(query);
    }
}

bool StoreConnection::next(QSqlQuery& query) const
{
    if (query.next()) {
        return true;
    }
    if (query.lastError().isValid()) {
        refuse(query);
    }
    return false;
}

void StoreConnection::refuse(const QSqlQuery& query) const
{
    const int systemError = m_handle == nullptr ? 0 : sqlite3_system_errno(m_handle);
    throw StoreError{refusal(query.lastError(), m_path, systemError),
                     query.lastError().nativeErrorCode().toInt()};
}

void StoreConnection::setPatience(int milliseconds) const
{
    // Not by a statement, which may lack memory on the way back.
    sqlite3_busy_timeout(m_handle, milliseconds);
}

bool StoreConnection::clearFailedCommit() const
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
    QSqlQuery(m_database).exec(QStringLiteral("ROLLBACK"));
    return isSpoiled;
}

bool StoreConnection::spoilLogEnd() const
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

StoreHaste::StoreHaste(const StoreConnection& connection)
    : m_connection(connection)
{
    m_connection.setPatience(0);
}

StoreHaste::~StoreHaste()
{
    m_connection.setPatience(kBusyTimeout);
}

StoreTransaction::StoreTransaction(const StoreConnection& connection, Purpose purpose)
    : m_connection(connection)
{
    if (m_connection.m_handle != nullptr && sqlite3_get_autocommit(m_connection.m_handle) == 0) {
        rollBack(); // There was no memory to undo the former one.
        m_hasEnded = false;
    }
    m_connection.run(purpose == Purpose::Write ? QStringLiteral("BEGIN IMMEDIATE")
                                               : QStringLiteral("BEGIN"));
}

StoreTransaction::~StoreTransaction()
{
    if (!m_hasEnded) {
        rollBack();
    }
}

void StoreTransaction::commit()
{
    try {
        m_connection.run(QStringLiteral("COMMIT"));
    } catch (const StoreError& error) {
        const int systemError = sqlite3_system_errno(m_connection.m_handle);
        rollBack();
        if (!isLogCutShort(error.code) && !m_connection.clearFailedCommit()) {
            throw StoreError{refusal(StoreProblem::Unclear, m_connection.m_path,
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
    m_hasEnded = true;
}

bool StoreTransaction::hasCommitted() const
{
    const int code = sqlite3_errcode(m_connection.m_handle);
    return sqlite3_get_autocommit(m_connection.m_handle) != 0 &&
           (code == SQLITE_OK || code == SQLITE_DONE);
}

void StoreTransaction::rollBack()
{
    // The database undoes a change by itself after some failures and then refuses this. Throws
    // nothing, as it is called on the way out.
    sqlite3_exec(m_connection.m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
    m_hasEnded = true;
}

} // namespace trel::mediadispatch
