#pragma once

#include "ClockAlarm.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <optional>

#ifdef Q_OS_LINUX
#include <sys/timerfd.h>
#include <unistd.h>
#endif

namespace trel::mediadispatch {

#ifdef Q_OS_LINUX

/// The calls of the system behind TimerDescriptor.
struct TimerCalls
{
    int (*create)(int clock, int flags) = &timerfd_create;
    int (*settime)(int descriptor, int flags, const itimerspec* value,
                   itimerspec* former) = &timerfd_settime;
    ssize_t (*read)(int descriptor, void* buffer, size_t size) = &::read;
};

/// An alarm in the system's own timer, which goes by the real time of day: it sleeps through to its
/// moment, also where that is days away, and the system wakes it when the clock is set or the
/// machine has slept.
class TimerDescriptor : public ClockAlarm
{
public:
    /// Nothing where the system has none to give.
    static std::unique_ptr<ClockAlarm> open(std::function<void()> ring,
                                            const TimerCalls& calls = {});
    ~TimerDescriptor() override;

    void set(qint64 moment) override;

private:
    TimerDescriptor(int descriptor, std::function<void()> ring, const TimerCalls& calls);

    bool arm(qint64 moment);
    void wake();

    int m_descriptor;
    std::function<void()> m_ring;
    TimerCalls m_calls;
    QSocketNotifier m_notifier;
};

#else

class TimerDescriptor
{
public:
    static std::unique_ptr<ClockAlarm> open(const std::function<void()>&) { return nullptr; }
};

#endif

} // namespace trel::mediadispatch
