#include "access/AccessibleProgramTable.h"

#include "SHeaderView.h"
#include "access/AccessibleHeading.h"
#include "access/AccessibleProgramCell.h"
#include "chooser/ChooserColumns.h"
#include "chooser/RowCursor.h"

#include <QTableView>

namespace trel::mediadispatch {

AccessibleProgramTable::AccessibleProgramTable(QTableView& table)
    : AccessibleTable(table)
{}

AccessibleProgramTable::~AccessibleProgramTable()
{
    for (const auto& places : {m_cells, m_headings}) {
        for (const QAccessible::Id place : places) {
            QAccessible::deleteAccessibleInterface(place);
        }
    }
}

QAccessibleInterface* AccessibleProgramTable::child(int index) const
{
    const int columns = columnCount();
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    return index < columns ? heading(index) : cellAt(index / columns - 1, index % columns);
}

int AccessibleProgramTable::indexOfChild(const QAccessibleInterface* child) const
{
    const QVector<int> columns = shownColumns();
    if (const auto* const heading = dynamic_cast<const AccessibleHeading*>(child)) {
        return heading->isOf(table()) ? columns.indexOf(heading->column()) : -1;
    }
    const auto* const cell = dynamic_cast<const AccessibleProgramCell*>(child);
    const int column = cell && cell->isOf(table()) ? columns.indexOf(cell->column()) : -1;
    return column < 0 || cell->row() >= rowCount() ? -1
                                                   : (cell->row() + 1) * columns.size() + column;
}

QAccessibleInterface* AccessibleProgramTable::childAt(int x, int y) const
{
    for (int column = 0; column < columnCount(); ++column) {
        if (heading(column)->rect().contains(x, y)) {
            return heading(column);
        }
    }
    const QModelIndex cell = table().indexAt(table().viewport()->mapFromGlobal(QPoint(x, y)));
    return cell.isValid() ? cellAt(cell.row(), shownColumns().indexOf(cell.column())) : nullptr;
}

QAccessibleInterface* AccessibleProgramTable::focusChild() const
{
    const RowCursor* const cursor = RowCursor::of(table());
    return cursor && cursor->hasFocus() ? cellAt(cursor->row(), OfferCheckColumn)
                                        : AccessibleTable::focusChild();
}

QAccessible::State AccessibleProgramTable::state() const
{
    QAccessible::State state = AccessibleTable::state();
    state.focusable = RowCursor::of(table()) != nullptr;
    return state;
}

QStringList AccessibleProgramTable::actionNames() const
{
    return state().focusable ? QStringList(setFocusAction()) : QStringList();
}

void AccessibleProgramTable::doAction(const QString& action)
{
    RowCursor* const cursor = RowCursor::of(table());
    if (cursor && action == setFocusAction()) {
        cursor->setFocus();
    }
}

QAccessibleInterface* AccessibleProgramTable::heading(int column) const
{
    if (column < 0 || column >= columnCount()) {
        return nullptr;
    }
    const int section = shownColumns().at(column);
    QAccessible::Id& heading = m_headings[section];
    if (heading == 0) {
        heading = QAccessible::registerAccessibleInterface(new AccessibleHeading(table(), section));
    }
    return QAccessible::accessibleInterface(heading);
}

QAccessibleInterface* AccessibleProgramTable::cellAt(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) {
        return nullptr;
    }
    const int shown = shownColumns().at(column);
    QAccessible::Id& cell = m_cells[row * ChoiceColumnCount + shown];
    if (cell == 0) {
        cell = QAccessible::registerAccessibleInterface(
            new AccessibleProgramCell(table(), row, shown));
    }
    return QAccessible::accessibleInterface(cell);
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
