#pragma once

#include "clock/ClockAlarm.h"

#include <QObject>

#include <functional>
#include <optional>

class TestClock;

/// The alarm of a TestClock. Rings from inside the calls that move the clock, or from the event
/// loop when it is set to a moment that has passed.
class TestAlarm : public trel::mediadispatch::ClockAlarm
{
public:
    TestAlarm(const TestClock& clock, std::function<void()> ring);
    ~TestAlarm() override;

    void set(qint64 moment) override;

    /// Empty while it is not to ring.
    std::optional<qint64> moment() const { return m_moment; }
    void ring();
    void leaveClock() { m_clock = nullptr; }

private:
    const TestClock* m_clock;
    std::function<void()> m_ring;
    std::optional<qint64> m_moment;
    QObject m_context;
};
