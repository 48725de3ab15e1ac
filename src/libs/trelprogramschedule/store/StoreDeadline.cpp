#include "StoreDeadline.h"

#include "StoreConnection.h"

namespace trel::mediadispatch {

StoreDeadline::StoreDeadline(const StoreConnection& connection, std::chrono::milliseconds time)
    : m_connection(connection)
    , m_time(time)
{
    m_timer.start();
    m_connection.setDeadline(this);
}

StoreDeadline::~StoreDeadline()
{
    m_connection.setDeadline(nullptr);
}

} // namespace trel::mediadispatch
