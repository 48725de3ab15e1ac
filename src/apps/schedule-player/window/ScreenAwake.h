#pragma once

#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>

#include <memory>

class QDBusPendingCallWatcher;

namespace trel::player {

class XServerAwake;

/// Asks everybody who may put the screen to sleep to leave it on, for as long as this lives: the
/// desktop's screen saver, the login manager and the X server. Any of them may be missing, and says
/// nothing then; the next start of one of the desktop's is noticed.
class ScreenAwake : public QObject
{
    Q_OBJECT

public:
    /// The reason is shown by some desktops.
    explicit ScreenAwake(const QString& reason, QObject* parent = nullptr);
    ~ScreenAwake() override;

private:
    void askScreenSaver();
    void askLoginManager();

    const QString m_reason;
    uint m_cookie = 0;
    QDBusUnixFileDescriptor m_lock; ///< The login manager keeps the screen on while it is open.
    std::unique_ptr<XServerAwake> m_server;
};

} // namespace trel::player
