#include "StoreStatement.h"

#include "StoreConnection.h"
#include "StoreRows.h"

namespace trel::mediadispatch {

StoreStatement::StoreStatement(const StoreConnection& connection, const QString& path,
                               const char* sql)
    : m_rows(connection.rows(path, sql))
{}

StoreStatement::~StoreStatement() = default;

void StoreStatement::bind(int place, qint64 value)
{
    m_rows->bind(place, value);
}

void StoreStatement::bindBytes(int place, const QByteArray& bytes)
{
    m_rows->bindBytes(place, bytes);
}

void StoreStatement::bindText(int place, const QString& text)
{
    m_rows->bindText(place, text.toUtf8());
}

bool StoreStatement::next()
{
    return m_rows->next();
}

void StoreStatement::run()
{
    while (next()) {
    }
}

void StoreStatement::reset()
{
    m_rows->reset();
}

qint64 StoreStatement::number(int column) const
{
    return m_rows->number(column);
}

QByteArray StoreStatement::view(int column) const
{
    return m_rows->view(column);
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

} // namespace trel::mediadispatch
