#include "PlanRows.h"

#include "FoldedRows.h"
#include "PlanColumns.h"
#include "toolkit/NewWidgets.h"

#include <QStandardItemModel>
#include <QTableView>

namespace trel::mediadispatch {

namespace {

/// Leaves no request of a row behind, as each would be looked for among those of all rows.
void polishRow(const QTableView& table, const QAbstractItemModel& model, int row)
{
    for (const int column :
         {ProgramsColumn, ModeColumn, StartTimeColumn, EndTimeColumn, TimesColumn, WeeksColumn,
          EndActionColumn, StateColumn, CopyColumn, DeleteColumn}) {
        if (QWidget* const widget = table.indexWidget(model.index(row, column))) {
            polishNewWidget(*widget);
        }
    }
}

} // namespace

// The cells of all rows come first, and their editors are opened last, since each of them would
// have the table laid out again.
std::vector<PlanRowEditors> buildPlanRows(QTableView& table, QStandardItemModel& model,
                                          const FoldedRows& rows)
{
    std::vector<PlanRowEditors> editors;
    editors.reserve(rows.rows().size());
    for (const PlanRowState& row : rows.rows()) {
        appendPlanCells(model, row, rows.firstTexts());
    }
    for (const PlanRowState& row : rows.rows()) {
        const int number = static_cast<int>(editors.size());
        editors.push_back(addPlanEditors(table, number, row, rows.firstTexts()));
        rows.stateLook().show(*editors.back().state, row.collides);
        polishRow(table, model, number);
    }
    for (int row = 0; row < model.rowCount(); ++row) {
        openRowEditors(table, row, rows.firstTexts());
        // Another delegate need not have made one.
        if (QWidget* const programs = table.indexWidget(model.index(row, ProgramsColumn))) {
            polishNewWidget(*programs);
        }
    }
    return editors;
}

} // namespace trel::mediadispatch
