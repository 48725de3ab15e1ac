#pragma once

#include "store/StoreConnection.h"

struct sqlite3;

namespace trel::mediadispatch {

/// One connection to a database file.
class SqliteConnection final : public StoreConnection
{
public:
    enum class Access {
        Create,
        ReadWrite, ///< The file must exist.
        ReadOnly,  ///< Shares the file with other programs.
        Untouched, ///< Takes no lock and makes no file; no other program may have the file open.
        Memory,    ///< No file at all; the path is only for messages.
    };

    SqliteConnection(const QString& path, Access access);
    ~SqliteConnection() override;
    Q_DISABLE_COPY(SqliteConnection)

    /// See StoreConnection::elementsMadeBy, for which no connection is needed here.
    static StoreElements elementsOf(const QStringList& statements);

    std::unique_ptr<StoreInserts> inserts(const QString& statement,
                                          StoreInserts* before = nullptr) const override;
    std::unique_ptr<StoreRows> rows(const QString& path, const char* sql) const override;
    qint64 applicationId() const override;
    int schemaVersion() const override;
    void seal(qint64 applicationId, int schemaVersion) const override;
    StoreElements elements() const override;
    StoreElements elementsMadeBy(const QStringList& statements) const override;
    void expectSound(const QString& path) const override;

private:
    friend class SqliteHaste;

    void expectOpen() const override;
    StoreError errorOf(const QSqlError& error) const override;
    void setDeadline(StoreDeadline* deadline) const override;
    void begin(StorePurpose purpose) const override;
    void commit() const override;
    void rollBack() const override;

    /// Whether it waits for other programs.
    void setPatient(bool isPatient) const;
    bool hasCommitted() const;
    /// Takes away what a commit that failed has left behind the end of the log; false when it is
    /// not certain that it has gone from the disk.
    bool clearFailedCommit() const;
    bool spoilLogEnd() const;

    sqlite3* m_handle = nullptr;
    int m_systemError = 0; ///< Why it could not be opened, as errno; 0 where that is not known.
};

/// While it lives, the connection waits for no other program and refuses with Locked at once.
class SqliteHaste
{
public:
    explicit SqliteHaste(const SqliteConnection& connection);
    ~SqliteHaste();
    Q_DISABLE_COPY(SqliteHaste)

private:
    const SqliteConnection& m_connection;
};

} // namespace trel::mediadispatch
