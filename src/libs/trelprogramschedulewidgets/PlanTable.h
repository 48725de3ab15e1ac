#pragma once

class QTableView;

namespace trel::mediadispatch {

class PlanStandardItemModel;

/// Makes a table view the plan table of a card: looks, behaviour, model and column widths. The
/// model is given its columns.
void setUpPlanTable(QTableView& table, PlanStandardItemModel& model);

} // namespace trel::mediadispatch
