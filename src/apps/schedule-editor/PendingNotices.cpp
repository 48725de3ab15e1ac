#include "PendingNotices.h"

#include "HostPrompts.h"

#include <QApplication>
#include <QEvent>
#include <QMetaObject>
#include <QWidget>

namespace trel::desktop {

PendingNotices::PendingNotices(QWidget& window)
    : QObject(&window)
{
    window.installEventFilter(this);
}

void PendingNotices::tell(const QString& text)
{
    m_texts.append(text);
    tellNext();
}

void PendingNotices::tellNext()
{
    // The end of a notice brings the next one.
    if (!m_texts.isEmpty() && !QApplication::activeModalWidget()) {
        prompts::notice(m_texts.takeFirst());
    }
}

bool PendingNotices::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowUnblocked) {
        // What has closed may be followed by another question at once.
        QMetaObject::invokeMethod(this, &PendingNotices::tellNext, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace trel::desktop
