#include "problems/ProblemPanel.h"

#include "problems/ProblemModel.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

QPushButton* plainButton(QWidget* parent, const QString& name)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

} // namespace

ProblemPanel::ProblemPanel(ProblemModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_table(new QTableView(this))
    , m_none(new QLabel(this))
    , m_go(plainButton(this, QStringLiteral("goToProblem")))
    , m_split(plainButton(this, QStringLiteral("splitPlan")))
{
    setObjectName(QStringLiteral("problemPanel"));
    m_table->setObjectName(QStringLiteral("problemTable"));
    m_table->setModel(&model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->verticalHeader()->hide();
    // Rows of one height are not asked for their texts before they are seen.
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* const columns = m_table->horizontalHeader();
    columns->setHighlightSections(false);
    columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columns->setSectionResizeMode(ProblemModel::WrongColumn, QHeaderView::Stretch);
    columns->setSectionResizeMode(ProblemModel::RemedyColumn, QHeaderView::Stretch);
    columns->resizeSection(ProblemModel::PlaceColumn, 136);
    columns->resizeSection(ProblemModel::DateColumn, 90);
    setFocusProxy(m_table);
    m_none->setObjectName(QStringLiteral("noProblems"));
    m_none->setTextFormat(Qt::PlainText);
    m_none->setAlignment(Qt::AlignCenter);

    auto* buttons = new QVBoxLayout;
    buttons->addWidget(m_go);
    buttons->addWidget(m_split);
    buttons->addStretch(1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 6, 0);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_none, 1);
    layout->addLayout(buttons);

    connect(m_table, &QAbstractItemView::activated, this, &ProblemPanel::activate);
    connect(m_go, &QPushButton::clicked, this, &ProblemPanel::activate);
    connect(m_split, &QPushButton::clicked, this, &ProblemPanel::split);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ProblemPanel::update);
    for (const auto change :
         {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(&model, change, this, &ProblemPanel::update);
    }
    connect(&model, &QAbstractItemModel::modelReset, this, &ProblemPanel::update);
    retranslate();
    update();
}

QSize ProblemPanel::sizeHint() const
{
    constexpr int kWidth = 420;
    return {kWidth, m_table->horizontalHeader()->sizeHint().height() +
                        m_rows * m_table->verticalHeader()->defaultSectionSize() +
                        2 * m_table->frameWidth()};
}

void ProblemPanel::setRows(int rows)
{
    m_rows = qMax(1, rows);
    updateGeometry();
}

void ProblemPanel::setListName(const QString& name)
{
    m_table->setAccessibleName(name);
}

int ProblemPanel::current() const
{
    return m_table->currentIndex().row();
}

void ProblemPanel::activate()
{
    if (const int row = current(); row >= 0) {
        const ScheduleProblem& problem = m_model.problem(row);
        emit activated(problem.taskId, problem.planId);
    }
}

void ProblemPanel::split()
{
    if (const int row = current(); row >= 0 && m_model.problem(row).canBeSplit) {
        const ScheduleProblem& problem = m_model.problem(row);
        emit splitAsked(problem.taskId, problem.planId);
    }
}

void ProblemPanel::update()
{
    const bool isEmpty = m_model.rowCount() == 0;
    const int row = current();
    m_table->setVisible(!isEmpty);
    m_none->setVisible(isEmpty);
    m_go->setVisible(!isEmpty);
    m_split->setVisible(!isEmpty);
    m_go->setEnabled(row >= 0);
    m_split->setEnabled(row >= 0 && m_model.problem(row).canBeSplit);
}

void ProblemPanel::retranslate()
{
    m_model.retranslate(locale());
    m_none->setText(tr("No problems."));
    m_go->setText(tr("Go to the row"));
    m_split->setText(tr("Split in two"));
    // Two lines, as sentences are long.
    const int lines = 2 * m_table->fontMetrics().lineSpacing();
    m_table->verticalHeader()->setDefaultSectionSize(lines + 6);
}

void ProblemPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange ||
        event->type() == QEvent::FontChange) {
        retranslate();
    }
}

} // namespace trel::desktop
