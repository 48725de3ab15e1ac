#include "StoreDeadline.h"

#include "StoreConnection.h"

#include <sqlite3.h>

namespace trel::mediadispatch {

namespace {

/// Between two looks at the time, in steps of the database's machine: some tenths of a millisecond.
constexpr int kStepsBetweenLooks = 10000;

} // namespace

StoreDeadline::StoreDeadline(const StoreConnection& connection, std::chrono::milliseconds time)
    : m_connection(connection)
    , m_time(time)
{
    m_timer.start();
    if (sqlite3* const handle = m_connection.handle()) {
        sqlite3_progress_handler(handle, kStepsBetweenLooks, &StoreDeadline::hasPassed, this);
    }
}

StoreDeadline::~StoreDeadline()
{
    if (sqlite3* const handle = m_connection.handle()) {
        sqlite3_progress_handler(handle, 0, nullptr, nullptr);
    }
}

int StoreDeadline::hasPassed(void* deadline)
{
    const auto* const self = static_cast<const StoreDeadline*>(deadline);
    return self->m_timer.hasExpired(self->m_time.count()) ? 1 : 0;
}

} // namespace trel::mediadispatch
