#include "memory/RememberedDialog.h"

#include "fit/ScreenRoom.h"
#include "memory/RememberedParts.h"
#include "memory/WindowMemory.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSettings>
#include <QWidget>

namespace trel::desktop {

namespace {

QString geometryOf(const QWidget& window)
{
    return QStringLiteral("windows/") + window.objectName();
}

} // namespace

RememberedDialog::RememberedDialog(QWidget& window)
    : QObject(&window)
    , m_window(window)
    , m_settings(WindowMemory::above(window))
{
    if (m_settings.isNull()) {
        return;
    }
    if (window.restoreGeometry(m_settings->value(geometryOf(window)).toByteArray())) {
        fit::moveOntoScreen(window);
    }
    RememberedParts(*m_settings, window).restore();
    window.installEventFilter(this);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
            &RememberedDialog::save);
}

RememberedDialog::~RememberedDialog() = default;

bool RememberedDialog::eventFilter(QObject* watched, QEvent* event)
{
    // That of a desktop which has put the window away is spontaneous.
    if (watched == &m_window && event->type() == QEvent::Hide && !event->spontaneous()) {
        save();
    }
    return QObject::eventFilter(watched, event);
}

void RememberedDialog::save()
{
    if (!m_settings.isNull()) {
        m_settings->setValue(geometryOf(m_window), m_window.saveGeometry());
        RememberedParts(*m_settings, m_window).save();
    }
}

} // namespace trel::desktop
