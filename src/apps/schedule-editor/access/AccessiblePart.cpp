#include "access/AccessiblePart.h"

#include "access/SpokenParts.h"

#include <QTimer>

namespace trel::desktop::access {

AccessiblePart::AccessiblePart(QWidget& widget, int index)
    : m_widget(&widget)
    , m_index(index)
{}

const SpokenParts* AccessiblePart::parts() const
{
    return dynamic_cast<const SpokenParts*>(m_widget.data());
}

bool AccessiblePart::isValid() const
{
    const SpokenParts* const all = parts();
    return all != nullptr && m_index < all->spokenCount();
}

void* AccessiblePart::interface_cast(QAccessible::InterfaceType type)
{
    const bool isPressed = isValid() && parts()->canPressSpoken();
    return type == QAccessible::ActionInterface && isPressed
               ? static_cast<QAccessibleActionInterface*>(this)
               : nullptr;
}

QAccessibleInterface* AccessiblePart::parent() const
{
    return m_widget ? QAccessible::queryAccessibleInterface(m_widget) : nullptr;
}

QString AccessiblePart::text(QAccessible::Text kind) const
{
    if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Description)) {
        return QString();
    }
    return kind == QAccessible::Name ? parts()->spokenName(m_index)
                                     : parts()->spokenDescription(m_index);
}

QRect AccessiblePart::rect() const
{
    if (!isValid()) {
        return QRect();
    }
    const QRect place = parts()->spokenPlace(m_index) & m_widget->rect();
    return place.isEmpty() ? QRect() : QRect(m_widget->mapToGlobal(place.topLeft()), place.size());
}

QAccessible::State AccessiblePart::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = !m_widget || !m_widget->isVisible();
    if (!isValid()) {
        return state;
    }
    const bool isCurrent = parts()->spokenCurrent() == m_index;
    state.offscreen = rect().isEmpty();
    state.focusable = parts()->canPressSpoken();
    state.selectable = state.focusable;
    state.selected = isCurrent;
    state.focused = isCurrent && m_widget->hasFocus();
    return state;
}

QStringList AccessiblePart::actionNames() const
{
    return isValid() && parts()->canPressSpoken() ? QStringList(pressAction()) : QStringList();
}

void AccessiblePart::doAction(const QString& action)
{
    if (!actionNames().contains(action)) {
        return;
    }
    // What follows may ask the operator something and wait.
    QWidget* const widget = m_widget;
    QTimer::singleShot(0, widget, [widget, index = m_index] {
        auto* const all = dynamic_cast<SpokenParts*>(widget);
        if (all != nullptr && widget->isVisible() && widget->isEnabled() &&
            index < all->spokenCount()) {
            all->pressSpoken(index);
        }
    });
}

} // namespace trel::desktop::access
