#include "ScreenTally.h"

#include <algorithm>

namespace trel::screen {

namespace {

constexpr qint64 kExact = 1000;
constexpr std::size_t kDoublings = 32;
constexpr qint64 kPercent = 100;

std::size_t slotOf(qint64 lateness)
{
    auto slot = static_cast<std::size_t>(std::min(lateness, kExact));
    for (qint64 limit = 2 * kExact; lateness >= limit && slot < kExact + kDoublings - 1;
         limit *= 2) {
        ++slot;
    }
    return slot;
}

/// The largest lateness that a slot counts.
qint64 limitOf(std::size_t slot)
{
    return slot < kExact ? static_cast<qint64>(slot) : (2 * kExact << (slot - kExact)) - 1;
}

} // namespace

ScreenTally::ScreenTally()
    : m_lateness(kExact + kDoublings)
{}

void ScreenTally::note(const ScreenEvent& event)
{
    using Kind = ScreenEvent::Kind;
    switch (event.kind) {
    case Kind::Shown:
        if (event.isSwitch) {
            countLateness(std::max<qint64>(0, event.amount));
        }
        break;
    case Kind::Late:
        ++m_lates;
        break;
    case Kind::Fault:
        ++m_faults[event.fault.trouble];
        break;
    case Kind::CorrectedBySpeed:
        ++m_speedCorrections;
        break;
    case Kind::Sought:
        ++m_seeks;
        break;
    case Kind::ClockLeapt:
        ++m_leaps;
        break;
    case Kind::ScheduleTaken:
    case Kind::Left:
    case Kind::Recovered:
    case Kind::Due:
    case Kind::StoodIn:
        break;
    }
}

void ScreenTally::setOnTimeline(bool isOn, qint64 moment)
{
    if (isOn) {
        m_longestOff = longestOff(moment);
        m_offSince.reset();
    } else if (!m_offSince) {
        m_offSince = moment;
    }
}

void ScreenTally::countLateness(qint64 lateness)
{
    ++m_switches;
    ++m_lateness[slotOf(lateness)];
    m_worstLateness = std::max(m_worstLateness, lateness);
}

qint64 ScreenTally::lateness(int percent) const
{
    const qint64 wanted = (m_switches * percent + kPercent - 1) / kPercent;
    qint64 counted = 0;
    for (std::size_t slot = 0; slot < m_lateness.size(); ++slot) {
        counted += m_lateness[slot];
        if (counted >= wanted) {
            return std::min(limitOf(slot), m_worstLateness);
        }
    }
    return m_worstLateness;
}

qint64 ScreenTally::faults(DeckTrouble trouble) const
{
    const auto found = m_faults.find(trouble);
    return found == m_faults.end() ? 0 : found->second;
}

qint64 ScreenTally::faults() const
{
    qint64 sum = 0;
    for (const auto& [trouble, count] : m_faults) {
        sum += count;
    }
    return sum;
}

qint64 ScreenTally::longestOff(qint64 moment) const
{
    return m_offSince ? std::max(m_longestOff, moment - *m_offSince) : m_longestOff;
}

} // namespace trel::screen
