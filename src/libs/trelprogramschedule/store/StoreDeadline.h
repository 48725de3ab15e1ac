#pragma once

#include <QElapsedTimer>
#include <QtGlobal>

#include <chrono>

namespace trel::mediadispatch {

class StoreConnection;

/// While it lives, the statements of a connection have this much time, all together; the one that
/// is at work when it runs out ends with an error. One at a time on a connection.
class StoreDeadline
{
public:
    StoreDeadline(const StoreConnection& connection, std::chrono::milliseconds time);
    ~StoreDeadline();
    Q_DISABLE_COPY(StoreDeadline)

    bool hasPassed() const { return m_timer.hasExpired(m_time.count()); }

private:
    const StoreConnection& m_connection;
    std::chrono::milliseconds m_time;
    QElapsedTimer m_timer;
};

} // namespace trel::mediadispatch
