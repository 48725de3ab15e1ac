#pragma once

#include "StoreResult.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QSqlError;

namespace trel::mediadispatch {

class StoreDeadline;
class StoreElements;
class StoreInserts;
class StoreRows;

/// What the members of StoreConnection throw; it never leaves the class that uses them.
struct StoreError
{
    StoreResult result;
    int code =
        0; ///< The database's own, with all that it tells; 0 where it is not an error of its.
};

/// What a transaction is for.
enum class StorePurpose {
    Read,  ///< One state of the store for all queries.
    Write, ///< No other connection writes until the end.
};

/// One connection to a database, with what is the same in all engines; an engine derives from it
/// what is its own. Open from construction to destruction. All queries on it must have gone before
/// it goes. Members throw StoreError where the database refuses.
class StoreConnection
{
public:
    virtual ~StoreConnection();
    Q_DISABLE_COPY(StoreConnection)

    void run(const QString& statement) const;
    /// The first value of the first row; Damaged when there is no row.
    QVariant value(const QString& statement) const;
    /// A query that is ready to be run, as often as it takes.
    QSqlQuery prepare(const QString& statement) const;
    /// A query that has been run.
    virtual QSqlQuery query(const QString& statement) const;
    /// Runs a prepared query with the values that are bound to it.
    void exec(QSqlQuery& query) const;
    /// Goes to the next row; false behind the last.
    bool next(QSqlQuery& query) const;

    /// From now on the function is called soon after any connection has committed a change of the
    /// store, from the event loop of the thread that made this connection, and once for several
    /// changes or more often. Where the connection has gone, all that is told until a transaction
    /// has made another one is lost. To be called once. A file tells nothing in this way.
    virtual void listen(std::function<void()> hear) const;
    /// Whether nothing is known of a loss of the connection, as far as that shows without asking.
    virtual bool isConnected() const { return true; }

    /// What puts rows into a table, by a statement of the form INSERT INTO table (columns) VALUES
    /// (?, ...). Where they refer to rows of others, which outlive them, those are put in before.
    virtual std::unique_ptr<StoreInserts> inserts(const QString& statement,
                                                  StoreInserts* before = nullptr) const = 0;
    /// What StoreStatement works with. The path is for messages.
    virtual std::unique_ptr<StoreRows> rows(const QString& path, const char* sql) const = 0;

    /// The number by which a database says whose it is.
    virtual qint64 applicationId() const = 0;
    /// Which schema the database says that it has; 0 for a new one.
    virtual int schemaVersion() const = 0;
    /// Writes both of these.
    virtual void seal(qint64 applicationId, int schemaVersion) const = 0;
    /// By what the database says which schedule it holds; empty where its file says that.
    virtual QString identity() const { return {}; }
    /// What the database defines.
    virtual StoreElements elements() const = 0;
    /// What an engine of this kind makes of statements in an empty database. An engine writes
    /// definitions in its own way, so that a fresh one is asked.
    virtual StoreElements elementsMadeBy(const QStringList& statements) const = 0;
    /// Has the database check itself, and throws what it finds.
    virtual void expectSound(const QString& path) const = 0;

protected:
    StoreConnection(QString path, const QSqlDatabase& database);

    const QString& path() const { return m_path; }
    QSqlDatabase& database() { return m_database; }
    const QSqlDatabase& database() const { return m_database; }
    /// Another one in the place of this one, which is not closed by that.
    void replaceDatabase(const QSqlDatabase& database) const { m_database = database; }

    /// Throws where nothing can be asked of the database.
    virtual void expectOpen() const = 0;
    /// Stand around each time that something is asked of the database.
    virtual void beginAsking() const {}
    virtual void endAsking() const {}
    /// A statement that was written for all engines, as this one takes it.
    virtual QString worded(const QString& statement) const;
    /// Whether a query keeps none of its rows. Where one is read while another is run, that must
    /// not hurt the first.
    virtual bool readsForwardOnly() const { return true; }
    /// Throws what has become of a query.
    [[noreturn]] void refuse(const QSqlQuery& query) const;

private:
    friend class StoreDeadline;
    friend class StoreTransaction;

    /// What an error of the database amounts to.
    virtual StoreError errorOf(const QSqlError& error) const = 0;
    /// Holds its statements to a deadline from now on; to none for null.
    virtual void setDeadline(StoreDeadline* deadline) const = 0;
    virtual void begin(StorePurpose purpose) const = 0;
    /// Where it throws StoreError, the transaction has been undone.
    virtual void commit() const = 0;
    /// Throws nothing, as it is called on the way out.
    virtual void rollBack() const = 0;
    /// The transaction has ended, and so have the queries that were made within it.
    virtual void leave() const {}

    QString m_path;
    mutable QSqlDatabase m_database;
};

/// A transaction that is undone unless it is committed.
class StoreTransaction
{
public:
    using Purpose = StorePurpose;

    StoreTransaction(const StoreConnection& connection, Purpose purpose);
    ~StoreTransaction();
    Q_DISABLE_COPY(StoreTransaction)

    /// Where this throws, nothing is changed, and nothing of it can come back when the database is
    /// read again, after a power cut either; the one exception is Unclear.
    void commit();

private:
    const StoreConnection& m_connection;
    bool m_hasEnded = false;
};

} // namespace trel::mediadispatch
