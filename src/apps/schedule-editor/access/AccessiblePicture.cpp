#include "access/AccessiblePicture.h"

#include "access/AccessiblePart.h"
#include "access/SpokenParts.h"

namespace trel::desktop::access {

AccessiblePicture::AccessiblePicture(QWidget& widget)
    : QAccessibleWidget(&widget, QAccessible::List)
{}

AccessiblePicture::~AccessiblePicture()
{
    for (const QAccessible::Id part : qAsConst(m_parts)) {
        if (part != 0) {
            QAccessible::deleteAccessibleInterface(part);
        }
    }
}

const SpokenParts& AccessiblePicture::parts() const
{
    return dynamic_cast<const SpokenParts&>(*widget());
}

int AccessiblePicture::childCount() const
{
    return parts().spokenCount();
}

QAccessibleInterface* AccessiblePicture::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    if (m_parts.size() <= index) {
        m_parts.resize(index + 1);
    }
    QAccessible::Id& part = m_parts[index];
    if (part == 0) {
        part = QAccessible::registerAccessibleInterface(new AccessiblePart(*widget(), index));
    }
    return QAccessible::accessibleInterface(part);
}

int AccessiblePicture::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const part = dynamic_cast<const AccessiblePart*>(child);
    return part && part->isOf(*widget()) && part->index() < childCount() ? part->index() : -1;
}

QAccessibleInterface* AccessiblePicture::childAt(int x, int y) const
{
    const QPoint place = widget()->mapFromGlobal(QPoint(x, y));
    // What is painted last lies above.
    for (int index = childCount() - 1; index >= 0; --index) {
        if (parts().spokenPlace(index).contains(place)) {
            return child(index);
        }
    }
    return nullptr;
}

QAccessibleInterface* AccessiblePicture::focusChild() const
{
    return widget()->hasFocus() ? child(parts().spokenCurrent()) : nullptr;
}

} // namespace trel::desktop::access
