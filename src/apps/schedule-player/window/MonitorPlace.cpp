#include "window/MonitorPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace trel::player {

namespace {

/// Null where there is none of that name or number.
QScreen* screenOf(const QString& monitor)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (monitor.isEmpty()) {
        return QGuiApplication::primaryScreen();
    }
    for (QScreen* screen : screens) {
        if (screen->name() == monitor) {
            return screen;
        }
    }
    return screens.value(monitor.toInt() - 1);
}

} // namespace

MonitorPlace::MonitorPlace(QWindow& window, const QString& monitor, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_monitor(monitor)
{
    const auto changed = [this] {
        follow();
        place();
    };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, changed);
    // The toolkit has not moved the windows away yet, and does so after this.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, changed, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, changed);
    changed();
}

bool MonitorPlace::isThere() const
{
    return screenOf(m_monitor) != nullptr;
}

void MonitorPlace::follow()
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        disconnect(screen, nullptr, this, nullptr);
        connect(screen, &QScreen::geometryChanged, this, &MonitorPlace::place);
    }
}

void MonitorPlace::place()
{
    QScreen* screen = screenOf(m_monitor);
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    if (screen == nullptr) {
        return;
    }
    if (m_window.screen() != screen && m_window.isVisible()) {
        // Systems do not take a window that fills a monitor to another one.
        m_window.showNormal();
    }
    m_window.setScreen(screen);
    // Said as well where no window manager would listen to the wish to fill the monitor.
    m_window.setGeometry(screen->geometry());
    m_window.showFullScreen();
}

} // namespace trel::player
