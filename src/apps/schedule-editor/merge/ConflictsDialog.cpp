#include "merge/ConflictsDialog.h"

#include "changes/ChangesDialog.h"
#include "memory/RememberedDialog.h"
#include "merge/MergeWords.h"
#include "service/TaskPeriods.h"
#include "versions/DifferenceWords.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::merge {

namespace {

enum Column { TaskColumn, ChoiceColumn, ColumnCount };

/// In rows of the table.
constexpr int kRowsInSight = 5;

ScheduleMerge::Tasks alone(const ScheduleMerge::Tasks& tasks, int taskId)
{
    const auto task = tasks.find(taskId);
    return task == tasks.end() ? ScheduleMerge::Tasks() : ScheduleMerge::Tasks{*task};
}

} // namespace

ConflictsDialog::ConflictsDialog(const ScheduleMerge& merge, const Programs& programs,
                                 Choices choices, QWidget* window)
    : QDialog(window)
    , m_merge(merge)
    , m_programs(programs)
    , m_choices(std::move(choices))
{
    setObjectName(QStringLiteral("conflictsDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowModality(Qt::ApplicationModal);
    setLocale(window->locale());
    setWindowTitle(tr("Tasks that were changed at both desks"));
    // In the order in which Tab leads through them, and in which they are read.
    auto* text = new QLabel(tr("These tasks were changed here and at the other desk. Choose for "
                               "each of them which one stays."),
                            this);
    text->setWordWrap(true);
    buildTable();
    auto* sides = new QHBoxLayout;
    sides->addLayout(buildSide(m_mine, MergeSide::Mine, tr("Mine, as it is edited here")));
    sides->addLayout(buildSide(m_theirs, MergeSide::Theirs, tr("Theirs, as it was saved there")));
    m_outlook = new QLabel(this);
    m_outlook->setObjectName(QStringLiteral("mergeOutlook"));
    m_outlook->setTextFormat(Qt::PlainText);
    m_outlook->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_table);
    layout->addLayout(sides, 1);
    layout->addWidget(m_outlook);
    buildButtons(*layout);
    // selectRow() looks for a column at the left edge, where there may be none when one reads from
    // the right.
    m_table->setCurrentCell(0, TaskColumn);
    tellOutlook();
    resize(760, 480);
    new RememberedDialog(*this);
}

void ConflictsDialog::buildTable()
{
    const auto rows = static_cast<int>(m_merge.conflicts().size());
    m_table = new QTableWidget(this);
    m_table->setObjectName(QStringLiteral("conflictTable"));
    m_table->setAccessibleName(windowTitle());
    m_table->setRowCount(rows);
    m_table->setColumnCount(ColumnCount);
    m_table->setHorizontalHeaderLabels({tr("Task"), tr("What stays")});
    m_table->verticalHeader()->hide();
    // As in every table of the host.
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    for (int row = 0; row < rows; ++row) {
        m_table->setItem(row, TaskColumn, new QTableWidgetItem(QString::number(taskOf(row))));
        m_table->setItem(row, ChoiceColumn, new QTableWidgetItem);
        showChoice(row);
    }
    const int inSight = std::min(rows, kRowsInSight);
    m_table->setFixedHeight(m_table->horizontalHeader()->sizeHint().height() +
                            inSight * m_table->verticalHeader()->defaultSectionSize() +
                            2 * m_table->frameWidth());
    connect(m_table, &QTableWidget::currentCellChanged, this, &ConflictsDialog::showTask);
}

QBoxLayout* ConflictsDialog::buildSide(Side& side, MergeSide which, const QString& text)
{
    const bool isMine = which == MergeSide::Mine;
    side.take = new QRadioButton(text, this);
    side.take->setObjectName(isMine ? QStringLiteral("takeMine") : QStringLiteral("takeTheirs"));
    side.lines = new QPlainTextEdit(this);
    side.lines->setObjectName(isMine ? QStringLiteral("linesOfMine")
                                     : QStringLiteral("linesOfTheirs"));
    side.lines->setAccessibleName(text);
    side.lines->setReadOnly(true);
    side.lines->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    side.lines->setTabChangesFocus(true);
    connect(side.take, &QRadioButton::clicked, this, [this, which] { choose(which); });
    auto* layout = new QVBoxLayout;
    layout->addWidget(side.take);
    layout->addWidget(side.lines, 1);
    return layout;
}

void ConflictsDialog::buildButtons(QBoxLayout& layout)
{
    auto* back = new QPushButton(tr("Back"), this);
    back->setObjectName(QStringLiteral("backToQuestion"));
    back->setDefault(true);
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
    m_mergeButton = new QPushButton(this);
    m_mergeButton->setObjectName(QStringLiteral("mergeChosen"));
    m_mergeButton->setAutoDefault(false);
    m_mergeButton->setProperty("style", QStringLiteral("general"));
    connect(m_mergeButton, &QPushButton::clicked, this, &QDialog::accept);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(back);
    row->addWidget(m_mergeButton);
    layout.addLayout(row);
}

int ConflictsDialog::taskOf(int row) const
{
    return m_merge.conflicts().at(static_cast<std::size_t>(row));
}

void ConflictsDialog::showTask(int row)
{
    if (row < 0) {
        return;
    }
    const int id = taskOf(row);
    const ScheduleMerge::Tasks base = alone(m_merge.base(), id);
    const auto choice = m_choices.find(id);
    const auto show = [&](const Side& side, MergeSide which, const ScheduleMerge::Tasks& tasks) {
        side.lines->setPlainText(versions::DifferenceWords::lines(base, alone(tasks, id),
                                                                  m_programs, changes::kMostLines)
                                     .join(QLatin1Char('\n')));
        // Of two that exclude each other, none could be left unchecked.
        side.take->setAutoExclusive(false);
        side.take->setChecked(choice != m_choices.end() && choice->second == which);
    };
    show(m_mine, MergeSide::Mine, m_merge.mine());
    show(m_theirs, MergeSide::Theirs, m_merge.theirs());
    m_mine.take->setAutoExclusive(true);
    m_theirs.take->setAutoExclusive(true);
}

void ConflictsDialog::choose(MergeSide side)
{
    std::set<int> rows = {m_table->currentRow()};
    const QModelIndexList selected = m_table->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected) {
        rows.insert(index.row());
    }
    for (const int row : rows) {
        m_choices.insert_or_assign(taskOf(row), side);
        showChoice(row);
    }
    m_mine.take->setChecked(side == MergeSide::Mine);
    m_theirs.take->setChecked(side == MergeSide::Theirs);
    tellOutlook();
}

void ConflictsDialog::showChoice(int row)
{
    const auto choice = m_choices.find(taskOf(row));
    m_table->item(row, ChoiceColumn)
        ->setText(choice == m_choices.end()           ? tr("not chosen yet")
                  : choice->second == MergeSide::Mine ? tr("mine")
                                                      : tr("theirs"));
}

void ConflictsDialog::tellOutlook()
{
    const auto left = static_cast<int>(m_merge.conflicts().size() - m_choices.size());
    m_mergeButton->setEnabled(left == 0);
    const auto overlap =
        left == 0 ? firstTaskOverlap(m_merge.merged(m_choices)) : std::optional<TaskOverlap>();
    m_mergeButton->setText(overlap ? MergeWords::mergeAndGoOn() : MergeWords::mergeAndSave());
    m_outlook->setText(left > 0  ? tr("%n tasks are still to be chosen.", nullptr, left)
                       : overlap ? MergeWords::overlap(overlap->first, overlap->second)
                                 : tr("Everything else of both is kept."));
}

bool ConflictsDialog::ask()
{
    return exec() == Accepted;
}

} // namespace trel::desktop::merge
