#pragma once

#include "store/StoreConnection.h"
#include "store/StorePlace.h"

#include <QMetaObject>
#include <QSqlError>

#include <chrono>
#include <functional>
#include <memory>

namespace trel::mediadispatch {

class PostgresPatience;

/// One connection to the schedule that a place on a server names. Each schedule has a schema of the
/// server's for itself; see decision 13.
///
/// Where the server has gone and is back, the next transaction connects once more. A statement
/// takes three quarters of the patience at most and no lock is waited for longer than two seconds,
/// by what the server itself measures. A server whose machine is off, or away from the network, is
/// given up after some ten seconds, one that stands still while its machine answers for it when the
/// patience ends, and one that does not take a new connection after five seconds, or after twelve
/// at whatever point of that it stands still; no wait is longer than the patience.
class PostgresConnection final : public StoreConnection
{
public:
    enum class Access {
        SetUp,     ///< The schema may be missing, and is made by the caller.
        ReadWrite, ///< A transaction that writes keeps all others that write out.
        ReadOnly,  ///< Nothing can be written, also where there is a right to.
        Beside,    ///< Writes what is no part of the schedule: keeps nobody out.
        Scratch,   ///< For what is undone in any case: keeps nobody out, and waits for nobody.
    };

    /// How long the answer to one statement is waited for: longer than the server works at it.
    static constexpr std::chrono::milliseconds kPatience{40000};
    /// The server ends its own wait for a lock before its time for a statement ends.
    static constexpr std::chrono::milliseconds kLeastPatience{3000};

    /// Connects. A failure shows in the first statement or transaction; the next transaction tries
    /// it once more.
    PostgresConnection(const StorePlace& place, Access access,
                       std::chrono::milliseconds patience = kPatience);
    ~PostgresConnection() override;
    Q_DISABLE_COPY(PostgresConnection)

    /// The name of the schema for the schedule.
    QString schemaName() const;
    /// Whether there is such a schema on the server, and whether it says what it is.
    bool hasSchema() const;
    bool hasSeal() const;

    /// The schedule that is there now is the one to stay with: what would be written to another one
    /// that takes its place, new or restored from a copy, is refused from then on.
    void rememberSchedule() const;
    /// Its id, which it keeps when it is restored from a copy; empty while none is remembered.
    QString scheduleId() const { return m_scheduleId; }
    /// Whether the schedule that is remembered is still there. True as long as it cannot be asked.
    bool isSameSchedule() const;

    void listen(std::function<void()> hear) const override;
    bool isConnected() const override;

    /// Without preparing it, which the server does for some kinds of statements alone. A deadline
    /// is looked at before each statement; the server ends one that takes long by itself.
    QSqlQuery query(const QString& statement) const override;
    std::unique_ptr<StoreInserts> inserts(const QString& statement,
                                          StoreInserts* before = nullptr) const override;
    std::unique_ptr<StoreRows> rows(const QString& path, const char* sql) const override;
    qint64 applicationId() const override;
    /// Asked once. Whoever sets up asks each time, as others may do the same meanwhile.
    int schemaVersion() const override;
    void seal(qint64 applicationId, int schemaVersion) const override;
    /// Another one for a schedule that was set up anew, or restored from a copy.
    QString identity() const override { return readSeal().identity; }
    StoreElements elements() const override;
    /// On a connection of its own, in a place of the server's that goes with it.
    StoreElements elementsMadeBy(const QStringList& statements) const override;
    /// The server checks its pages itself, as it reads them.
    void expectSound(const QString& path) const override;

protected:
    QString worded(const QString& statement) const override;
    /// Statements are read while others are run.
    bool readsForwardOnly() const override { return false; }
    void beginAsking() const override;
    /// Until a transaction is left the wait goes on, for what the driver asks when a query goes.
    void endAsking() const override;

private:
    /// What has become of a transaction of which no answer came.
    enum class Fate { Committed, Undone, Unknown };

    /// What a schema says of itself.
    struct Seal
    {
        int version = 0;
        QString id;       ///< No other schedule has it.
        QString identity; ///< Nor has the same one this, when it was restored.
    };

    /// Runs a statement that is in the words of this engine already.
    QSqlQuery sent(const QString& words) const;
    void expectOpen() const override;
    /// The transaction that it happens in is undone.
    StoreError errorOf(const QSqlError& error) const override;
    void setDeadline(StoreDeadline* deadline) const override;
    void begin(StorePurpose purpose) const override;
    void commit() const override;
    void rollBack() const override;
    void leave() const override;

    bool isAlive() const;
    /// Throws StoreError where the time of a deadline has run out.
    void expectTime() const;
    void connect() const;
    /// Has the server tell of changes on a connection that has just been made; closes it where it
    /// refuses.
    void subscribe() const;
    /// Begins, on another connection where the former has gone.
    void beginAlive(StorePurpose purpose) const;
    /// Throws where the seal tells another version than it did, since whoever set the schedule up
    /// meanwhile did so for other programs, or where another schedule has taken the place of the
    /// one that is remembered. The transaction is undone then.
    void expectSameSchedule() const;
    Seal readSeal() const;
    StoreError otherVersion(int found) const;
    /// Connects once more, to a schema of the version that was found before.
    void reconnect() const;
    void beginOnce(StorePurpose purpose) const;
    /// Part of a change: by this it is known to be done, where the answer is lost.
    QString leaveToken() const;
    Fate fateOf(const QString& token) const;
    /// Those that a file has no need of.
    void makeOwnTables() const;
    StoreElements elementsIn(const QString& schemaId) const;

    StorePlace m_place;
    Access m_access;
    std::chrono::milliseconds m_longestWait;
    std::unique_ptr<PostgresPatience> m_patience;
    mutable int m_version = kNotAsked; ///< That the seal told, when it was first asked.
    mutable QString m_identity;        ///< Of the schedule to stay with; empty for any.
    mutable QString m_scheduleId;
    mutable QSqlError m_failure; ///< Why a connection that had been made was given up.

    /// Closed. Queries that have not gone yet stay on it, while the next one is made in a thread.
    mutable QSqlDatabase m_former;
    mutable bool m_isGivenUp = false; ///< Nobody answered the last time that one was made.
    mutable bool m_isUntold = false;  ///< That the first one could not be made.
    mutable bool m_isInUse = false;   ///< From the begin of a transaction until it is left.
    mutable bool m_isInTransaction = false;
    mutable bool m_isWriting = false;
    mutable StoreDeadline* m_deadline = nullptr;
    mutable std::function<void()> m_hear; ///< Empty while nobody listens.
    mutable QMetaObject::Connection m_hearing;

    static constexpr int kNotAsked = -1;
};

} // namespace trel::mediadispatch
