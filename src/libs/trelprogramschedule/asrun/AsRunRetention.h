#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QString>

namespace trel::mediadispatch {

class StoreConnection;

/// Takes records out because of their age. Within transactions of the caller.
class AsRunRetention
{
public:
    AsRunRetention(const StoreConnection& connection, const QString& path)
        : m_connection(connection)
        , m_path(path)
    {}

    /// Removes the first records of a screen, so many at most, that were over before the moment and
    /// are followed by no older one. Returns how many.
    qint64 removeBefore(qint64 screenId, Instant before, qint64 most) const;

private:
    qint64 lastToRemove(qint64 screenId, Instant before, qint64 most) const;
    void moveAnchor(qint64 screenId, qint64 number) const;
    void removeSchedules() const;

    const StoreConnection& m_connection;
    QString m_path;
};

} // namespace trel::mediadispatch
