#include "access/AccessiblePlanTable.h"

#include "access/AccessiblePlanRow.h"
#include "card/PlanColumns.h"

#include <QStandardItemModel>
#include <QTableView>

namespace trel::mediadispatch {

AccessiblePlanTable::AccessiblePlanTable(QTableView& table)
    : AccessibleTable(table)
{}

AccessiblePlanTable::~AccessiblePlanTable()
{
    for (const QAccessible::Id row : qAsConst(m_rows)) {
        if (row != 0) {
            QAccessible::deleteAccessibleInterface(row);
        }
    }
}

// Past the model of a folded card, which puts all rows in, with their editors, for any that asks
// how many there are. Nobody sees them before it is unfolded, and a walk through all cards would
// build the whole schedule.
int AccessiblePlanTable::childCount() const
{
    const auto* const model = qobject_cast<const QStandardItemModel*>(table().model());
    return model ? model->QStandardItemModel::rowCount() : 0;
}

QAccessibleInterface* AccessiblePlanTable::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    if (m_rows.size() <= index) {
        m_rows.resize(index + 1);
    }
    QAccessible::Id& row = m_rows[index];
    if (row == 0) {
        row = QAccessible::registerAccessibleInterface(new AccessiblePlanRow(table(), index));
    }
    return QAccessible::accessibleInterface(row);
}

int AccessiblePlanTable::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const row = dynamic_cast<const AccessiblePlanRow*>(child);
    return row && row->isOf(table()) && row->number() < childCount() ? row->number() : -1;
}

QAccessibleInterface* AccessiblePlanTable::childAt(int x, int y) const
{
    const QPoint place = table().viewport()->mapFromGlobal(QPoint(x, y));
    return table().viewport()->rect().contains(place) ? child(table().rowAt(place.y())) : nullptr;
}

QAccessibleInterface* AccessiblePlanTable::cellAt(int row, int column) const
{
    const QAccessibleInterface* const plan = child(row);
    return plan ? plan->child(column) : nullptr;
}

int AccessiblePlanTable::columnCount() const
{
    return AccessiblePlanRow::columns().size();
}

// The captions stand in every row, each in the cell before its editor.
QString AccessiblePlanTable::columnDescription(int column) const
{
    const QAccessibleInterface* const first = cellAt(0, column);
    if (!first || !first->object()) {
        return QString();
    }
    const QString plan =
        table().model()->index(0, TitleColumn).data().toString().trimmed() + QLatin1Char(' ');
    const QString name = static_cast<const QWidget*>(first->object())->accessibleName();
    return name.startsWith(plan) ? name.mid(plan.size()) : name;
}

QString AccessiblePlanTable::rowDescription(int row) const
{
    const QAccessibleInterface* const plan = child(row);
    return plan ? plan->text(QAccessible::Name) : QString();
}

} // namespace trel::mediadispatch
