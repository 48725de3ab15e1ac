#include "toolkit/QuietTable.h"

namespace trel::mediadispatch {

QuietTable::QuietTable(QWidget* parent)
    : QTableView(parent)
{}

// The class between does nothing else than to tell.

void QuietTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::currentChanged(current, previous);
}

void QuietTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::selectionChanged(selected, deselected);
}

} // namespace trel::mediadispatch
