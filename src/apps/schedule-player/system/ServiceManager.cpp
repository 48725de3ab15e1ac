#include "ServiceManager.h"

#include <chrono>
#include <cstdint>

#include <systemd/sd-daemon.h>

namespace trel::player {

namespace {

void notify(const char* state)
{
    // Nothing is lost without a manager, and a manager that cannot be told finds out.
    static_cast<void>(sd_notify(0, state));
}

} // namespace

ServiceManager::ServiceManager(QObject* parent)
    : QObject(parent)
{
    std::uint64_t patience = 0; // microseconds
    if (sd_watchdog_enabled(0, &patience) > 0) {
        connect(&m_life, &QTimer::timeout, this, [] { notify("WATCHDOG=1"); });
        m_life.start(std::chrono::milliseconds(patience / 1000 / 4));
    }
}

void ServiceManager::tellReady() const
{
    notify("READY=1");
}

void ServiceManager::tellStatus(const QString& status) const
{
    notify((QByteArray("STATUS=") + status.toUtf8()).constData());
}

void ServiceManager::tellStopping() const
{
    notify("STOPPING=1");
}

} // namespace trel::player
