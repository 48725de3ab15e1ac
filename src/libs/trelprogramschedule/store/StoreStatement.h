#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <memory>

namespace trel::mediadispatch {

class StoreConnection;
class StoreRows;

/// A statement that is prepared once and run often, as quickly as the engine can: for rows by the
/// million. It must be gone before its connection. Members throw StoreError where the database
/// refuses.
class StoreStatement
{
public:
    StoreStatement(const StoreConnection& connection, const QString& path, const char* sql);
    ~StoreStatement();
    Q_DISABLE_COPY(StoreStatement)

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
    std::unique_ptr<StoreRows> m_rows;
};

} // namespace trel::mediadispatch
