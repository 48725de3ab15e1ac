#include "LookTimes.h"

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

LookTimes::Time part(LookTimes::Time whole, double share)
{
    return std::chrono::duration_cast<LookTimes::Time>(whole * share);
}

} // namespace

LookTimes::LookTimes(Random random)
    : m_random(std::move(random))
{}

LookTimes::Time LookTimes::around(Time pause)
{
    constexpr double least = 0.5;
    return part(pause, least + m_random());
}

void LookTimes::begin(Time now)
{
    m_due = now + part(kFirst, m_random());
    m_pause = kLeastPause;
}

void LookTimes::hear(Time now)
{
    m_due = std::min(m_due, now);
}

void LookTimes::lose(Time now)
{
    m_due = now + part(kSpread, m_random());
}

void LookTimes::look(Time now, bool isDone)
{
    if (isDone) {
        m_due = now + around(kDoubt);
        m_pause = kLeastPause;
        return;
    }
    m_due = now + around(m_pause);
    m_pause = std::min(2 * m_pause, kMostPause);
}

} // namespace trel::mediadispatch
