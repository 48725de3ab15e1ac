#include "deck/PlayedPosition.h"

#include <algorithm>

namespace trel::player {

namespace {

constexpr double kLongestGuess = 250.0;

double millisecondsBetween(PlayedPosition::Moment from, PlayedPosition::Moment to)
{
    return std::chrono::duration<double, std::milli>(to - from).count();
}

} // namespace

void PlayedPosition::reached(double position, Moment moment)
{
    m_position = position;
    m_since = moment;
}

void PlayedPosition::run(Moment moment)
{
    keep(moment);
    m_runs = true;
}

void PlayedPosition::stand(Moment moment)
{
    keep(moment);
    m_runs = false;
}

void PlayedPosition::setSpeed(double speed, Moment moment)
{
    keep(moment);
    m_speed = speed;
}

std::optional<double> PlayedPosition::at(Moment moment) const
{
    if (!m_position || !m_runs) {
        return m_position;
    }
    const double since = std::max(millisecondsBetween(m_since, moment), 0.0);
    const double farthest = std::max(*m_position + kLongestGuess, m_readUntil);
    return std::min(*m_position + since * m_speed, farthest);
}

void PlayedPosition::keep(Moment moment)
{
    m_position = at(moment);
    m_since = moment;
}

} // namespace trel::player
