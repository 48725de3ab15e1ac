#include "support/TestClock.h"

TestClock::TestClock(const QDateTime& now)
    : m_now(now)
    , m_former(install(this))
{}

TestClock::~TestClock()
{
    install(m_former);
}

qint64 TestClock::elapsed(const QElapsedTimer&) const
{
    return m_elapsed;
}

void TestClock::advance(qint64 msecs)
{
    m_now = m_now.addMSecs(msecs);
    m_elapsed += msecs;
}
