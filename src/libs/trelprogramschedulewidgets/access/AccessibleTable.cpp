#include "AccessibleTable.h"

#include <QTableView>

namespace trel::mediadispatch {

AccessibleTable::AccessibleTable(QTableView& table)
    : QAccessibleWidget(&table, QAccessible::Table)
{}

void* AccessibleTable::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface) {
        return static_cast<QAccessibleTableInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QTableView& AccessibleTable::table() const
{
    return *static_cast<QTableView*>(object());
}

} // namespace trel::mediadispatch
