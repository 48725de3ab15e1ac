#include "StoreConnection.h"

#include "StoreRefusals.h"

#include <QSqlError>
#include <QVariant>

#include <utility>

namespace trel::mediadispatch {

StoreConnection::StoreConnection(QString path, const QSqlDatabase& database)
    : m_path(std::move(path))
    , m_database(database)
{}

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
    expectOpen();
    QSqlQuery query(m_database);
    query.setForwardOnly(readsForwardOnly());
    beginAsking();
    const bool isDone = query.prepare(worded(statement));
    endAsking();
    if (!isDone) {
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
    beginAsking();
    const bool isDone = query.exec();
    endAsking();
    if (!isDone) {
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

void StoreConnection::listen(std::function<void()> hear) const
{
    Q_UNUSED(hear)
}

QString StoreConnection::worded(const QString& statement) const
{
    return statement;
}

void StoreConnection::refuse(const QSqlQuery& query) const
{
    throw errorOf(query.lastError());
}

StoreTransaction::StoreTransaction(const StoreConnection& connection, Purpose purpose)
    : m_connection(connection)
{
    m_connection.begin(purpose);
}

StoreTransaction::~StoreTransaction()
{
    if (!m_hasEnded) {
        m_connection.rollBack();
    }
    m_connection.leave();
}

void StoreTransaction::commit()
{
    try {
        m_connection.commit();
    } catch (const StoreError&) {
        m_hasEnded = true;
        throw;
    }
    m_hasEnded = true;
}

} // namespace trel::mediadispatch
