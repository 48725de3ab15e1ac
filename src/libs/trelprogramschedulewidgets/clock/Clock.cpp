#include "Clock.h"

#include "MachineAlarm.h"

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

QTimeZone Clock::zone() const
{
    return QTimeZone::systemTimeZone();
}

qint64 Clock::elapsed(const QElapsedTimer& timer) const
{
    return timer.elapsed();
}

std::unique_ptr<ClockAlarm> Clock::makeAlarm(std::function<void()> ring) const
{
    return std::make_unique<MachineAlarm>([this] { return msecsSinceEpoch(); }, std::move(ring));
}

const Clock* Clock::install(const Clock* clock)
{
    return std::exchange(clockInForce(), clock);
}

} // namespace trel::mediadispatch
