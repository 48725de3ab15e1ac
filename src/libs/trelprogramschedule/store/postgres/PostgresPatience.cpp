#include "PostgresPatience.h"

#include <QSqlDriver>
#include <QVariant>

#include <cstring>
#include <new>
#include <system_error>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

/// The client library tells the socket of a connection. It is there once the driver is, which needs
/// it, and nobody who never connects to a server has to have it.
int socketOf(const QSqlDriver& driver)
{
    using Socket = int (*)(const void* connection);
    const QVariant handle = driver.handle();
    void* const library = ::dlopen("libpq.so.5", RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr || !handle.isValid() || std::strcmp(handle.typeName(), "PGconn*") != 0) {
        return -1;
    }
    const auto socket = reinterpret_cast<Socket>(::dlsym(library, "PQsocket"));
    const void* const connection = *static_cast<void* const*>(handle.constData());
    const int number = socket != nullptr && connection != nullptr ? socket(connection) : -1;
    ::dlclose(library);
    return number;
}

} // namespace

PostgresPatience::PostgresPatience(std::chrono::milliseconds limit)
    : m_limit(limit)
{}

PostgresPatience::~PostgresPatience()
{
    if (m_thread.joinable()) {
        {
            const std::lock_guard lock(m_mutex);
            m_isLeaving = true;
        }
        m_changed.notify_one();
        m_thread.join();
    }
    forget();
}

void PostgresPatience::forget()
{
    if (m_socket >= 0) {
        ::close(m_socket);
        m_socket = -1;
    }
    m_end.reset();
    m_hasCut = false;
}

void PostgresPatience::watch(const QSqlDriver& driver)
{
    const int socket = socketOf(driver);
    const std::lock_guard lock(m_mutex);
    forget();
    m_socket = socket < 0 ? -1 : ::fcntl(socket, F_DUPFD_CLOEXEC, 0);
}

void PostgresPatience::leave()
{
    const std::lock_guard lock(m_mutex);
    forget();
}

void PostgresPatience::begin()
{
    const std::lock_guard lock(m_mutex);
    if (m_socket < 0 || m_hasCut) {
        return;
    }
    if (!m_thread.joinable()) {
        try {
            m_thread = std::thread([this] { run(); });
        } catch (const std::system_error&) {
            // The system has no room for it.
            throw std::bad_alloc();
        }
    }
    m_end = std::chrono::steady_clock::now() + m_limit;
    // A thread that waits for the end of a former wait looks at this one then.
    if (m_isAsleep) {
        m_changed.notify_one();
    }
}

void PostgresPatience::end()
{
    const std::lock_guard lock(m_mutex);
    m_end.reset();
}

bool PostgresPatience::hasCut() const
{
    const std::lock_guard lock(m_mutex);
    return m_hasCut;
}

void PostgresPatience::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_isLeaving) {
        if (!m_end) {
            m_isAsleep = true;
            m_changed.wait(lock, [this] { return m_end || m_isLeaving; });
            m_isAsleep = false;
        } else if (std::chrono::steady_clock::now() < *m_end) {
            // A copy, since it may be another one while nobody looks.
            const Time end = *m_end;
            m_changed.wait_until(lock, end, [this] { return m_isLeaving; });
        } else {
            ::shutdown(m_socket, SHUT_RDWR);
            m_hasCut = true;
            m_end.reset();
        }
    }
}

} // namespace trel::mediadispatch
