#include "access/AccessibleDay.h"

#include "MultiComboBox.h"

#include <QAbstractItemView>

namespace trel::mediadispatch {

// The list lies in a window of its own, which is a child of the box.
MultiComboBox* boxOfDays(const QWidget& list)
{
    const QWidget* const window = list.parentWidget();
    return window ? qobject_cast<MultiComboBox*>(window->parentWidget()) : nullptr;
}

AccessibleDay::AccessibleDay(QAbstractItemView& list, int number)
    : m_list(&list)
    , m_number(number)
{}

bool AccessibleDay::isValid() const
{
    return entry().isValid();
}

void* AccessibleDay::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QAccessibleInterface* AccessibleDay::parent() const
{
    return m_list ? QAccessible::queryAccessibleInterface(m_list) : nullptr;
}

QString AccessibleDay::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? entry().data().toString() : QString();
}

QRect AccessibleDay::rect() const
{
    if (!isValid()) {
        return QRect();
    }
    const QRect shown = m_list->visualRect(entry());
    return QRect(m_list->viewport()->mapToGlobal(shown.topLeft()), shown.size());
}

QAccessible::State AccessibleDay::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = !m_list || !m_list->isVisible();
    state.checkable = true;
    state.checked = entry().data(Qt::CheckStateRole).toBool();
    state.focusable = true;
    state.focused = !state.invisible && m_list->currentIndex() == entry();
    return state;
}

QStringList AccessibleDay::actionNames() const
{
    return m_list && m_list->isVisible() ? QStringList(toggleAction()) : QStringList();
}

void AccessibleDay::doAction(const QString& action)
{
    MultiComboBox* const box = m_list ? boxOfDays(*m_list) : nullptr;
    if (box && actionNames().contains(action)) {
        box->toggleEntry(m_number);
    }
}

QModelIndex AccessibleDay::entry() const
{
    const MultiComboBox* const box = m_list ? boxOfDays(*m_list) : nullptr;
    return box ? box->model()->index(m_number, box->modelColumn(), box->rootModelIndex())
               : QModelIndex();
}

} // namespace trel::mediadispatch
