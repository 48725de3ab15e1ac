#include "StoreSingleInserts.h"

#include "StoreConnection.h"

namespace trel::mediadispatch {

StoreSingleInserts::StoreSingleInserts(const StoreConnection& connection, const QString& statement)
    : m_connection(connection)
    , m_query(connection.prepare(statement))
{}

void StoreSingleInserts::put(Row row)
{
    int place = 0;
    for (const QVariant& value : row) {
        m_query.bindValue(place++, value);
    }
    m_connection.exec(m_query);
}

} // namespace trel::mediadispatch
