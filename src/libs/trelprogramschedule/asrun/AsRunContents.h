#pragma once

#include <QByteArray>
#include <QString>

namespace trel::mediadispatch {

class StoreConnection;

/// The schedules that records name, compressed and in parts, as no value of a database is larger
/// than kLargestStoredValue. All within transactions of the caller.
class AsRunContents
{
public:
    AsRunContents(const StoreConnection& connection, const QString& path)
        : m_connection(connection)
        , m_path(path)
    {}

    /// Writes contents unless they are there.
    void put(const QByteArray& contents) const;
    /// Empty where they are not there whole.
    QByteArray read(const QByteArray& hash) const;

private:
    const StoreConnection& m_connection;
    QString m_path;
};

} // namespace trel::mediadispatch
