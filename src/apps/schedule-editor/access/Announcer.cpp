#include "access/Announcer.h"

#include <QAccessible>
#include <QEvent>

namespace trel::desktop::access {

Announcer::Announcer(QWidget* window)
    : QWidget(window)
{
    setObjectName(QStringLiteral("announcer"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 0, 0);
}

void Announcer::say(const QString& text)
{
    if (text.isEmpty() || text == m_said) {
        return;
    }
    m_said = text;
    setAccessibleName(text);
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void Announcer::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        m_said.clear();
        setAccessibleName(QString());
    }
}

} // namespace trel::desktop::access
