#pragma once

class QObject;
class QTableView;

namespace trel::mediadispatch {

class LineEditDelegate;
class PlanStandardItemModel;

/// Makes a table view the plan table of a card: looks, behaviour, model, delegates and column
/// widths. The model is given its columns. The delegates become children of owner; the one of the
/// programs is returned.
LineEditDelegate* setUpPlanTable(QTableView& table, PlanStandardItemModel& model, QObject* owner);

} // namespace trel::mediadispatch
