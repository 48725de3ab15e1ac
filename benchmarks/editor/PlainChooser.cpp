#include "PlainChooser.h"

#include "ui_ProgramChoose.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>

using namespace trel::mediadispatch;

namespace bench {

namespace {

void setUpTable(QTableView& table, QStandardItemModel& model)
{
    table.setObjectName(QStringLiteral("schedule"));
    table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table.setModel(&model);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.horizontalHeader()->setMinimumSectionSize(34);
    table.horizontalHeader()->setStretchLastSection(true);
    table.verticalHeader()->setDefaultSectionSize(31);
    table.verticalHeader()->hide();
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setFocusPolicy(Qt::NoFocus);
    table.setColumnWidth(0, 34);
    table.setColumnWidth(1, 50);
    table.setSelectionMode(QAbstractItemView::NoSelection);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
}

} // namespace

void fillOffer(QStandardItemModel& model, const ProgramMap& programs)
{
    for (const auto& [index, program] : programs) {
        auto* order = new QStandardItem;
        order->setTextAlignment(Qt::AlignCenter);
        auto* name = new QStandardItem(QString::fromStdString(program.progName));
        name->setToolTip(name->text());
        model.appendRow({new QStandardItem, order, name});
    }
}

PlainChooser::PlainChooser(const ProgramMap& programs)
{
    Ui::ProgramChoose form;
    form.setupUi(this);
    auto* offer = new QStandardItemModel(0, 3, this);
    setUpTable(*form.tableViewProgramList, *offer);
    auto* plan = new QStandardItemModel(0, 4, this);
    setUpTable(*form.tableViewChoonse, *plan);
    form.tipLab->hide();
    form.warningLab->hide();
    form.overTimeTip->hide();
    fillOffer(*offer, programs);
}

} // namespace bench
