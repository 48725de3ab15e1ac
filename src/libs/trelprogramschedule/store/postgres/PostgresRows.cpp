#include "PostgresRows.h"

#include <QVariant>

namespace trel::mediadispatch {

PostgresRows::PostgresRows(const StoreConnection& connection, const QString& statement)
    : m_connection(connection)
    , m_query(connection.prepare(statement))
{}

void PostgresRows::bind(int place, qint64 value)
{
    m_query.bindValue(place - 1, value);
}

void PostgresRows::bindBytes(int place, const QByteArray& bytes)
{
    // A null array would be written as NULL.
    m_query.bindValue(place - 1, bytes.isNull() ? QByteArray("") : bytes);
}

void PostgresRows::bindText(int place, const QByteArray& utf8)
{
    bindBytes(place, utf8);
}

bool PostgresRows::next()
{
    if (!m_isRunning) {
        m_connection.exec(m_query);
        m_isRunning = true;
    }
    // A statement that gives no rows has nothing to go to.
    if (m_query.isSelect() && m_connection.next(m_query)) {
        return true;
    }
    reset();
    return false;
}

void PostgresRows::reset()
{
    m_query.finish();
    m_isRunning = false;
}

qint64 PostgresRows::number(int column) const
{
    return m_query.value(column).toLongLong();
}

QByteArray PostgresRows::view(int column) const
{
    return m_query.value(column).toByteArray();
}

} // namespace trel::mediadispatch
