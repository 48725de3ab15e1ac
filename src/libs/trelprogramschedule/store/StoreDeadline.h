#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QtGlobal>

#include <chrono>
#include <functional>

namespace trel::mediadispatch {

class StoreConnection;

/// While it lives, the statements of a connection have this much time, all together; the one that
/// is at work when it runs out ends with an error. So it does as soon as a function that is given
/// returns true, which is asked often. One at a time on a connection.
class StoreDeadline
{
public:
    StoreDeadline(const StoreConnection& connection, std::chrono::milliseconds time,
                  std::function<bool()> isNeedless = {});
    ~StoreDeadline();
    Q_DISABLE_COPY(StoreDeadline)

    bool hasPassed() const;
    /// For what takes time between statements: throws StoreError where one would end with an error.
    void expectTime(const QString& path) const;

private:
    const StoreConnection& m_connection;
    std::chrono::milliseconds m_time;
    std::function<bool()> m_isNeedless;
    QElapsedTimer m_timer;
};

} // namespace trel::mediadispatch
