#include "access/AccessibleProgramCell.h"

#include "CheckBoxDelegate.h"
#include "SHeaderView.h"
#include "card/PlanCells.h"
#include "chooser/ChooserColumns.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSpinBox>
#include <QStringBuilder>

#include <algorithm>
#include <cmath>

namespace trel::mediadispatch {

namespace {

// As in the boxes of play counts.
constexpr int kLeastCount = 1;
constexpr int kMostCount = 999;

} // namespace

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
    if (kind != QAccessible::Name || !isValid()) {
        return QString();
    }
    const QString program = cell(OfferNameColumn).data().toString();
    return isMark()    ? program
           : isCount() ? QString(program % QLatin1String(", ") % SHeaderView::label(m_column))
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
    if (isValid() && !state.invisible) {
        state.offscreen =
            !m_table->visualRect(cell(m_column)).intersects(m_table->viewport()->rect());
    }
    return state;
}

QStringList AccessibleProgramCell::actionNames() const
{
    return isMark() ? QStringList(toggleAction()) : QStringList();
}

void AccessibleProgramCell::doAction(const QString& action)
{
    if (!actionNames().contains(action) || !canBeWorked()) {
        return;
    }
    if (auto* const marks =
            qobject_cast<CheckBoxDelegate*>(m_table->itemDelegateForColumn(m_column))) {
        marks->toggle(*m_table->model(), cell(m_column));
    }
}

QVariant AccessibleProgramCell::currentValue() const
{
    return cell(m_column).data().toInt();
}

// Through the box of the cell, which tells the chooser of the new total on its way.
void AccessibleProgramCell::setCurrentValue(const QVariant& value)
{
    bool isNumber = false;
    const double number = std::round(value.toDouble(&isNumber));
    if (!isNumber || std::isnan(number) || !isCount() || !canBeWorked()) {
        return;
    }
    m_table->edit(cell(m_column));
    if (auto* const box = qobject_cast<QSpinBox*>(m_table->indexWidget(cell(m_column)))) {
        box->setValue(
            static_cast<int>(std::clamp(number, double(box->minimum()), double(box->maximum()))));
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(box, &enter);
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

bool AccessibleProgramCell::canBeWorked() const
{
    return isValid() && m_table->isEnabled() && m_table->isVisible() &&
           !isBehindPrompt(*m_table->window());
}

} // namespace trel::mediadispatch
