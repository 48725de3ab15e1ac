#pragma once

class QLabel;
class QPushButton;
class QSpinBox;
class QStandardItemModel;
class QTableView;
class QTimeEdit;

namespace trel::widgets {
class ComboBox;
}

namespace trel::mediadispatch {

class MultiComboBox;
struct PlanRowState;
struct PlanRowTexts;

/// The editors of one plan row. The table owns them.
struct PlanRowEditors
{
    widgets::ComboBox* mode = nullptr;
    QTimeEdit* startTime = nullptr;
    QTimeEdit* endTime = nullptr;
    QSpinBox* times = nullptr;
    QLabel* state = nullptr;
    MultiComboBox* weeks = nullptr;
    widgets::ComboBox* endAction = nullptr;
    QPushButton* copy = nullptr;   ///< The property "id" holds the plan's id, which stays when rows
    QPushButton* remove = nullptr; ///< move.
};

/// Appends the cells of a plan to the model, without editors, and returns their row.
///
/// Where many rows are added the cells of all come first: for each row that is inserted the model
/// goes through all cells that have an editor.
int appendPlanCells(QStandardItemModel& model, const PlanRowState& row, const PlanRowTexts& texts);

/// Gives the cells of a row their editors. They show what the row shows and are not connected to
/// anything. The state label is left empty.
PlanRowEditors addPlanEditors(QTableView& table, int number, const PlanRowState& state,
                              const PlanRowTexts& texts);

/// Opens the field of the row's programs and shows its editors.
void openRowEditors(QTableView& table, int row, const PlanRowTexts& texts);

/// Gives title, captions and tool tips of a row other words. The editors are left alone.
void translatePlanRow(QTableView& table, int row, const PlanRowTexts& texts);

void translateModeBox(widgets::ComboBox& box, const PlanRowTexts& texts);
void translateEndActionBox(widgets::ComboBox& box, const PlanRowTexts& texts);
/// Gives the box new labels. The text that it shows stays, in its old language, until its selection
/// changes.
void translateWeekBox(MultiComboBox& box, const PlanRowTexts& texts);

} // namespace trel::mediadispatch
