#include "versions/ComparedWeeks.h"

#include "fit/ColumnRoom.h"
#include "look/ProgramSignDelegate.h"
#include "versions/StretchModel.h"
#include "versions/VersionTables.h"
#include "versions/VersionWords.h"
#include "week/WeekPair.h"
#include "week/WeekView.h"

#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

namespace {

std::shared_ptr<const week::WeekSchedule> nothing()
{
    return std::make_shared<week::WeekSchedule>(week::WeekSchedule::Tasks(),
                                                week::WeekSchedule::Catalogue(), ScreenInsertions(),
                                                QTimeZone::systemTimeZone());
}

} // namespace

ComparedWeeks::ComparedWeeks(QWidget* parent)
    : QWidget(parent)
    , m_weeks(new week::WeekPair(this))
    , m_model(new StretchModel(this))
    , m_table(new QTableView(this))
    , m_signs(new look::ProgramSignDelegate(m_table))
    , m_summary(new QLabel(this))
{
    m_table->setObjectName(QStringLiteral("stretchTable"));
    m_summary->setObjectName(QStringLiteral("stretchSummary"));
    m_summary->setTextFormat(Qt::PlainText);
    build();
    connect(m_weeks, &week::WeekPair::weekChanged, this, &ComparedWeeks::findStretches);
}

ComparedWeeks::~ComparedWeeks() = default;

void ComparedWeeks::build()
{
    prepareTable(*m_table, m_model);
    m_table->setItemDelegate(m_signs);
    QHeaderView* columns = m_table->horizontalHeader();
    columns->resizeSection(StretchModel::FromColumn, columns->minimumSectionSize());
    columns->resizeSection(StretchModel::ToColumn, columns->minimumSectionSize());
    columns->resizeSection(StretchModel::FormerColumn, 260);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_weeks, 3);
    layout->addWidget(m_summary);
    layout->addWidget(m_table, 1);
}

void ComparedWeeks::setComparison(const std::shared_ptr<const StateComparison>& comparison)
{
    m_comparison = comparison;
    if (m_comparison != nullptr) {
        m_weeks->former().setPicture(m_comparison->former.picture);
        m_weeks->later().setPicture(m_comparison->later.picture);
    } else {
        const auto none = nothing();
        m_weeks->former().setSchedule(none);
        m_weeks->later().setSchedule(none);
    }
    updateNames();
    findStretches();
}

QDate ComparedWeeks::firstDay() const
{
    return m_weeks->firstDay();
}

void ComparedWeeks::findStretches()
{
    // What is there is of another week or of other states.
    m_model->setStretches(nullptr, {});
    m_isFinding = m_comparison != nullptr;
    tellStretches();
    m_work.start([this, states = m_comparison,
                  day = firstDay()](const follow::Cancellation&) -> follow::NewestWork::Outcome {
        auto found = std::make_shared<WeekOnScreen>();
        if (states != nullptr) {
            *found = compareOnScreen(*states, day);
        }
        // Runs in the thread of the window, and not once that has gone.
        return [this, states, found] {
            m_isFinding = false;
            m_model->setStretches(states, std::move(*found));
            fit::widenToContents(*m_table, StretchModel::FromColumn);
            fit::widenToContents(*m_table, StretchModel::ToColumn);
            tellStretches();
        };
    });
}

void ComparedWeeks::tellStretches()
{
    if (m_comparison == nullptr) {
        m_summary->clear();
    } else if (m_isFinding) {
        m_summary->setText(tr("Comparing…"));
    } else {
        const int count = m_model->rowCount();
        m_summary->setText(
            count == 0 ? tr("Nothing differs on the screen in this week.")
                       : tr("%n stretches of this week differ on the screen:", nullptr, count));
    }
}

void ComparedWeeks::updateNames()
{
    const auto name = [this](const ComparedState StateComparison::*state) {
        return m_comparison == nullptr ? QString()
                                       : VersionWords::state((m_comparison.get()->*state).state);
    };
    m_weeks->setNames(name(&StateComparison::former), name(&StateComparison::later));
}

void ComparedWeeks::setColours(const look::ThemeColours& colours)
{
    m_weeks->setColours(colours);
    m_signs->setColours(colours);
    m_table->viewport()->update();
}

void ComparedWeeks::setLanguage(const QLocale& locale)
{
    setLocale(locale);
    m_weeks->setLanguage(locale);
    m_table->setAccessibleName(tr("What differs on the screen"));
    m_model->retranslate();
    updateNames();
    tellStretches();
}

} // namespace trel::desktop::versions
