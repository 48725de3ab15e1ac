#pragma once

class QTableView;

namespace trel::mediadispatch {

struct PlanRowEditors;

/// Scrolls a table to the cell whose editor gets the focus by a key. A view does so for what is put
/// into its cells, but not for the widgets inside that. Each editor of a row is given once, and has
/// to lie in a cell of the table.
void keepFocusInSight(QTableView& table, const PlanRowEditors& editors);

} // namespace trel::mediadispatch
