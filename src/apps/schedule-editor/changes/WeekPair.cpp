#include "changes/WeekPair.h"

#include "changes/FixedWeek.h"
#include "clock/Clock.h"
#include "trelwidgets/PlainToolTip.h"
#include "week/WeekLayout.h"
#include "week/WeekPanel.h"
#include "week/WeekView.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

using namespace trel::mediadispatch;

namespace trel::desktop::changes {

namespace {

constexpr int kSignWidth = 28;

QDate today()
{
    return QDateTime::fromMSecsSinceEpoch(Clock::current().msecsSinceEpoch(),
                                          Clock::current().zone())
        .date();
}

QDate dateOf(const std::string& text)
{
    return QDate::fromString(QString::fromStdString(text), QLatin1String(kDateFormat));
}

} // namespace

QDate nearestChangedDay(const std::map<int, PlayTask>& former, const std::map<int, PlayTask>& later,
                        const QDate& day)
{
    QDate next;
    QDate last;
    const auto look = [&](const PlayTask& task) {
        const QDate begins = dateOf(task.startDate);
        const QDate ends = dateOf(task.endDate);
        if (!begins.isValid() || !ends.isValid() || ends < begins) {
            return;
        }
        if (ends < day) {
            last = last.isValid() ? std::max(last, ends) : ends;
        } else {
            const QDate nearest = std::max(begins, day);
            next = next.isValid() ? std::min(next, nearest) : nearest;
        }
    };
    const auto lookAtOthers = [&look](const std::map<int, PlayTask>& tasks,
                                      const std::map<int, PlayTask>& others) {
        for (const auto& [id, task] : tasks) {
            const auto other = others.find(id);
            if (other == others.end() || !(other->second == task)) {
                look(task);
            }
        }
    };
    lookAtOthers(former, later);
    lookAtOthers(later, former);
    return next.isValid() ? next : last.isValid() ? last : day;
}

WeekPair::WeekPair(const State& former, const State& later, const look::ThemeColours& colours,
                   const QLocale& locale, QWidget* parent)
    : QWidget(parent)
    , m_before(addButton("pairFormer", QStringLiteral("‹"), week::WeekPanel::tr("Previous week")))
    , m_today(addButton("pairToday", week::WeekPanel::tr("Today"), QString()))
    , m_next(addButton("pairNext", QStringLiteral("›"), week::WeekPanel::tr("Next week")))
    , m_title(new QLabel(this))
    , m_former(new FixedWeek(former.name, colours, this))
    , m_later(new FixedWeek(later.name, colours, this))
{
    // The order of the days and the dates are those of the language.
    setLocale(locale);
    m_title->setObjectName(QStringLiteral("pairTitle"));
    m_title->setTextFormat(Qt::PlainText);
    auto* controls = new QHBoxLayout;
    controls->setSpacing(4);
    controls->addWidget(m_before);
    controls->addWidget(m_today);
    controls->addWidget(m_next);
    controls->addSpacing(8);
    controls->addWidget(m_title);
    controls->addStretch();
    auto* weeks = new QHBoxLayout;
    weeks->addWidget(m_former, 1);
    weeks->addWidget(m_later, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(controls);
    layout->addLayout(weeks, 1);
    for (FixedWeek* week : {m_former, m_later}) {
        week->view()->retranslate();
    }
    connectControls();
    showWeekOf(nearestChangedDay(former.tasks, later.tasks, today()));
    m_former->setTasks(former.tasks);
    m_later->setTasks(later.tasks);
}

QPushButton* WeekPair::addButton(const char* name, const QString& text, const QString& words)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    if (!words.isEmpty()) {
        button->setFixedWidth(kSignWidth);
        button->setToolTip(trel::widgets::plainToolTip(words));
        button->setAccessibleName(words);
    }
    return button;
}

void WeekPair::connectControls()
{
    connect(m_before, &QPushButton::clicked, this,
            [this] { showWeekOf(m_former->view()->firstDay().addDays(-1)); });
    connect(m_next, &QPushButton::clicked, this,
            [this] { showWeekOf(m_former->view()->firstDay().addDays(week::kDays)); });
    connect(m_today, &QPushButton::clicked, this, [this] { showWeekOf(today()); });
    // A key in one of them leads both there.
    for (FixedWeek* week : {m_former, m_later}) {
        connect(week->view(), &week::WeekView::weekChanged, this,
                [this, week] { showWeekOf(week->view()->firstDay()); });
    }
}

void WeekPair::showWeekOf(const QDate& day)
{
    for (FixedWeek* week : {m_former, m_later}) {
        const QDate first = week->view()->firstDay();
        if (day < first || day >= first.addDays(week::kDays)) {
            week->view()->showWeekOf(day);
        }
    }
    updateTitle();
}

void WeekPair::updateTitle()
{
    const QDate first = m_former->view()->firstDay();
    m_title->setText(QStringLiteral("%1 – %2").arg(
        locale().toString(first, QLocale::ShortFormat),
        locale().toString(first.addDays(week::kDays - 1), QLocale::ShortFormat)));
}

} // namespace trel::desktop::changes
