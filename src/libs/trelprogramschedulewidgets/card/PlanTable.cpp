#include "PlanTable.h"

#include "LineEditDelegate.h"
#include "PlanColumns.h"
#include "PlanStandardItemModel.h"
#include "ReadOnlyDelegate.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScrollBar>
#include <QTableView>

#include <array>

namespace trel::mediadispatch {

namespace {

constexpr int kRowHeight = 44;
constexpr int kScrollBarWidth = 8;
constexpr int kLeastColumnWidth = 24;

constexpr std::array<int, PlanColumnCount> kColumnWidths = {
    60,       // title
    150,      // programs
    50,  66,  // mode
    45,  88,  // start time
    24,  88,  // end time
    50,  45,  // times
    40,  100, // weeks
    64,  120, // end action
    60,       // state
    24,  24,  // copy, delete
};

void setUpHeaders(QTableView& table)
{
    table.horizontalHeader()->setVisible(false);
    table.verticalHeader()->setVisible(false);
    // The themes know the table by this name.
    table.setObjectName(QStringLiteral("schedule"));
    table.horizontalHeader()->setSectionsMovable(true);
    // The toolkit does not let a column be narrower than a wide letter by itself.
    table.horizontalHeader()->setMinimumSectionSize(kLeastColumnWidth);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(kRowHeight);
    table.verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
}

void setUpBehaviour(QTableView& table)
{
    table.setDragDropMode(QAbstractItemView::InternalMove);
    // The order of plans is the order in which they were added, so no row may be dragged.
    table.setDragEnabled(false);
    table.setDropIndicatorShown(false);
    // With dragging turned off the toolkit takes the table for one that drops of any source may
    // move the rows of.
    table.viewport()->setAcceptDrops(false);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setShowGrid(false);
    table.setEditTriggers(QAbstractItemView::AllEditTriggers);
    table.setFocusPolicy(Qt::NoFocus);
    // Otherwise Tab goes round in the cells of the table and never out of it.
    table.setTabKeyNavigation(false);
}

// A header makes a selection of its own for its model and leaves it behind when the table hands it
// the one that they share. Each would follow all that happens to the rows to no use.
void dropSpareSelections(const QTableView& table)
{
    for (const QHeaderView* const header : {table.horizontalHeader(), table.verticalHeader()}) {
        const auto selections =
            header->findChildren<QItemSelectionModel*>(QString(), Qt::FindDirectChildrenOnly);
        for (QItemSelectionModel* const selection : selections) {
            if (selection != header->selectionModel()) {
                delete selection;
            }
        }
    }
}

// Beside a vertical scroll bar the columns need a few pixels more than there are, and no scroll bar
// moves the table sideways. So it always shows its right end, where the buttons are, and what goes
// out of sight is the blank at the head of the titles.
void keepRightEndInSight(QTableView& table)
{
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    QScrollBar* const bar = table.horizontalScrollBar();
    const auto toTheEnd = [bar] { bar->setValue(bar->maximum()); };
    QObject::connect(bar, &QScrollBar::rangeChanged, bar, toTheEnd);
    QObject::connect(bar, &QScrollBar::valueChanged, bar, toTheEnd);
}

LineEditDelegate* addDelegates(QTableView& table, QObject* owner)
{
    auto* const readOnly = new ReadOnlyDelegate(owner);
    for (const int column :
         {TitleColumn, ModeCaptionColumn, StartTimeCaptionColumn, EndTimeCaptionColumn,
          TimesCaptionColumn, WeeksCaptionColumn, EndActionCaptionColumn, StateColumn}) {
        table.setItemDelegateForColumn(column, readOnly);
    }
    auto* const programs = new LineEditDelegate(owner);
    table.setItemDelegateForColumn(ProgramsColumn, programs);
    return programs;
}

} // namespace

LineEditDelegate* setUpPlanTable(QTableView& table, PlanStandardItemModel& model, QObject* owner)
{
    table.verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    table.verticalScrollBar()->setFixedWidth(kScrollBarWidth);

    setUpHeaders(table);
    setUpBehaviour(table);
    // After the headers are hidden, or they would be measured in vain.
    model.setColumnCount(PlanColumnCount);
    table.setModel(&model);
    dropSpareSelections(table);
    keepRightEndInSight(table);
    LineEditDelegate* const programs = addDelegates(table, owner);
    for (int column = 0; column < PlanColumnCount; ++column) {
        table.setColumnWidth(column, kColumnWidths.at(static_cast<std::size_t>(column)));
    }
    return programs;
}

void keepRowsUnasked(QTableView& table)
{
    table.verticalHeader()->setModel(nullptr);
}

void letRowsBeAsked(QTableView& table)
{
    if (table.verticalHeader()->model() == table.model()) {
        return;
    }
    table.verticalHeader()->setModel(table.model());
    table.verticalHeader()->setSelectionModel(table.selectionModel());
    dropSpareSelections(table);
}

} // namespace trel::mediadispatch
