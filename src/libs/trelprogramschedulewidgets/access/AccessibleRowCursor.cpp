#include "access/AccessibleRowCursor.h"

#include "chooser/RowCursor.h"

#include <QTableView>

namespace trel::mediadispatch {

AccessibleRowCursor::AccessibleRowCursor(RowCursor& cursor)
    : QAccessibleWidget(&cursor, QAccessible::Table)
{}

QAccessibleInterface* AccessibleRowCursor::focusChild() const
{
    const QAccessibleInterface* const rows = table();
    return rows ? rows->focusChild() : nullptr;
}

QString AccessibleRowCursor::text(QAccessible::Text kind) const
{
    const QAccessibleInterface* const rows = table();
    return rows ? rows->text(kind) : QString();
}

QAccessibleInterface* AccessibleRowCursor::table() const
{
    return QAccessible::queryAccessibleInterface(&static_cast<RowCursor*>(object())->table());
}

} // namespace trel::mediadispatch
