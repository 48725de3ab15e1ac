#pragma once

#include "StoreResult.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

struct sqlite3;

namespace trel::mediadispatch {

/// What the members of StoreConnection throw; it never leaves the class that uses them.
struct StoreError
{
    StoreResult result;
    int code =
        0; ///< The database's own, with all that it tells; 0 where it is not an error of its.
};

/// One connection to a database file, open from construction to destruction. All queries on
/// it must have gone before it goes. Members throw StoreError where the database refuses.
class StoreConnection
{
public:
    enum class Access {
        Create,
        ReadWrite, ///< The file must exist.
        ReadOnly,  ///< Shares the file with other programs.
        Untouched, ///< Takes no lock and makes no file; no other program may have the file open.
        Memory,    ///< No file at all; the path is only for messages.
    };

    StoreConnection(const QString& path, Access access);
    ~StoreConnection();
    Q_DISABLE_COPY(StoreConnection)

    void run(const QString& statement) const;
    /// The first value of the first row; Damaged when there is no row.
    QVariant value(const QString& statement) const;
    /// A query that is ready to be run, as often as it takes.
    QSqlQuery prepare(const QString& statement) const;
    /// A query that has been run.
    QSqlQuery query(const QString& statement) const;
    /// Runs a prepared query with the values that are bound to it.
    void exec(QSqlQuery& query) const;
    /// Goes to the next row; false behind the last.
    bool next(QSqlQuery& query) const;

    /// The handle behind the connection; null where it could not be opened.
    sqlite3* handle() const { return m_handle; }

private:
    [[noreturn]] void refuse(const QSqlQuery& query) const;

    friend class StoreHaste;
    friend class StoreTransaction;

    void setPatience(int milliseconds) const;
    /// Takes away what a commit that failed has left behind the end of the log; false when it is
    /// not certain that it has gone from the disk.
    bool clearFailedCommit() const;
    bool spoilLogEnd() const;

    QString m_path;
    QSqlDatabase m_database;
    sqlite3* m_handle = nullptr;
    int m_systemError = 0; ///< Why it could not be opened, as errno; 0 where that is not known.
};

/// While it lives, the connection waits for no other program and refuses with Locked at once.
class StoreHaste
{
public:
    explicit StoreHaste(const StoreConnection& connection);
    ~StoreHaste();
    Q_DISABLE_COPY(StoreHaste)

private:
    const StoreConnection& m_connection;
};

/// A transaction that is undone unless it is committed.
class StoreTransaction
{
public:
    enum class Purpose {
        Read,  ///< One state of the store for all queries.
        Write, ///< No other connection writes until the end.
    };

    StoreTransaction(const StoreConnection& connection, Purpose purpose);
    ~StoreTransaction();
    Q_DISABLE_COPY(StoreTransaction)

    /// Where this throws, nothing is changed, and nothing of it can come back when the log is read
    /// again, after a power cut either; the one exception is Unclear.
    void commit();

private:
    bool hasCommitted() const;
    void rollBack();

    const StoreConnection& m_connection;
    bool m_hasEnded = false;
};

} // namespace trel::mediadispatch
