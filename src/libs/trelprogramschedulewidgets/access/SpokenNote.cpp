#include "access/SpokenNote.h"

#include <QAccessible>

namespace trel::mediadispatch {

SpokenNote::SpokenNote(QWidget& place)
    : QWidget(&place)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 0, 0);
}

void SpokenNote::say(QWidget& place, const QAccessibleInterface& what)
{
    if (!QAccessible::isActive()) {
        return;
    }
    auto* note = place.findChild<SpokenNote*>(QString(), Qt::FindDirectChildrenOnly);
    if (!note) {
        note = new SpokenNote(place);
    }
    QStringList words{what.text(QAccessible::Name), what.text(QAccessible::Description)};
    words.removeAll(QString());
    note->setAccessibleName(words.join(QStringLiteral(", ")));
    note->tell();
}

void SpokenNote::tell()
{
    if (isHidden()) {
        // The toolkit tells of what comes up.
        show();
        return;
    }
    QAccessibleEvent event(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

} // namespace trel::mediadispatch
