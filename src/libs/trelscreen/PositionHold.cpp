#include "PositionHold.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace trel::screen {

namespace {

constexpr std::size_t kReadings = 4;
constexpr qint64 kLongestLead = 2000;
/// So many seeks follow each other at once; the pauses after them double, up to the longest.
constexpr int kSeeksAtOnce = 3;
constexpr qint64 kFirstPause = 1000;
constexpr int kDoublings = 4;

qint64 pauseAfter(int seeks)
{
    return seeks < kSeeksAtOnce ? 0 : kFirstPause << std::min(seeks - kSeeksAtOnce, kDoublings);
}

} // namespace

PositionHold::PositionHold(std::optional<qint64> frame)
    : m_tolerance(
          static_cast<double>(std::clamp(frame.value_or(kTolerance), kTolerance, kMostTolerance)))
{}

PositionHold::Step PositionHold::step(qint64 wanted, std::optional<qint64> position, qint64 moment)
{
    if (!position) {
        return {};
    }
    const qint64 ahead = *position - wanted;
    if (std::exchange(m_isSeeking, false)) {
        m_seekLead = std::clamp<qint64>(m_seekLead - ahead, 0, kLongestLead);
    }
    if (std::abs(ahead) > kTooFar) {
        return seek(wanted, ahead, moment);
    }
    m_seeks = 0;
    read(static_cast<double>(ahead), moment);
    const double least = *std::max_element(m_readings.begin(), m_readings.end());
    Step step;
    step.ahead = std::llround(least);
    const bool isCorrecting = m_speed != 1.0;
    const bool isPast = isCorrecting && (least > 0) != (m_speed < 1.0);
    double speed = m_speed;
    if (std::abs(least) > m_tolerance) {
        speed = least > 0 ? 1.0 - kBreath : 1.0 + kBreath;
    } else if (std::abs(least) <= m_tolerance / 4.0 || isPast) {
        speed = 1.0;
    }
    if (speed != m_speed) {
        m_speed = speed;
        step.speed = speed;
    }
    return step;
}

void PositionHold::read(double ahead, qint64 moment)
{
    if (m_readAt) {
        const double gained = (m_speed - 1.0) * static_cast<double>(moment - *m_readAt);
        for (double& reading : m_readings) {
            reading += gained;
        }
    }
    m_readAt = moment;
    m_readings.push_back(ahead);
    if (m_readings.size() > kReadings) {
        m_readings.pop_front();
    }
}

PositionHold::Step PositionHold::seek(qint64 wanted, qint64 ahead, qint64 moment)
{
    Step step;
    step.ahead = ahead;
    if (m_seeks >= kSeeksAtOnce && moment < m_nextSeekAt) {
        return step;
    }
    m_nextSeekAt = moment + pauseAfter(++m_seeks);
    step.seek = wanted + m_seekLead;
    if (m_speed != 1.0) {
        step.speed = 1.0;
        m_speed = 1.0;
    }
    m_readings.clear();
    m_readAt.reset();
    m_isSeeking = true;
    return step;
}

} // namespace trel::screen
