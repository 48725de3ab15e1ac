#include "PlanCells.h"

#include <QTableView>

namespace trel::mediadispatch {

QModelIndex cellOf(const QTableView& table, const QWidget* inside)
{
    const QWidget* cell = inside;
    while (cell && cell->parentWidget() != table.viewport()) {
        cell = cell->parentWidget();
    }
    return cell ? table.indexAt(cell->geometry().center()) : QModelIndex();
}

} // namespace trel::mediadispatch
