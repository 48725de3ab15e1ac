#pragma once

#include "StoreInserts.h"

#include <QSqlQuery>
#include <QString>

namespace trel::mediadispatch {

class StoreConnection;

/// Each row by itself, with a statement that is prepared once: for engines that are in the process.
class StoreSingleInserts final : public StoreInserts
{
public:
    StoreSingleInserts(const StoreConnection& connection, const QString& statement);

    void put(Row row) override;
    void finish() override {}

private:
    const StoreConnection& m_connection;
    QSqlQuery m_query;
};

} // namespace trel::mediadispatch
