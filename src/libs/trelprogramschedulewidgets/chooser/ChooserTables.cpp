#include "ChooserTables.h"

#include "CheckBoxDelegate.h"
#include "ChooserColumns.h"
#include "CustomTableModel.h"
#include "LeftCheckNumDelegate.h"
#include "RightCheckNumDelegate.h"
#include "SHeaderView.h"
#include "SpinBoxDelegate.h"

#include <QScrollBar>
#include <QTableView>

namespace trel::mediadispatch {

namespace {

constexpr int kRowHeight = 31;
constexpr int kCheckWidth = 34;
constexpr int kNumberWidth = 50;
constexpr int kNameWidth = 110;
constexpr int kCountWidth = 94;

/// Says all about a header that it can be told while it has no sections.
SHeaderView* makeHeader(QTableView* table, CheckType type)
{
    auto* header = new SHeaderView(type, Qt::Horizontal, table);
    header->setObjectName(QStringLiteral("schedule"));
    header->drawMissingImages();
    header->cutLongLabels();
    header->setDefaultAlignment(Qt::AlignCenter);
    // Some styles would not let a section be as narrow as the mark.
    header->setMinimumSectionSize(kCheckWidth);
    return header;
}

/// Gives the table its model last. A header that is replaced or changed while it shows a model is
/// measured, and connected to the model, more than once.
SHeaderView* setUpTable(QTableView* table, CustomTableModel* model, CheckType type)
{
    static_assert(int(OfferCheckColumn) == int(ChoiceCheckColumn));
    static_assert(int(OfferOrderColumn) == int(ChoiceNumberColumn));
    table->setObjectName(QStringLiteral("schedule"));
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    SHeaderView* header = makeHeader(table, type);
    table->setHorizontalHeader(header);
    table->verticalHeader()->setDefaultSectionSize(kRowHeight);
    table->verticalHeader()->hide();
    table->setShowGrid(false);
    // A row has room for one line: a long name is cut where the cell ends, not after a word.
    table->setWordWrap(false);
    table->setFocusPolicy(Qt::NoFocus);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    auto* const checks = new CheckBoxDelegate(type, table);
    checks->drawMissingImages();
    table->setItemDelegateForColumn(OfferCheckColumn, checks);
    table->verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);

    // The header paints labels of its own; a section without an item would show its number below.
    for (int section = 0; section < model->columnCount(); ++section) {
        model->setHorizontalHeaderItem(section, new QStandardItem);
    }
    table->setModel(model);
    for (int section = 0; section < model->columnCount(); ++section) {
        header->setSectionResizeMode(section, QHeaderView::Fixed);
    }
    header->setStretchLastSection(true);
    table->setColumnWidth(OfferCheckColumn, kCheckWidth);
    table->setColumnWidth(OfferOrderColumn, kNumberWidth);
    return header;
}

} // namespace

SHeaderView* setUpProgramTable(QTableView* table, CustomTableModel* model)
{
    model->setColumnCount(OfferColumnCount);
    SHeaderView* header = setUpTable(table, model, ProgramListCheck);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setItemDelegateForColumn(OfferOrderColumn, new LeftCheckNumDelegate(table));
    table->setAttribute(Qt::WA_Hover);
    return header;
}

SHeaderView* setUpChoiceTable(QTableView* table, CustomTableModel* model)
{
    // The hidden columns come into being with the first row.
    model->setColumnCount(ChoiceVisibleColumnCount);
    SHeaderView* header = setUpTable(table, model, PlanListCheck);
    table->setColumnWidth(ChoiceNameColumn, kNameWidth);
    table->setColumnWidth(ChoiceCountColumn, kCountWidth);
    table->setItemDelegateForColumn(ChoiceNumberColumn, new RightCheckNumDelegate(table));
    table->setItemDelegateForColumn(ChoiceCountColumn, new SpinBoxDelegate(table));
    table->setEditTriggers(QAbstractItemView::DoubleClicked);
    return header;
}

} // namespace trel::mediadispatch
