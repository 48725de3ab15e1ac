#include "window/ScreenAwake.h"

#include "window/XServerAwake.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace trel::player {

namespace {

QString saverName()
{
    return QStringLiteral("org.freedesktop.ScreenSaver");
}

QDBusMessage saverCall(const QString& method)
{
    return QDBusMessage::createMethodCall(
        saverName(), QStringLiteral("/org/freedesktop/ScreenSaver"), saverName(), method);
}

QString programName()
{
    return QStringLiteral("schedule-player");
}

/// No service is started just to be told.
QDBusPendingCall askQuietly(const QDBusConnection& bus, QDBusMessage call)
{
    call.setAutoStartService(false);
    return bus.asyncCall(call);
}

} // namespace

ScreenAwake::ScreenAwake(const QString& reason, QObject* parent)
    : QObject(parent)
    , m_reason(reason)
    , m_server(std::make_unique<XServerAwake>())
{
    const QDBusConnection session = QDBusConnection::sessionBus();
    if (session.isConnected()) {
        auto* watcher = new QDBusServiceWatcher(saverName(), session,
                                                QDBusServiceWatcher::WatchForRegistration, this);
        connect(watcher, &QDBusServiceWatcher::serviceRegistered, this,
                &ScreenAwake::askScreenSaver);
        askScreenSaver();
    }
    askLoginManager();
}

ScreenAwake::~ScreenAwake()
{
    if (m_cookie != 0) {
        QDBusMessage call = saverCall(QStringLiteral("UnInhibit"));
        call << m_cookie;
        QDBusConnection::sessionBus().send(call);
    }
}

void ScreenAwake::askScreenSaver()
{
    QDBusMessage call = saverCall(QStringLiteral("Inhibit"));
    call << programName() << m_reason;
    auto* watcher =
        new QDBusPendingCallWatcher(askQuietly(QDBusConnection::sessionBus(), call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* finished) {
                const QDBusPendingReply<uint> reply = *finished;
                if (!reply.isError()) {
                    m_cookie = reply.value();
                }
                finished->deleteLater();
            });
}

void ScreenAwake::askLoginManager()
{
    const QDBusConnection system = QDBusConnection::systemBus();
    if (!system.isConnected()) {
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    call << QStringLiteral("idle") << programName() << m_reason << QStringLiteral("block");
    auto* watcher = new QDBusPendingCallWatcher(askQuietly(system, call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* finished) {
                const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *finished;
                if (!reply.isError()) {
                    m_lock = reply.value();
                }
                finished->deleteLater();
            });
}

} // namespace trel::player
