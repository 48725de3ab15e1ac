#pragma once

#include "ClockAlarm.h"
#include "ZoneWatch.h"

#include <functional>
#include <memory>

namespace trel::mediadispatch {

/// The alarm of the machine's clock. Sleeps in the system's own timer, which wakes it when the
/// clock is set; where there is none it looks at the clock once a second.
class MachineAlarm : public ClockAlarm
{
public:
    /// now gives what the clock shows, in milliseconds since the epoch; it is asked only where
    /// there is no timer of the system.
    MachineAlarm(std::function<qint64()> now, std::function<void()> ring);

    void set(qint64 moment) override;

private:
    void ringOnce();

    std::function<void()> m_ring;
    bool m_isSet = false;
    ZoneWatch m_zone;
    std::unique_ptr<ClockAlarm> m_timer;
};

} // namespace trel::mediadispatch
