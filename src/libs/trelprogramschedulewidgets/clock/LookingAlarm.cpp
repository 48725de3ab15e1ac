#include "LookingAlarm.h"

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr qint64 kLook = 1000;
/// More than two readings in a row are ever apart; less than anybody would notice.
constexpr qint64 kLeap = 250;

} // namespace

LookingAlarm::LookingAlarm(std::function<qint64()> now, std::function<void()> ring)
    : m_now(std::move(now))
    , m_ring(std::move(ring))
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
}

void LookingAlarm::set(qint64 moment)
{
    m_moment = moment;
    m_setAt = m_now();
    m_sinceSet.start();
    sleep(m_setAt);
}

void LookingAlarm::sleep(qint64 now)
{
    const qint64 left = m_moment <= now ? 0 : std::min(m_moment - now, kLook);
    m_timer.start(static_cast<int>(left));
}

void LookingAlarm::look()
{
    const qint64 now = m_now();
    if (now < m_moment && !hasLeapt(now)) {
        sleep(now);
        return;
    }
    const std::function<void()> ring = m_ring;
    ring();
}

bool LookingAlarm::hasLeapt(qint64 now) const
{
    return std::abs(now - m_setAt - m_sinceSet.elapsed()) > kLeap;
}

} // namespace trel::mediadispatch
