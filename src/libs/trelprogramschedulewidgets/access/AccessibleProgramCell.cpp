#include "access/AccessibleProgramCell.h"

#include "CheckBoxDelegate.h"
#include "SHeaderView.h"
#include "SpinBoxDelegate.h"
#include "card/PlanCells.h"
#include "chooser/ChooserColumns.h"
#include "chooser/CountCell.h"
#include "chooser/RowCursor.h"

#include <QStringBuilder>

#include <algorithm>
#include <cmath>

namespace trel::mediadispatch {

AccessibleProgramCell::AccessibleProgramCell(QTableView& table, int row, int column)
    : m_table(&table)
    , m_row(row)
    , m_column(column)
{}

bool AccessibleProgramCell::isValid() const
{
    return cell(m_column).isValid();
}

void* AccessibleProgramCell::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface && isMark()) {
        return static_cast<QAccessibleActionInterface*>(this);
    }
    if (type == QAccessible::ValueInterface && isCount()) {
        return static_cast<QAccessibleValueInterface*>(this);
    }
    if (type == QAccessible::TableCellInterface) {
        return static_cast<QAccessibleTableCellInterface*>(this);
    }
    return nullptr;
}

QAccessibleInterface* AccessibleProgramCell::parent() const
{
    return m_table ? QAccessible::queryAccessibleInterface(m_table) : nullptr;
}

QString AccessibleProgramCell::text(QAccessible::Text kind) const
{
    QString own = cell(m_column).data().toString();
    if (kind == QAccessible::Value && isCount()) {
        return own;
    }
    if (kind == QAccessible::Description && isMark()) {
        return place();
    }
    if (kind != QAccessible::Name || !isValid()) {
        return QString();
    }
    return isMark()    ? cell(OfferNameColumn).data().toString()
           : isCount() ? countName(cell(m_column))
                       : own;
}

QRect AccessibleProgramCell::rect() const
{
    if (!isValid()) {
        return QRect();
    }
    const QRect shown = m_table->visualRect(cell(m_column));
    return QRect(m_table->viewport()->mapToGlobal(shown.topLeft()), shown.size());
}

QAccessible::Role AccessibleProgramCell::role() const
{
    return isMark() ? QAccessible::CheckBox : isCount() ? QAccessible::SpinBox : QAccessible::Cell;
}

QAccessible::State AccessibleProgramCell::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = !m_table || !m_table->isVisible();
    state.checkable = isMark();
    state.checked = isMark() && cell(m_column).data(kCheckRole).toBool();
    const RowCursor* const cursor = m_table && isMark() ? RowCursor::of(*m_table) : nullptr;
    state.focusable = cursor != nullptr;
    state.focused = cursor && cursor->hasFocus() && cursor->row() == m_row;
    if (isValid() && !state.invisible) {
        state.offscreen =
            !m_table->visualRect(cell(m_column)).intersects(m_table->viewport()->rect());
    }
    return state;
}

QStringList AccessibleProgramCell::actionNames() const
{
    return isMark() ? QStringList{toggleAction(), setFocusAction()} : QStringList();
}

void AccessibleProgramCell::doAction(const QString& action)
{
    if (!actionNames().contains(action) || !canBeWorked()) {
        return;
    }
    RowCursor* const cursor = RowCursor::of(*m_table);
    if (action == setFocusAction()) {
        if (cursor) {
            cursor->setRow(m_row);
            cursor->setFocus();
        }
    } else if (auto* const marks =
                   qobject_cast<CheckBoxDelegate*>(m_table->itemDelegateForColumn(m_column))) {
        marks->toggle(*m_table->model(), cell(m_column));
    }
}

QList<QAccessibleInterface*> AccessibleProgramCell::columnHeaderCells() const
{
    // The headings are the first children of the table.
    const QAccessibleInterface* const table = parent();
    QAccessibleInterface* const heading = table ? table->child(columnIndex()) : nullptr;
    return heading ? QList<QAccessibleInterface*>{heading} : QList<QAccessibleInterface*>();
}

int AccessibleProgramCell::columnIndex() const
{
    int index = 0;
    for (int column = 0; m_table && column < m_column; ++column) {
        index += m_table->isColumnHidden(column) ? 0 : 1;
    }
    return index;
}

QVariant AccessibleProgramCell::currentValue() const
{
    return cell(m_column).data().toInt();
}

// Without a box: that would take the focus, and another one that is open would keep it from
// opening. The chooser shows its total by what the delegate tells.
void AccessibleProgramCell::setCurrentValue(const QVariant& value)
{
    bool isNumber = false;
    const double number = std::round(value.toDouble(&isNumber));
    if (!isNumber || std::isnan(number) || !isCount() || !canBeWorked()) {
        return;
    }
    const auto* const counts =
        qobject_cast<const SpinBoxDelegate*>(m_table->itemDelegateForColumn(m_column));
    if (counts) {
        const auto count =
            static_cast<int>(std::clamp(number, double(kLeastCount), double(kMostCount)));
        m_table->model()->setData(cell(m_column), count, Qt::EditRole);
        emit counts->valueChanged(cell(m_column), count);
    }
}

QVariant AccessibleProgramCell::minimumValue() const
{
    return kLeastCount;
}

QVariant AccessibleProgramCell::maximumValue() const
{
    return kMostCount;
}

QModelIndex AccessibleProgramCell::cell(int column) const
{
    return m_table && m_table->model() ? m_table->model()->index(m_row, column) : QModelIndex();
}

bool AccessibleProgramCell::isMark() const
{
    return m_column == OfferCheckColumn;
}

bool AccessibleProgramCell::isCount() const
{
    return m_column == ChoiceCountColumn;
}

/// The number beside the mark, and behind it the play count where there is one.
QString AccessibleProgramCell::place() const
{
    const QString number = cell(OfferOrderColumn).data().toString();
    const QString count = cell(ChoiceCountColumn).data().toString();
    return count.isEmpty()
               ? number
               : QString(number % QLatin1String(", ") % SHeaderView::label(ChoiceCountColumn) %
                         QLatin1Char(' ') % count);
}

bool AccessibleProgramCell::canBeWorked() const
{
    return isValid() && m_table->isEnabled() && m_table->isVisible() &&
           !isBehindPrompt(*m_table->window());
}

} // namespace trel::mediadispatch
