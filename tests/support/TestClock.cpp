#include "support/TestClock.h"

#include "support/TestAlarm.h"

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

TestClock::TestClock(const QDateTime& now)
    : m_now(now)
    , m_former(install(this))
{}

TestClock::~TestClock()
{
    for (TestAlarm* alarm : m_alarms) {
        alarm->leaveClock();
    }
    install(m_former);
}

qint64 TestClock::elapsed(const QElapsedTimer&) const
{
    return m_elapsed;
}

std::unique_ptr<ClockAlarm> TestClock::makeAlarm(std::function<void()> ring) const
{
    return std::make_unique<TestAlarm>(*this, std::move(ring));
}

void TestClock::set(const QDateTime& now)
{
    m_now = now;
    ring(true);
}

void TestClock::advance(qint64 msecs)
{
    const qint64 end = msecsSinceEpoch() + msecs;
    while (msecsSinceEpoch() < end) {
        const qint64 step = nextMoment(end) - msecsSinceEpoch();
        m_now = m_now.addMSecs(step);
        m_elapsed += step;
        ring(false);
    }
}

qint64 TestClock::nextMoment(qint64 limit) const
{
    for (const TestAlarm* alarm : m_alarms) {
        // One that has passed already waits for the event loop.
        if (alarm->moment() && *alarm->moment() > msecsSinceEpoch()) {
            limit = std::min(limit, *alarm->moment());
        }
    }
    return limit;
}

void TestClock::ring(bool all)
{
    const qint64 now = msecsSinceEpoch();
    const std::vector<TestAlarm*> alarms = m_alarms;
    for (TestAlarm* alarm : alarms) {
        // One that has rung may have done away with another.
        const bool isThere = std::find(m_alarms.begin(), m_alarms.end(), alarm) != m_alarms.end();
        if (isThere && alarm->moment() && (all || *alarm->moment() <= now)) {
            alarm->ring();
        }
    }
}
