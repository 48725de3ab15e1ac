#pragma once

#include "clock/Clock.h"

/// A clock that shows another time than the machine's, and goes on as fast. In force for as long as
/// it lives.
class RunningClock : public trel::mediadispatch::Clock
{
public:
    explicit RunningClock(const QDateTime& now);
    ~RunningClock() override;

    QDateTime now() const override;
    QTimeZone zone() const override { return m_zone; }
    std::unique_ptr<trel::mediadispatch::ClockAlarm>
    makeAlarm(std::function<void()> ring) const override;

private:
    const QTimeZone m_zone;
    const qint64 m_ahead; ///< Milliseconds, of the machine's.
    const Clock* m_former;
};
