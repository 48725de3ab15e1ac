#include "week/WeekPage.h"

#include "Languages.h"
#include "look/Themes.h"
#include "week/WeekLegend.h"
#include "week/WeekPanel.h"
#include "week/WeekView.h"
#include "year/YearStrip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace trel::desktop::week {

namespace {

constexpr int kReasonLines = 4;
constexpr int kSpace = 6;
constexpr int kBesideText = 8;

/// Has one height. The toolkit takes every text that wraps for one whose height follows its width,
/// and with one of those in it the page would scroll where it can still be lower.
class SteadyLabel : public QLabel
{
public:
    using QLabel::QLabel;
    bool hasHeightForWidth() const override { return false; }
};

} // namespace

WeekPage::WeekPage(follow::EditedSchedule& edited, const Languages& languages, const Themes& themes,
                   QWidget* parent)
    : QWidget(parent)
    , m_year(new year::YearStrip(edited, this))
    , m_panel(new WeekPanel(edited, this))
    , m_reason(new SteadyLabel(this))
    , m_legend(new WeekLegend(this))
{
    setObjectName(QStringLiteral("weekPage"));
    build();
    connect(m_panel, &WeekPanel::activated, this, &WeekPage::activated);
    WeekView* const view = m_panel->view();
    connect(view, &WeekView::explanationChanged, this, &WeekPage::explain);
    connect(view, &WeekView::pictureChanged, m_legend,
            [this, view] { m_legend->setLayoutOfWeek(view->layoutOfWeek()); });
    m_legend->setLayoutOfWeek(view->layoutOfWeek());
    connect(m_year, &year::YearStrip::dayChosen, view, &WeekView::showWeekOf);
    connect(view, &WeekView::weekChanged, m_year,
            [this, view] { m_year->showWeek(view->firstDay()); });
    m_year->showWeek(view->firstDay());

    const auto takeColours = [this, &themes] {
        m_year->setColours(themes.colours());
        m_panel->setColours(themes.colours());
        m_legend->setColours(themes.colours());
    };
    const auto takeLanguage = [this, &languages] {
        m_panel->setLanguage(QLocale(languages.current()));
    };
    connect(&themes, &Themes::changed, this, takeColours);
    connect(&languages, &Languages::changed, this, takeLanguage);
    takeColours();
    takeLanguage();
    retranslate();
}

void WeekPage::build()
{
    m_reason->setObjectName(QStringLiteral("weekReason"));
    m_reason->setTextFormat(Qt::PlainText);
    m_reason->setWordWrap(true);
    m_reason->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    takeFont();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_year);
    layout->addWidget(m_panel, 1);
    auto* below = new QHBoxLayout;
    below->setContentsMargins(kBesideText, 0, kBesideText, kSpace);
    below->setSpacing(2 * kSpace);
    below->addWidget(m_reason, 1);
    below->addWidget(m_legend, 1);
    layout->addLayout(below);
}

void WeekPage::explain()
{
    const QString why = m_panel->view()->explanation();
    m_reason->setForegroundRole(why.isEmpty() ? QPalette::PlaceholderText : QPalette::WindowText);
    m_reason->setText(why.isEmpty() ? advice() : why);
}

QString WeekPage::advice() const
{
    const std::vector<WeekColumn>& days = m_panel->view()->layoutOfWeek().days;
    const bool hasTask = std::any_of(days.begin(), days.end(),
                                     [](const WeekColumn& day) { return day.task.has_value(); });
    return hasTask ? tr("Click a block to see why it is on screen, or why not.")
                   : tr("No task is valid in this week. Add one with “Edit”, then drag programs "
                        "here.");
}

void WeekPage::retranslate()
{
    m_reason->setAccessibleName(tr("Why the selected block is on screen, or why not"));
    explain();
}

void WeekPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::FontChange) {
        takeFont();
    }
}

/// Always as high, so that the picture above does not jump from click to click.
void WeekPage::takeFont()
{
    m_reason->setFixedHeight(kReasonLines * m_reason->fontMetrics().lineSpacing());
}

} // namespace trel::desktop::week
