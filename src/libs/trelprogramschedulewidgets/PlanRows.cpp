#include "PlanRows.h"

#include "FoldedRows.h"
#include "MultiComboBox.h"
#include "NewWidgets.h"
#include "PlanColumns.h"
#include "PlanTaskWidget.h"

#include "trelwidgets/ComboBox.h"

#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimeEdit>

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

void connectPlanRow(const PlanRowEditors& editors, PlanTaskWidget& card)
{
    QObject::connect(editors.mode, QOverload<int>::of(&QComboBox::currentIndexChanged), &card,
                     &PlanTaskWidget::slotModeIndexChanged);
    QObject::connect(editors.startTime, &QTimeEdit::timeChanged, &card,
                     &PlanTaskWidget::slotStartTimeChanged);
    QObject::connect(editors.endTime, &QTimeEdit::timeChanged, &card,
                     &PlanTaskWidget::slotEndTimeChanged);
    QObject::connect(editors.times, QOverload<int>::of(&QSpinBox::valueChanged), &card,
                     &PlanTaskWidget::slotTimesChanged);
    QObject::connect(editors.weeks, &MultiComboBox::signalSelectedText, &card,
                     &PlanTaskWidget::slotSelectedText);
    QObject::connect(editors.endAction, QOverload<int>::of(&QComboBox::currentIndexChanged), &card,
                     &PlanTaskWidget::slotEndActionIndexChanged);
    QObject::connect(editors.copy, &QPushButton::clicked, &card, &PlanTaskWidget::slotCopyPlan);
    QObject::connect(editors.remove, &QPushButton::clicked, &card, &PlanTaskWidget::slotDeletePlan);
}

} // namespace trel::mediadispatch
