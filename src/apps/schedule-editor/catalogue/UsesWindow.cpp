#include "catalogue/UsesWindow.h"

#include "catalogue/ProgramWords.h"
#include "catalogue/UseWords.h"
#include "catalogue/UsesModel.h"
#include "memory/RememberedDialog.h"
#include "screen/ProgramName.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// Of the name of a program, which may be a long one.
constexpr int kMostLines = 4;

} // namespace

UsesWindow::UsesWindow(QWidget* parent)
    : QDialog(parent)
    , m_model(new UsesModel(this))
    , m_summary(new ProgramName(this))
    , m_table(new QTableView(this))
    , m_next(new QLabel(this))
    , m_lookup(new ProgramLookup(this))
{
    setObjectName(QStringLiteral("usesWindow"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    // Days are named as in the window that it belongs to, and not as the system has them.
    setAttribute(Qt::WA_WindowPropagation);
    build();
    retranslate();
    resize(566, 340);
    new RememberedDialog(*this);
    const auto askWhileShown = [this] {
        if (isVisible()) {
            ask();
        }
    };
    const ScheduleHost& host = ScheduleHost::instance();
    connect(&host, &ScheduleHost::workingSetChanged, this, askWhileShown);
    connect(&host, &ScheduleHost::effectChanged, this, askWhileShown);
    connect(&host, &ScheduleHost::catalogueChanged, this, askWhileShown);
    connect(m_lookup, &ProgramLookup::answered, this, &UsesWindow::take);
    connect(m_table, &QAbstractItemView::doubleClicked, this, &UsesWindow::askPlan);
}

void UsesWindow::build()
{
    m_summary->setObjectName(QStringLiteral("usesSummary"));
    m_summary->setMostLines(kMostLines);
    m_next->setTextFormat(Qt::PlainText);
    m_next->setWordWrap(true);
    m_next->setObjectName(QStringLiteral("usesNext"));
    m_table->setObjectName(QStringLiteral("usesTable"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->installEventFilter(this);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* columns = m_table->horizontalHeader();
    columns->setStretchLastSection(true);
    columns->setHighlightSections(false);
    columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columns->resizeSection(UsesModel::TaskColumn, 70);
    columns->resizeSection(UsesModel::ValidColumn, 180);
    columns->resizeSection(UsesModel::PlanColumn, 64);
    columns->resizeSection(UsesModel::DaysColumn, 110);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_next);
}

void UsesWindow::setProgram(int progIndex)
{
    m_program = progIndex;
    ask();
}

void UsesWindow::setColours(const look::ThemeColours& colours)
{
    m_summary->setColours(colours);
}

void UsesWindow::ask()
{
    const auto catalogue = ScheduleHost::instance().catalogue();
    const auto known = catalogue->find(m_program);
    if (known != catalogue->end()) {
        m_name = programwords::name(known->second);
    }
    m_summary->setProgram(known != catalogue->end() ? m_program : -1);
    m_lookup->ask({m_program});
}

void UsesWindow::take(const LookupAnswer& answer)
{
    m_answer = answer;
    m_model->show(answer);
    tell();
}

void UsesWindow::tell()
{
    if (m_answer.programs.empty()) {
        // The answer is still on its way.
        return;
    }
    const int plans = static_cast<int>(m_answer.uses.size());
    m_summary->setText(plans == 0 ? tr("No plan plays “%1”.").arg(m_name)
                                  : tr("“%1” is played by %n plans.", nullptr, plans).arg(m_name));
    m_next->setText(UseWords::next(m_answer));
}

void UsesWindow::askPlan(const QModelIndex& index)
{
    if (index.isValid()) {
        const ProgramUse& use = m_model->use(index.row());
        emit planAsked(use.taskId, use.planId);
    }
}

void UsesWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange) {
        retranslate();
    }
}

bool UsesWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_table && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            askPlan(m_table->currentIndex());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void UsesWindow::retranslate()
{
    setWindowTitle(tr("Where used"));
    m_table->setAccessibleName(tr("Where used"));
    m_model->retranslate(locale());
    tell();
}

} // namespace trel::desktop
