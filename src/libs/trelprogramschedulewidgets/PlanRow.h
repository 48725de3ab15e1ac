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
    int row = -1;
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

/// Appends a row for the plan to the table and its model. The editors show the plan's values and
/// are not connected to anything.
///
/// Corrects in the plan what a row cannot show: a plan with a program that has no length of its own
/// goes to TimeMode, where its mode box is locked, and days left empty become every day.
PlanRowEditors appendPlanRow(QTableView& table, QStandardItemModel& model, PlayPlan& plan);

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
