#pragma once

#include "service/ScheduleRecords.h"

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
int appendPlanCells(QStandardItemModel& model, const PlayPlan& plan);

/// Gives the cells of a row their editors. They show the plan's values and are not connected to
/// anything.
///
/// Corrects in the plan what a row cannot show: a plan with a program that has no length of its own
/// goes to TimeMode, where its mode box is locked, and days left empty become every day.
PlanRowEditors addPlanEditors(QTableView& table, int row, PlayPlan& plan);

/// Opens the field of the row's programs and shows its editors.
void openRowEditors(QTableView& table, int row);

/// Fetches title, captions and tool tips of a row anew. The editors are left alone.
void translatePlanRow(QTableView& table, int row);

void translateModeBox(widgets::ComboBox& box);
void translateEndActionBox(widgets::ComboBox& box);
/// Gives the box new labels. The text that it shows stays, in its old language, until its selection
/// changes.
void translateWeekBox(MultiComboBox& box);

} // namespace trel::mediadispatch
