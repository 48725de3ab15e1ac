#include "TimerDescriptor.h"

#ifdef Q_OS_LINUX

#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr qint64 kFarAway = std::numeric_limits<qint64>::max();
/// An alarm at zero would be none.
constexpr qint64 kLongAgo = 1;

itimerspec timerValue(qint64 moment)
{
    constexpr qint64 kThousand = 1000;
    constexpr qint64 kLastSecond = std::numeric_limits<time_t>::max();
    moment = std::max(moment, kLongAgo);
    itimerspec value = {};
    value.it_value.tv_sec = static_cast<time_t>(std::min(moment / kThousand, kLastSecond));
    value.it_value.tv_nsec = static_cast<long>(moment % kThousand * kThousand * kThousand);
    return value;
}

} // namespace

std::unique_ptr<ClockAlarm> TimerDescriptor::open(std::function<void()> ring,
                                                  const TimerCalls& calls)
{
    const int descriptor = calls.create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC);
    if (descriptor < 0) {
        return nullptr;
    }
    std::unique_ptr<TimerDescriptor> alarm(new TimerDescriptor(descriptor, std::move(ring), calls));
    // Only an armed timer takes note of the clock being set. And some systems have the timer, but
    // refuse to watch the clock.
    return alarm->arm(kFarAway) ? std::move(alarm) : nullptr;
}

TimerDescriptor::TimerDescriptor(int descriptor, std::function<void()> ring,
                                 const TimerCalls& calls)
    : m_descriptor(descriptor)
    , m_ring(std::move(ring))
    , m_calls(calls)
    , m_notifier(descriptor, QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { wake(); });
}

TimerDescriptor::~TimerDescriptor()
{
    m_notifier.setEnabled(false);
    close(m_descriptor);
}

void TimerDescriptor::set(qint64 moment)
{
    // Refused where the clock was set since it was last armed: the caller may have looked at it
    // before.
    if (!arm(moment)) {
        arm(kLongAgo);
    }
}

bool TimerDescriptor::arm(qint64 moment)
{
    const itimerspec value = timerValue(moment);
    return m_calls.settime(m_descriptor, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &value,
                           nullptr) == 0;
}

void TimerDescriptor::wake()
{
    quint64 expirations = 0;
    const bool isSpurious = m_calls.read(m_descriptor, &expirations, sizeof expirations) < 0 &&
                            (errno == EAGAIN || errno == EINTR);
    // Any other failure means that the clock was set.
    if (isSpurious) {
        return;
    }
    const std::function<void()> ring = m_ring;
    ring();
}

} // namespace trel::mediadispatch

#endif
