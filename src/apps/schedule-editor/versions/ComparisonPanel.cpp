#include "versions/ComparisonPanel.h"

#include "ProblemWords.h"
#include "look/ProgramSignDelegate.h"
#include "versions/ComparedWeeks.h"
#include "versions/DifferenceModel.h"
#include "versions/VersionTables.h"
#include "versions/VersionWords.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace trel::desktop::versions {

ComparisonPanel::ComparisonPanel(QWidget* parent)
    : QWidget(parent)
    , m_headline(new QLabel(this))
    , m_tabs(new QTabWidget(this))
    , m_model(new DifferenceModel(this))
    , m_table(new QTableView(this))
    , m_signs(new look::ProgramSignDelegate(m_table))
    , m_weeks(new ComparedWeeks(this))
{
    m_headline->setObjectName(QStringLiteral("versionHeadline"));
    m_headline->setTextFormat(Qt::PlainText);
    m_headline->setWordWrap(true);
    m_tabs->setObjectName(QStringLiteral("versionTabs"));
    m_table->setObjectName(QStringLiteral("differenceTable"));
    prepareTable(*m_table, m_model);
    m_table->setItemDelegate(m_signs);
    m_table->horizontalHeader()->resizeSection(DifferenceModel::TaskColumn, 76);
    m_table->horizontalHeader()->resizeSection(DifferenceModel::PlanColumn, 60);
    m_tabs->addTab(m_table, QString());
    m_tabs->addTab(m_weeks, QString());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_headline);
    layout->addWidget(m_tabs, 1);
}

void ComparisonPanel::clear(Without reason)
{
    m_without = reason;
    show(nullptr);
}

void ComparisonPanel::setComparison(std::shared_ptr<const StateComparison> comparison)
{
    show(comparison);
}

void ComparisonPanel::show(const std::shared_ptr<const StateComparison>& comparison)
{
    m_comparison = comparison;
    const bool isWhole = comparison != nullptr && comparison->result;
    m_model->setComparison(isWhole ? comparison : nullptr);
    m_weeks->setComparison(isWhole ? comparison : nullptr);
    m_tabs->setEnabled(isWhole);
    tellHeadline();
}

void ComparisonPanel::tellHeadline()
{
    if (m_comparison == nullptr) {
        m_headline->setText(m_without == Without::OnItsWay          ? tr("Comparing…")
                            : m_without == Without::NothingInEffect ? tr("Nothing is in effect.")
                                                                    : QString());
    } else if (!m_comparison->result) {
        m_headline->setText(problems::sentence(m_comparison->result));
    } else {
        m_headline->setText(
            tr("%1 → %2: %3", "two states, and how much differs")
                .arg(VersionWords::state(m_comparison->former.state),
                     VersionWords::state(m_comparison->later.state),
                     VersionWords::count(static_cast<int>(m_comparison->differences.size()))));
    }
}

std::shared_ptr<const StateComparison> ComparisonPanel::comparison() const
{
    return m_comparison;
}

const week::WeekSchedule::Tasks* ComparisonPanel::tasksOf(qint64 version) const
{
    if (m_comparison == nullptr || !m_comparison->result) {
        return nullptr;
    }
    for (const ComparedState* one : {&m_comparison->former, &m_comparison->later}) {
        if (one->state == ScheduleState{ScheduleState::Version, version}) {
            return &one->tasks;
        }
    }
    return nullptr;
}

QDate ComparisonPanel::firstDay() const
{
    return m_weeks->firstDay();
}

void ComparisonPanel::setColours(const look::ThemeColours& colours)
{
    m_signs->setColours(colours);
    m_table->viewport()->update();
    m_weeks->setColours(colours);
}

void ComparisonPanel::setLanguage(const QLocale& locale)
{
    setLocale(locale);
    m_tabs->setTabText(0, tr("In words"));
    m_tabs->setTabText(1, tr("On the screen"));
    m_table->setAccessibleName(tr("What differs"));
    m_model->retranslate();
    m_weeks->setLanguage(locale);
    tellHeadline();
}

} // namespace trel::desktop::versions
