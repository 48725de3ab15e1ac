#include "RunningClock.h"

#include <limits>
#include <utility>

using trel::mediadispatch::ClockAlarm;

namespace {

/// The machine's alarm, set by another time.
class AheadAlarm : public ClockAlarm
{
public:
    AheadAlarm(std::unique_ptr<ClockAlarm> alarm, qint64 ahead)
        : m_alarm(std::move(alarm))
        , m_ahead(ahead)
    {}

    void set(qint64 moment) override
    {
        const bool isNever = moment == std::numeric_limits<qint64>::max();
        m_alarm->set(isNever ? moment : moment - m_ahead);
    }

private:
    std::unique_ptr<ClockAlarm> m_alarm;
    const qint64 m_ahead;
};

} // namespace

RunningClock::RunningClock(const QDateTime& now)
    : m_zone(now.timeZone())
    , m_ahead(now.toMSecsSinceEpoch() - QDateTime::currentMSecsSinceEpoch())
    , m_former(install(this))
{}

RunningClock::~RunningClock()
{
    install(m_former);
}

QDateTime RunningClock::now() const
{
    return QDateTime::fromMSecsSinceEpoch(QDateTime::currentMSecsSinceEpoch() + m_ahead, m_zone);
}

std::unique_ptr<ClockAlarm> RunningClock::makeAlarm(std::function<void()> ring) const
{
    return std::make_unique<AheadAlarm>(Clock::makeAlarm(std::move(ring)), m_ahead);
}
