#include "access/AccessibleBox.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QTimer>

namespace trel::desktop::access {

AccessibleBox::AccessibleBox(QComboBox& box)
    : QAccessibleWidget(&box, QAccessible::ComboBox)
{}

QComboBox& AccessibleBox::box() const
{
    return *static_cast<QComboBox*>(object());
}

void* AccessibleBox::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                              : QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* AccessibleBox::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(box().view()) : nullptr;
}

int AccessibleBox::indexOfChild(const QAccessibleInterface* child) const
{
    return child && child->object() == box().view() ? 0 : -1;
}

QString AccessibleBox::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value) {
        return box().currentText();
    }
    QString own = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Name && own.isEmpty() && box().parentWidget() != nullptr) {
        // In its dialogs for files, the toolkit has forgotten whose captions those are.
        const auto* const caption = box().parentWidget()->findChild<QLabel*>(
            box().objectName().replace(QLatin1String("Combo"), QLatin1String("Label")),
            Qt::FindDirectChildrenOnly);
        return caption != nullptr ? caption->text() : own;
    }
    return own;
}

QAccessible::State AccessibleBox::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const bool isOpen = box().view()->isVisible();
    state.expandable = true;
    state.expanded = isOpen;
    state.collapsed = !isOpen;
    state.hasPopup = true;
    state.readOnly = true;
    return state;
}

QStringList AccessibleBox::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (box().isEnabled()) {
        names << showMenuAction();
    }
    return names;
}

void AccessibleBox::doAction(const QString& action)
{
    if (action != showMenuAction()) {
        QAccessibleWidget::doAction(action);
        return;
    }
    QComboBox* const opened = &box();
    QTimer::singleShot(0, opened, [opened] {
        if (opened->isEnabled() && opened->isVisible()) {
            opened->showPopup();
        }
    });
}

void AccessibleBox::selection(int /*selection*/, int* start, int* end) const
{
    *start = 0;
    *end = 0;
}

QString AccessibleBox::text(int start, int end) const
{
    return box().currentText().mid(start, end - start);
}

int AccessibleBox::characterCount() const
{
    return box().currentText().size();
}

QRect AccessibleBox::characterRect(int /*offset*/) const
{
    return rect();
}

int AccessibleBox::offsetAtPoint(const QPoint& /*point*/) const
{
    return 0;
}

QString AccessibleBox::attributes(int /*offset*/, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return QString();
}

} // namespace trel::desktop::access
