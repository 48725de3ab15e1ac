#pragma once

#include "clock/Clock.h"

#include <memory>
#include <vector>

class TestAlarm;

/// A clock that stands still until a test moves it. In force for as long as it lives. Its zone is
/// that of the moment it was last set to: the machine's, unless that moment names another.
class TestClock : public trel::mediadispatch::Clock
{
public:
    explicit TestClock(const QDateTime& now);
    ~TestClock() override;

    QDateTime now() const override { return m_now; }
    QTimeZone zone() const override { return m_now.timeZone(); }
    qint64 elapsed(const QElapsedTimer& timer) const override;
    std::unique_ptr<trel::mediadispatch::ClockAlarm>
    makeAlarm(std::function<void()> ring) const override;

    /// Sets the clock, forwards or backwards, or moves it to another zone: every alarm that waits
    /// rings, once, with the clock at the new moment.
    void set(const QDateTime& now);
    /// Lets time go by: every alarm on the way rings at its moment, with the clock at it.
    void advance(qint64 msecs);
    /// What every running QElapsedTimer is taken to show, in milliseconds; advance() adds to it.
    void setElapsed(qint64 msecs) { m_elapsed = msecs; }

private:
    friend class TestAlarm;
    /// The moment of the alarm that rings next; none at or before the limit is the limit.
    qint64 nextMoment(qint64 limit) const;
    void ring(bool all);

    QDateTime m_now;
    qint64 m_elapsed = 0;
    const Clock* m_former;
    mutable std::vector<TestAlarm*> m_alarms;
};
