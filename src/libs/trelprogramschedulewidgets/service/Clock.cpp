#include "service/Clock.h"

#include <utility>

namespace trel::mediadispatch {

namespace {

class MachineClock : public Clock
{};

const Clock*& clockInForce()
{
    static const MachineClock machine;
    static const Clock* inForce = &machine;
    return inForce;
}

} // namespace

const Clock& Clock::current()
{
    return *clockInForce();
}

QDateTime Clock::now() const
{
    return QDateTime::currentDateTime();
}

qint64 Clock::elapsed(const QElapsedTimer& timer) const
{
    return timer.elapsed();
}

const Clock* Clock::install(const Clock* clock)
{
    return std::exchange(clockInForce(), clock);
}

} // namespace trel::mediadispatch
