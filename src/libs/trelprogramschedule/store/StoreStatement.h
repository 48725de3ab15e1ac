#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace trel::mediadispatch {

class StoreConnection;

/// A statement that is prepared once and run often, through the database's own interface: for rows
/// by the million, where a value that goes through a QVariant costs more than reading it. It must
/// be gone before its connection. Members throw StoreError where the database refuses.
class StoreStatement
{
public:
    StoreStatement(const StoreConnection& connection, const QString& path, const char* sql);

    /// Binds a value to a place, from 1; it stays bound from one run to the next.
    void bind(int place, qint64 value);
    /// Copies the bytes. A null array is bound as no bytes, not as NULL.
    void bindBytes(int place, const QByteArray& bytes);
    /// Copies the text.
    void bindText(int place, const QString& text);

    /// Goes to the next row; false behind the last, where the statement is ready to be run again.
    bool next();
    /// Runs a statement that gives no rows.
    void run();
    /// Ends a run before its last row.
    void reset();

    qint64 number(int column) const;
    /// Valid until the next call of next or reset.
    QByteArray view(int column) const;
    QByteArray bytes(int column) const;
    QString text(int column) const;

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
