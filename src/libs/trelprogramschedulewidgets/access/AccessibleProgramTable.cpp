#include "access/AccessibleProgramTable.h"

#include "SHeaderView.h"
#include "access/AccessibleProgramCell.h"
#include "chooser/ChooserColumns.h"

#include <QTableView>

namespace trel::mediadispatch {

AccessibleProgramTable::AccessibleProgramTable(QTableView& table)
    : QAccessibleWidget(&table, QAccessible::Table)
{}

AccessibleProgramTable::~AccessibleProgramTable()
{
    for (const QAccessible::Id cell : qAsConst(m_cells)) {
        QAccessible::deleteAccessibleInterface(cell);
    }
}

void* AccessibleProgramTable::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface) {
        return static_cast<QAccessibleTableInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* AccessibleProgramTable::child(int index) const
{
    const QVector<int> columns = shownColumns();
    if (index < 0 || index >= rowCount() * columns.size()) {
        return nullptr;
    }
    const int row = index / columns.size();
    const int column = columns.at(index % columns.size());
    QAccessible::Id& cell = m_cells[row * ChoiceColumnCount + column];
    if (cell == 0) {
        cell = QAccessible::registerAccessibleInterface(
            new AccessibleProgramCell(table(), row, column));
    }
    return QAccessible::accessibleInterface(cell);
}

int AccessibleProgramTable::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const cell = dynamic_cast<const AccessibleProgramCell*>(child);
    const QVector<int> columns = shownColumns();
    const int column = cell && cell->isOf(table()) ? columns.indexOf(cell->column()) : -1;
    return column < 0 || cell->row() >= rowCount() ? -1 : cell->row() * columns.size() + column;
}

QAccessibleInterface* AccessibleProgramTable::childAt(int x, int y) const
{
    const QModelIndex cell = table().indexAt(table().viewport()->mapFromGlobal(QPoint(x, y)));
    return cell.isValid() ? cellAt(cell.row(), shownColumns().indexOf(cell.column())) : nullptr;
}

QAccessibleInterface* AccessibleProgramTable::cellAt(int row, int column) const
{
    const bool isThere = row >= 0 && column >= 0 && column < columnCount();
    return isThere ? child(row * columnCount() + column) : nullptr;
}

QString AccessibleProgramTable::columnDescription(int column) const
{
    const QVector<int> columns = shownColumns();
    return column >= 0 && column < columns.size() ? SHeaderView::label(columns.at(column))
                                                  : QString();
}

QString AccessibleProgramTable::rowDescription(int row) const
{
    return table().model()->index(row, OfferNameColumn).data().toString();
}

int AccessibleProgramTable::rowCount() const
{
    return table().model() ? table().model()->rowCount() : 0;
}

QTableView& AccessibleProgramTable::table() const
{
    return *static_cast<QTableView*>(object());
}

QVector<int> AccessibleProgramTable::shownColumns() const
{
    QVector<int> columns;
    const int count = table().model() ? table().model()->columnCount() : 0;
    for (int column = 0; column < count; ++column) {
        if (!table().isColumnHidden(column)) {
            columns.append(column);
        }
    }
    return columns;
}

} // namespace trel::mediadispatch
