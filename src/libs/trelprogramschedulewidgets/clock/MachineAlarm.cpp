#include "MachineAlarm.h"

#include "LookingAlarm.h"
#include "TimerDescriptor.h"

#include <utility>

namespace trel::mediadispatch {

MachineAlarm::MachineAlarm(std::function<qint64()> now, std::function<void()> ring)
    : m_ring(std::move(ring))
    , m_zone([this] { ringOnce(); })
    , m_timer(TimerDescriptor::open([this] { ringOnce(); }))
{
    if (!m_timer) {
        m_timer = std::make_unique<LookingAlarm>(std::move(now), [this] { ringOnce(); });
    }
}

void MachineAlarm::set(qint64 moment)
{
    m_isSet = true;
    m_timer->set(moment);
}

void MachineAlarm::ringOnce()
{
    if (!std::exchange(m_isSet, false)) {
        return;
    }
    // The receiver may delete this alarm.
    const std::function<void()> ring = m_ring;
    ring();
}

} // namespace trel::mediadispatch
