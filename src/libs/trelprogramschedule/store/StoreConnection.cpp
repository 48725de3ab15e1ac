#include "StoreConnection.h"

#include "StoreMessages.h"

#include <QSqlError>
#include <QUrl>
#include <QVariant>

namespace trel::mediadispatch {

namespace {

/// How long a call waits for another program that holds the file, in milliseconds: longer than a
/// save of a large schedule takes, shorter than an operator's patience.
constexpr int kBusyTimeout = 2000;

QString nextConnectionName()
{
    static int number = 0;
    return QStringLiteral("trelprogramschedule-%1").arg(++number);
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
    }
    return address;
}

} // namespace

StoreConnection::StoreConnection(const QString& path, Access access)
    : m_path(path)
    , m_name(nextConnectionName())
    , m_database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name))
{
    m_database.setDatabaseName(fileAddress(path, access));
    QString options = QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(kBusyTimeout);
    if (access == Access::ReadOnly || access == Access::Untouched) {
        options += QLatin1String(";QSQLITE_OPEN_READONLY");
    }
    m_database.setConnectOptions(options);
    m_database.open(); // A failure shows in the first statement.
}

StoreConnection::~StoreConnection()
{
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

void StoreConnection::run(const QString& statement) const
{
    query(statement);
}

QVariant StoreConnection::value(const QString& statement) const
{
    QSqlQuery row = query(statement);
    if (!next(row)) {
        throw StoreError{refusal(StoreProblem::Damaged, m_path,
                                 QStringLiteral("a row that must be there is missing"))};
    }
    return row.value(0);
}

QSqlQuery StoreConnection::prepare(const QString& statement) const
{
    if (!m_database.isOpen()) {
        throw StoreError{refusal(m_database.lastError(), m_path)};
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
    throw StoreError{refusal(query.lastError(), m_path)};
}

void StoreConnection::setPatience(int milliseconds) const
{
    QSqlQuery(m_database).exec(QStringLiteral("PRAGMA busy_timeout = %1").arg(milliseconds));
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
    m_connection.run(purpose == Purpose::Write ? QStringLiteral("BEGIN IMMEDIATE")
                                               : QStringLiteral("BEGIN"));
}

StoreTransaction::~StoreTransaction()
{
    if (!m_committed) {
        // The database undoes a change by itself after some failures and then refuses this.
        QSqlQuery(m_connection.m_database).exec(QStringLiteral("ROLLBACK"));
    }
}

void StoreTransaction::commit()
{
    m_connection.run(QStringLiteral("COMMIT"));
    m_committed = true;
}

} // namespace trel::mediadispatch
