#pragma once

#include <QTableView>

namespace trel::desktop::fit {

/// Makes a column as wide as its title and what it has need, where it is narrower. One that is
/// wider, as the operator may have made it, stays so.
inline void widenToContents(QTableView& table, int column)
{
    const int former = table.columnWidth(column);
    table.resizeColumnToContents(column);
    if (table.columnWidth(column) < former) {
        table.setColumnWidth(column, former);
    }
}

} // namespace trel::desktop::fit
