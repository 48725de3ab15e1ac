#include "support/TestAlarm.h"

#include "support/TestClock.h"

#include <QTimer>

#include <algorithm>
#include <utility>

TestAlarm::TestAlarm(const TestClock& clock, std::function<void()> ring)
    : m_clock(&clock)
    , m_ring(std::move(ring))
{
    clock.m_alarms.push_back(this);
}

TestAlarm::~TestAlarm()
{
    if (m_clock) {
        auto& alarms = m_clock->m_alarms;
        alarms.erase(std::find(alarms.begin(), alarms.end(), this));
    }
}

void TestAlarm::set(qint64 moment)
{
    if (!m_clock) {
        return;
    }
    m_moment = moment;
    if (moment <= m_clock->msecsSinceEpoch()) {
        QTimer::singleShot(0, &m_context, [this] {
            if (m_clock && m_moment && *m_moment <= m_clock->msecsSinceEpoch()) {
                ring();
            }
        });
    }
}

void TestAlarm::ring()
{
    m_moment.reset();
    const std::function<void()> ring = m_ring;
    ring();
}
