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

/// Keeps the row header of a plan table from asking the model for its rows, for as long as they are
/// left until somebody needs them. The toolkit has it ask at every change of style.
void keepRowsUnasked(QTableView& table);
/// Takes that back, before rows are put in.
void letRowsBeAsked(QTableView& table);

} // namespace trel::mediadispatch
