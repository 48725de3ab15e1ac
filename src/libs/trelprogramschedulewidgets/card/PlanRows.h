#pragma once

#include "PlanRow.h"

#include <vector>

class QStandardItemModel;
class QTableView;

namespace trel::mediadispatch {

class FoldedRows;

/// Builds the table of a card that has been folded so far: a row with cells and open editors for
/// each of the rows, in their order, in an empty table. The editors are not connected to anything.
std::vector<PlanRowEditors> buildPlanRows(QTableView& table, QStandardItemModel& model,
                                          const FoldedRows& rows);

} // namespace trel::mediadispatch
