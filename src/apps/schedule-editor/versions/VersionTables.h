#pragma once

#include <QHeaderView>
#include <QTableView>

namespace trel::desktop::versions {

/// The look of the tables of versions: rows to be read and chosen as a whole, the last column as
/// wide as there is room.
inline void prepareTable(QTableView& table, QAbstractItemModel* model)
{
    table.setModel(model);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setAlternatingRowColors(true);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setTabKeyNavigation(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setHighlightSections(false);
    // To measure every row of a long list would keep the windows waiting.
    table.horizontalHeader()->setResizeContentsPrecision(0);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

} // namespace trel::desktop::versions
