#pragma once

#include "store/StoreRows.h"

#include <QString>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace trel::mediadispatch {

/// A statement through the database's own interface, since a value that goes through a QVariant
/// costs more than reading it. It must be gone before its connection.
class SqliteRows final : public StoreRows
{
public:
    SqliteRows(sqlite3* database, QString path, const char* sql);
    ~SqliteRows() override;
    Q_DISABLE_COPY(SqliteRows)

    void bind(int place, qint64 value) override;
    void bindBytes(int place, const QByteArray& bytes) override;
    void bindText(int place, const QByteArray& utf8) override;
    bool next() override;
    void reset() override;
    qint64 number(int column) const override;
    QByteArray view(int column) const override;

private:
    struct Finalize
    {
        void operator()(sqlite3_stmt* statement) const;
    };

    [[noreturn]] void refuse(int code);
    void check(int code);

    QString m_path;
    sqlite3* m_database;
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

} // namespace trel::mediadispatch
