#pragma once

#include "service/Clock.h"

/// A clock that stands still until a test moves it. In force for as long as it lives.
class TestClock : public trel::mediadispatch::Clock
{
public:
    explicit TestClock(const QDateTime& now);
    ~TestClock() override;

    QDateTime now() const override { return m_now; }
    qint64 elapsed(const QElapsedTimer& timer) const override;

    void set(const QDateTime& now) { m_now = now; }
    void advance(qint64 msecs);
    /// What every running QElapsedTimer is taken to show, in milliseconds; advance() adds to it.
    void setElapsed(qint64 msecs) { m_elapsed = msecs; }

private:
    QDateTime m_now;
    qint64 m_elapsed = 0;
    const Clock* m_former;
};
