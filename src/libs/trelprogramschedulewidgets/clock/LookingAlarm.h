#pragma once

#include "ClockAlarm.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

namespace trel::mediadispatch {

/// An alarm that looks at its clock once a second, for systems that do not tell when the clock is
/// set. A leap shows by what the clock and the machine's running time disagree on.
class LookingAlarm : public ClockAlarm
{
public:
    /// now gives what the clock shows, in milliseconds since the epoch.
    LookingAlarm(std::function<qint64()> now, std::function<void()> ring);

    void set(qint64 moment) override;

private:
    void sleep(qint64 now);
    void look();
    bool hasLeapt(qint64 now) const;

    std::function<qint64()> m_now;
    std::function<void()> m_ring;
    qint64 m_moment = 0;
    qint64 m_setAt = 0; ///< What the clock showed when the alarm was set.
    QElapsedTimer m_sinceSet;
    QTimer m_timer;
};

} // namespace trel::mediadispatch
