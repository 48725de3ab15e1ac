#include "AccessibleHeading.h"

#include "SHeaderView.h"
#include "card/PlanCells.h"
#include "chooser/ChooserColumns.h"

namespace trel::mediadispatch {

AccessibleHeading::AccessibleHeading(QTableView& table, int column)
    : m_table(&table)
    , m_column(column)
{}

bool AccessibleHeading::isValid() const
{
    return header() && m_column < header()->count();
}

void* AccessibleHeading::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface && isMark()
               ? static_cast<QAccessibleActionInterface*>(this)
               : nullptr;
}

QAccessibleInterface* AccessibleHeading::parent() const
{
    return m_table ? QAccessible::queryAccessibleInterface(m_table) : nullptr;
}

QString AccessibleHeading::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name || !isValid()) {
        return QString();
    }
    return isMark() ? m_table->accessibleName() : SHeaderView::label(m_column);
}

QRect AccessibleHeading::rect() const
{
    if (!isValid()) {
        return QRect();
    }
    const QWidget& shown = *header()->viewport();
    return {shown.mapToGlobal(QPoint(header()->sectionViewportPosition(m_column), 0)),
            QSize(header()->sectionSize(m_column), shown.height())};
}

QAccessible::Role AccessibleHeading::role() const
{
    return isMark() ? QAccessible::CheckBox : QAccessible::ColumnHeader;
}

QAccessible::State AccessibleHeading::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = !isValid() || !header()->isVisible();
    state.checkable = isMark();
    state.checked = isMark() && isValid() && header()->isChecked();
    return state;
}

QStringList AccessibleHeading::actionNames() const
{
    return isMark() ? QStringList(toggleAction()) : QStringList();
}

void AccessibleHeading::doAction(const QString& action)
{
    if (isValid() && actionNames().contains(action) && header()->isVisible() &&
        !isBehindPrompt(*m_table->window())) {
        header()->toggle();
    }
}

QStringList AccessibleHeading::keyBindingsForAction(const QString& action) const
{
    return actionNames().contains(action)
               ? QStringList(QKeySequence(QKeySequence::SelectAll).toString())
               : QStringList();
}

SHeaderView* AccessibleHeading::header() const
{
    return m_table ? qobject_cast<SHeaderView*>(m_table->horizontalHeader()) : nullptr;
}

bool AccessibleHeading::isMark() const
{
    return m_column == OfferCheckColumn;
}

} // namespace trel::mediadispatch
