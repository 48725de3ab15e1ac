#include "StoreDeadline.h"

#include "StoreConnection.h"
#include "StoreRefusals.h"

#include <utility>

namespace trel::mediadispatch {

StoreDeadline::StoreDeadline(const StoreConnection& connection, std::chrono::milliseconds time,
                             std::function<bool()> isNeedless)
    : m_connection(connection)
    , m_time(time)
    , m_isNeedless(std::move(isNeedless))
{
    m_timer.start();
    m_connection.setDeadline(this);
}

StoreDeadline::~StoreDeadline()
{
    m_connection.setDeadline(nullptr);
}

bool StoreDeadline::hasPassed() const
{
    return m_timer.hasExpired(m_time.count()) || (m_isNeedless && m_isNeedless());
}

void StoreDeadline::expectTime(const QString& path) const
{
    if (hasPassed()) {
        throw StoreError{refusal(StoreProblem::Other, path, {FaultCode::ReadTooSlow, {}})};
    }
}

} // namespace trel::mediadispatch
