#include "access/AccessibleChoice.h"

#include "MultiComboBox.h"

#include <QAbstractItemView>
#include <QComboBox>

namespace trel::mediadispatch {

namespace {

/// Opens the list, or closes it.
void turnList(QComboBox& box)
{
    const auto* const list = box.findChild<QAbstractItemView*>();
    if (list && list->isVisible()) {
        box.hidePopup();
    } else {
        box.showPopup();
    }
}

void chooseBeside(QComboBox& box, int step)
{
    const int entry = box.currentIndex() + step;
    if (entry >= 0 && entry < box.count()) {
        box.setCurrentIndex(entry);
    }
}

} // namespace

AccessibleChoice::AccessibleChoice(QComboBox& box)
    : AccessibleEditor(box, QAccessible::ComboBox)
{}

void* AccessibleChoice::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                              : AccessibleEditor::interface_cast(type);
}

int AccessibleChoice::childCount() const
{
    return list() ? 1 : 0;
}

QAccessibleInterface* AccessibleChoice::child(int index) const
{
    return index == 0 && list() ? QAccessible::queryAccessibleInterface(list()) : nullptr;
}

int AccessibleChoice::indexOfChild(const QAccessibleInterface* child) const
{
    return child && list() && child->object() == list() ? 0 : -1;
}

QString AccessibleChoice::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value) {
        return shownText();
    }
    const QString own = AccessibleEditor::text(kind);
    // A value that has no room in the box is its tool tip as well, and is said once.
    return kind == QAccessible::Description && own == shownText() ? QString() : own;
}

QString AccessibleChoice::shownText() const
{
    const auto* const days = qobject_cast<const MultiComboBox*>(&box());
    return days ? days->shownText() : box().currentText();
}

QAccessible::State AccessibleChoice::state() const
{
    QAccessible::State state = AccessibleEditor::state();
    // The box has the focus back while its list goes, which is still visible then.
    const QWidget* const shown = list();
    const bool isOpen = shown && shown->isVisible() && !shown->window()->isHidden();
    state.expandable = true;
    state.expanded = isOpen;
    state.collapsed = !isOpen;
    state.hasPopup = true;
    return state;
}

QStringList AccessibleChoice::actionNames() const
{
    QStringList names = AccessibleEditor::actionNames();
    if (box().isEnabled()) {
        names << showMenuAction();
        if (!qobject_cast<const MultiComboBox*>(&box())) {
            names << increaseAction() << decreaseAction();
        }
    }
    return names;
}

void AccessibleChoice::doAction(const QString& action)
{
    if (!actionNames().contains(action)) {
        return;
    }
    if (action == showMenuAction()) {
        later([](QWidget& editor) { turnList(static_cast<QComboBox&>(editor)); });
    } else if (action == increaseAction() || action == decreaseAction()) {
        const int step = action == increaseAction() ? 1 : -1;
        later([step](QWidget& editor) { chooseBeside(static_cast<QComboBox&>(editor), step); });
    } else {
        AccessibleEditor::doAction(action);
    }
}

QComboBox& AccessibleChoice::box() const
{
    return *static_cast<QComboBox*>(object());
}

// To ask the box for its list would build it, which most boxes of a long schedule do without.
QWidget* AccessibleChoice::list() const
{
    return box().findChild<QAbstractItemView*>();
}

} // namespace trel::mediadispatch
