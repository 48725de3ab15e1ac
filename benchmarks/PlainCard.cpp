#include "PlainCard.h"

#include "card/PlanColumns.h"
#include "ui_PlanTaskWidget.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include <array>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr std::array<int, PlanColumnCount> kColumnWidths = {60, 150, 50,  66, 45,  88, 24, 88, 50,
                                                            45, 40,  100, 64, 120, 60, 24, 24};

QDate date(const std::string& text)
{
    return QDate::fromString(QString::fromStdString(text), kDateFormat);
}

} // namespace

PlainCard::PlainCard(const PlayTask& task, QWidget* parent)
    : QWidget(parent)
{
    setFixedWidth(1100);
    setAttribute(Qt::WA_StyledBackground);
    setProperty("style", QStringLiteral("BG1"));
    Ui::PlanTaskWidget form;
    form.setupUi(this);
    form.arrow->setProperty("labelImage", QStringLiteral("right"));
    form.title->setText(QStringLiteral("Task %1    ").arg(task.id));
    form.labelvalidTime->setText(QStringLiteral("Valid from"));
    form.labelTo->setText(QStringLiteral("to"));
    form.dateEditVaildStartTime->setDate(date(task.startDate));
    form.dateEditVaildEndTime->setDate(date(task.endDate));
    m_table = form.tableView;
    m_body = form.widget;
    setUpTable();
}

void PlainCard::setUpTable()
{
    m_table->setObjectName(QStringLiteral("schedule"));
    m_table->verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
    m_table->verticalScrollBar()->setFixedWidth(8);
    m_model = new QStandardItemModel(0, PlanColumnCount, this);
    m_table->setModel(m_model);
    QHeaderView& columns = *m_table->horizontalHeader();
    columns.setVisible(false);
    columns.setSectionsMovable(true);
    columns.setMinimumSectionSize(24);
    QHeaderView& rows = *m_table->verticalHeader();
    rows.setVisible(false);
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(44);
    rows.setDefaultAlignment(Qt::AlignCenter);
    m_table->setDragDropMode(QAbstractItemView::InternalMove);
    m_table->setDragEnabled(false);
    m_table->setDropIndicatorShown(false);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setShowGrid(false);
    m_table->setEditTriggers(QAbstractItemView::AllEditTriggers);
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    auto* readOnly = new QStyledItemDelegate(this);
    for (int column = TitleColumn; column <= StateColumn; column += 2) {
        m_table->setItemDelegateForColumn(column, readOnly);
    }
    for (int column = 0; column < PlanColumnCount; ++column) {
        m_table->setColumnWidth(column, kColumnWidths.at(static_cast<std::size_t>(column)));
    }
}

void PlainCard::addRows(const PlayTask& task, DayLists dayLists)
{
    m_table->setUpdatesEnabled(false);
    for (const PlayPlan& plan : task.plans) {
        m_model->appendRow(makePlainCells(plan));
    }
    QWidget* const viewport = m_table->viewport();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const PlayPlan& plan = task.plans[static_cast<std::size_t>(row)];
        addPlainEditors(*m_table, row, plan, viewport, dayLists);
        m_table->setIndexWidget(m_model->index(row, ProgramsColumn),
                                makePlainField(plan, viewport));
    }
    m_table->setUpdatesEnabled(true);
}

void PlainCard::fold()
{
    m_body->setVisible(false);
    adjustSize();
}

} // namespace bench
