#include "week/MinuteTimer.h"

#include "clock/Clock.h"

using namespace trel::mediadispatch;

namespace trel::desktop::week {

MinuteTimer::MinuteTimer(QObject* parent)
    : QObject(parent)
    , m_timer(this)
{
    m_timer.setSingleShot(true);
    // A coarse timer may fire early by a twentieth of its time, and so in the old minute.
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        start();
        emit minuteBegan();
    });
}

void MinuteTimer::start()
{
    m_timer.start(untilNextMinute());
}

void MinuteTimer::stop()
{
    m_timer.stop();
}

int MinuteTimer::untilNextMinute()
{
    const QTime time = Clock::current().timeOfDay();
    return 60000 - time.second() * 1000 - time.msec();
}

} // namespace trel::desktop::week
