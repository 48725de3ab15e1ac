#pragma once

#include "PlanRow.h"

#include <vector>

class QStandardItemModel;
class QTableView;

namespace trel::mediadispatch {

class FoldedRows;
class PlanTaskWidget;

/// Builds the table of a card that has been folded so far: a row with cells and open editors for
/// each of the rows, in their order, in an empty table. The editors are not connected to anything.
std::vector<PlanRowEditors> buildPlanRows(QTableView& table, QStandardItemModel& model,
                                          const FoldedRows& rows);

/// Has the editors of a row tell a card of all that is done in them.
void connectPlanRow(const PlanRowEditors& editors, PlanTaskWidget& card);

} // namespace trel::mediadispatch
