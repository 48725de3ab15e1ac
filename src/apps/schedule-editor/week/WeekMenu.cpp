#include "week/WeekMenu.h"

#include "week/WeekPanel.h"
#include "week/WeekView.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace trel::desktop::week {

WeekMenu::WeekMenu(QMenuBar& bar, QAction& before, WeekPanel& panel)
    : QObject(&bar)
    , m_menu(new QMenu(&bar))
    , m_today(m_menu->addAction(QString()))
    , m_former(m_menu->addAction(QString()))
    , m_next(m_menu->addAction(QString()))
    , m_choose(m_menu->addAction(QString()))
{
    bar.insertMenu(&before, m_menu);
    // With Ctrl, these belong to tables and to the picture itself.
    m_today->setShortcut(QKeySequence(QStringLiteral("Alt+Home")));
    m_former->setShortcut(QKeySequence(QStringLiteral("Alt+PgUp")));
    m_next->setShortcut(QKeySequence(QStringLiteral("Alt+PgDown")));
    m_choose->setShortcut(QKeySequence(QStringLiteral("Ctrl+G")));
    WeekView* const view = panel.view();
    connect(m_today, &QAction::triggered, view, &WeekView::showNow);
    connect(m_former, &QAction::triggered, view, [view] { view->stepWeeks(-1); });
    connect(m_next, &QAction::triggered, view, [view] { view->stepWeeks(1); });
    connect(m_choose, &QAction::triggered, &panel, &WeekPanel::showCalendar);
    retranslate();
}

void WeekMenu::retranslate()
{
    m_menu->setTitle(tr("&Week"));
    m_today->setText(tr("&Today"));
    m_former->setText(tr("&Previous week"));
    m_next->setText(tr("&Next week"));
    m_choose->setText(tr("&Choose a day…"));
}

} // namespace trel::desktop::week
