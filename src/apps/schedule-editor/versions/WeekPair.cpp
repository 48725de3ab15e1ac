#include "versions/WeekPair.h"

#include "trelwidgets/PlainToolTip.h"
#include "versions/StretchModel.h"
#include "versions/VersionTables.h"
#include "versions/VersionWords.h"
#include "week/WeekStep.h"
#include "week/WeekView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

namespace {

constexpr int kSignWidth = 28;

std::shared_ptr<const week::WeekSchedule> nothing()
{
    return std::make_shared<week::WeekSchedule>(week::WeekSchedule::Tasks(),
                                                week::WeekSchedule::Catalogue(), ScreenInsertions(),
                                                QTimeZone::systemTimeZone());
}

void setWords(QPushButton* button, const QString& words)
{
    button->setToolTip(trel::widgets::plainToolTip(words));
    button->setAccessibleName(words);
}

} // namespace

WeekPair::WeekPair(QWidget* parent)
    : QWidget(parent)
    , m_former(new week::WeekView(this))
    , m_later(new week::WeekView(this))
    , m_formerTitle(new QLabel(this))
    , m_laterTitle(new QLabel(this))
    , m_back(addButton("versionWeekBack", QStringLiteral("‹")))
    , m_now(addButton("versionWeekNow", QString()))
    , m_next(addButton("versionWeekNext", QStringLiteral("›")))
    , m_week(new QLabel(this))
    , m_model(new StretchModel(this))
    , m_table(new QTableView(this))
    , m_summary(new QLabel(this))
{
    m_former->setObjectName(QStringLiteral("formerWeek"));
    m_later->setObjectName(QStringLiteral("laterWeek"));
    m_table->setObjectName(QStringLiteral("stretchTable"));
    m_summary->setObjectName(QStringLiteral("stretchSummary"));
    m_week->setObjectName(QStringLiteral("versionWeek"));
    for (QLabel* label : {m_formerTitle, m_laterTitle, m_week, m_summary}) {
        label->setTextFormat(Qt::PlainText);
    }
    build();
    week::keepInStep(*m_former, *m_later);
    connect(m_back, &QPushButton::clicked, m_former, [this] { m_former->stepWeeks(-1); });
    connect(m_next, &QPushButton::clicked, m_former, [this] { m_former->stepWeeks(1); });
    connect(m_now, &QPushButton::clicked, m_former, &week::WeekView::showNow);
    connect(m_former, &week::WeekView::weekChanged, this, [this] {
        updateTitles();
        findStretches();
    });
}

WeekPair::~WeekPair() = default;

QPushButton* WeekPair::addButton(const char* name, const QString& sign)
{
    auto* button = new QPushButton(sign, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    if (!sign.isEmpty()) {
        button->setFixedWidth(kSignWidth);
    }
    return button;
}

QBoxLayout* WeekPair::side(QLabel* title, week::WeekView* view)
{
    auto* layout = new QVBoxLayout;
    layout->addWidget(title);
    layout->addWidget(view, 1);
    return layout;
}

void WeekPair::build()
{
    auto* controls = new QHBoxLayout;
    for (QPushButton* button : {m_back, m_now, m_next}) {
        controls->addWidget(button);
    }
    controls->addSpacing(8);
    controls->addWidget(m_week);
    controls->addStretch();
    auto* weeks = new QHBoxLayout;
    weeks->addLayout(side(m_formerTitle, m_former), 1);
    weeks->addLayout(side(m_laterTitle, m_later), 1);

    prepareTable(*m_table, m_model);
    m_table->horizontalHeader()->resizeSection(StretchModel::FormerColumn, 260);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(controls);
    layout->addLayout(weeks, 3);
    layout->addWidget(m_summary);
    layout->addWidget(m_table, 1);
}

void WeekPair::setComparison(const std::shared_ptr<const StateComparison>& comparison)
{
    m_comparison = comparison;
    const auto show = [](week::WeekView* view, const ComparedState& state) {
        view->setPicture(state.picture);
    };
    if (m_comparison != nullptr) {
        show(m_former, m_comparison->former);
        show(m_later, m_comparison->later);
    } else {
        const auto none = nothing();
        m_former->setSchedule(none);
        m_later->setSchedule(none);
    }
    updateTitles();
    findStretches();
}

QDate WeekPair::firstDay() const
{
    return m_former->firstDay();
}

void WeekPair::findStretches()
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
            m_table->resizeColumnToContents(StretchModel::FromColumn);
            m_table->resizeColumnToContents(StretchModel::ToColumn);
            tellStretches();
        };
    });
}

void WeekPair::tellStretches()
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

void WeekPair::updateTitles()
{
    const auto title = [this](const ComparedState StateComparison::*state) {
        return m_comparison == nullptr ? QString()
                                       : VersionWords::state((m_comparison.get()->*state).state);
    };
    m_formerTitle->setText(title(&StateComparison::former));
    m_laterTitle->setText(title(&StateComparison::later));
    m_week->setText(QStringLiteral("%1 – %2").arg(
        locale().toString(firstDay(), QLocale::ShortFormat),
        locale().toString(firstDay().addDays(week::kDays - 1), QLocale::ShortFormat)));
}

void WeekPair::setColours(const look::ThemeColours& colours)
{
    m_former->setColours(colours);
    m_later->setColours(colours);
}

void WeekPair::setLanguage(const QLocale& locale)
{
    setLocale(locale);
    m_now->setText(tr("This week"));
    setWords(m_back, tr("Previous week"));
    setWords(m_next, tr("Next week"));
    m_table->setAccessibleName(tr("What differs on the screen"));
    m_former->retranslate();
    m_later->retranslate();
    m_model->retranslate();
    updateTitles();
    tellStretches();
}

} // namespace trel::desktop::versions
