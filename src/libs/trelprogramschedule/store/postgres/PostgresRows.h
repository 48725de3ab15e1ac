#pragma once

#include "store/StoreConnection.h"
#include "store/StoreRows.h"

#include <QSqlQuery>

namespace trel::mediadispatch {

/// A statement through the toolkit's driver. It must be gone before its connection.
class PostgresRows final : public StoreRows
{
public:
    PostgresRows(const StoreConnection& connection, const QString& statement);

    void bind(int place, qint64 value) override;
    void bindBytes(int place, const QByteArray& bytes) override;
    void bindText(int place, const QByteArray& utf8) override;
    bool next() override;
    void reset() override;
    qint64 number(int column) const override;
    QByteArray view(int column) const override;

private:
    const StoreConnection& m_connection;
    QSqlQuery m_query;
    bool m_isRunning = false;
};

} // namespace trel::mediadispatch
