#pragma once

#include "service/ScheduleRecords.h"

#include <algorithm>
#include <optional>

namespace trel::screen {

/// Finds the earliest of the moments at which something is to be done. Those that have passed do
/// not count.
class WakeUp
{
public:
    using Instant = mediadispatch::Instant;

    /// As seen from now, which is so many milliseconds on a clock that never leaps. At the latest
    /// when nothing else comes before.
    WakeUp(Instant now, qint64 steady, Instant latest)
        : m_now(now)
        , m_steady(steady)
        , m_earliest(latest)
    {}

    void at(Instant moment)
    {
        if (moment > m_now) {
            m_earliest = std::min(m_earliest, moment);
        }
    }
    void atSteady(std::optional<qint64> moment)
    {
        if (moment) {
            at(m_now + *moment - m_steady);
        }
    }

    Instant earliest() const { return m_earliest; }

private:
    const Instant m_now;
    const qint64 m_steady;
    Instant m_earliest;
};

} // namespace trel::screen
