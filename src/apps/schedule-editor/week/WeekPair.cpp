#include "week/WeekPair.h"

#include "DateWords.h"
#include "trelwidgets/PlainToolTip.h"
#include "week/WeekPanel.h"
#include "week/WeekStep.h"
#include "week/WeekView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace trel::desktop::week {

namespace {

constexpr int kSignWidth = 28;

void setWords(QPushButton* button, const QString& words)
{
    button->setToolTip(trel::widgets::plainToolTip(words));
    button->setAccessibleName(words);
}

} // namespace

WeekPair::WeekPair(QWidget* parent)
    : QWidget(parent)
    , m_former(new WeekView(this))
    , m_later(new WeekView(this))
    , m_formerName(new QLabel(this))
    , m_laterName(new QLabel(this))
    , m_back(addButton("pairFormer", QStringLiteral("‹")))
    , m_today(addButton("pairToday", QString()))
    , m_next(addButton("pairNext", QStringLiteral("›")))
    , m_title(new QLabel(this))
{
    m_former->setObjectName(QStringLiteral("formerWeek"));
    m_later->setObjectName(QStringLiteral("laterWeek"));
    m_title->setObjectName(QStringLiteral("pairTitle"));
    for (QLabel* label : {m_formerName, m_laterName, m_title}) {
        label->setTextFormat(Qt::PlainText);
    }
    auto* controls = new QHBoxLayout;
    for (QPushButton* button : {m_back, m_today, m_next}) {
        controls->addWidget(button);
    }
    controls->addSpacing(8);
    controls->addWidget(m_title);
    controls->addStretch();
    auto* weeks = new QHBoxLayout;
    weeks->addLayout(side(m_formerName, m_former), 1);
    weeks->addLayout(side(m_laterName, m_later), 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(controls);
    layout->addLayout(weeks, 1);

    keepInStep(*m_former, *m_later);
    connect(m_back, &QPushButton::clicked, m_former, [this] { m_former->stepWeeks(-1); });
    connect(m_next, &QPushButton::clicked, m_former, [this] { m_former->stepWeeks(1); });
    connect(m_today, &QPushButton::clicked, m_former, &WeekView::showNow);
    connect(m_former, &WeekView::weekChanged, this, [this] {
        updateTitle();
        emit weekChanged();
    });
    setLanguage(locale());
}

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

QBoxLayout* WeekPair::side(QLabel* name, WeekView* view)
{
    auto* layout = new QVBoxLayout;
    layout->addWidget(name);
    layout->addWidget(view, 1);
    return layout;
}

void WeekPair::setNames(const QString& former, const QString& later)
{
    m_formerName->setText(former);
    m_former->setAccessibleName(former);
    m_laterName->setText(later);
    m_later->setAccessibleName(later);
}

void WeekPair::setColours(const look::ThemeColours& colours)
{
    m_former->setColours(colours);
    m_later->setColours(colours);
}

void WeekPair::setLanguage(const QLocale& locale)
{
    setLocale(locale);
    m_today->setText(WeekPanel::tr("Today"));
    setWords(m_back, WeekPanel::tr("Previous week"));
    setWords(m_next, WeekPanel::tr("Next week"));
    m_former->retranslate();
    m_later->retranslate();
    updateTitle();
}

QDate WeekPair::firstDay() const
{
    return m_former->firstDay();
}

void WeekPair::showWeekOf(const QDate& day)
{
    if (day < firstDay() || day >= firstDay().addDays(kDays)) {
        m_former->showWeekOf(day);
    }
}

void WeekPair::updateTitle()
{
    m_title->setText(QStringLiteral("%1 – %2").arg(dateText(firstDay()),
                                                   dateText(firstDay().addDays(kDays - 1))));
}

} // namespace trel::desktop::week
