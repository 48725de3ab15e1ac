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
    // With its window it would show up without a word.
    hide();
}

void Announcer::say(const QString& text)
{
    if (text.isEmpty() || text == m_said) {
        return;
    }
    m_said = text;
    setAccessibleName(text);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    if (isHidden()) {
        // The toolkit tells of what comes up.
        show();
        return;
    }
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
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
