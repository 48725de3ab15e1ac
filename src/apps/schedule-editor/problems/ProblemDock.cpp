#include "problems/ProblemDock.h"

#include "follow/EditedSchedule.h"
#include "problems/ProblemFollower.h"
#include "problems/ProblemPanel.h"
#include "scheduleControlUI.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/problems/MidnightSplit.h"
#include "trelwidgets/PlainToolTip.h"

#include <QAction>
#include <QEvent>
#include <QPointer>
#include <QStatusBar>
#include <QToolButton>

using namespace trel::mediadispatch;

namespace trel::desktop {

ProblemDock::ProblemDock(follow::EditedSchedule& edited, scheduleControlUI& editor, QStatusBar& bar,
                         QWidget* parent)
    : QDockWidget(parent)
    , m_editor(editor)
    , m_follower(new ProblemFollower(edited, this))
    , m_panel(new ProblemPanel(*m_follower->model(), this))
    , m_number(new QToolButton(&bar))
{
    setObjectName(QStringLiteral("problemDock"));
    setWidget(m_panel);
    m_number->setObjectName(QStringLiteral("problemNumber"));
    m_number->setAutoRaise(true);
    m_number->setFocusPolicy(Qt::TabFocus);
    bar.addPermanentWidget(m_number);
    connect(m_number, &QToolButton::clicked, this, &ProblemDock::reveal);
    connect(m_follower, &ProblemFollower::found, this, &ProblemDock::tellNumber);
    connect(m_panel, &ProblemPanel::activated, this, &ProblemDock::leadTo);
    connect(m_panel, &ProblemPanel::splitAsked, this, &ProblemDock::split);
    retranslate();
}

ProblemDock::~ProblemDock() = default;

int ProblemDock::count() const
{
    return m_follower->model()->rowCount();
}

void ProblemDock::setRows(int rows)
{
    m_panel->setRows(rows);
}

void ProblemDock::tellNumber()
{
    m_number->setText(count() == 0 ? tr("No open problems")
                                   : tr("%n open problems", nullptr, count()));
}

void ProblemDock::reveal()
{
    show();
    raise();
    m_panel->setFocus();
}

void ProblemDock::leadTo(int taskId, int planId)
{
    const auto& tasks = ScheduleHost::instance().workingSet();
    const auto task = tasks.find(taskId);
    if (planId < 0 && task != tasks.end() && !task->second.plans.empty()) {
        planId = task->second.plans.front().id;
    }
    const QPointer<ProblemDock> self(this);
    m_editor.slotShowPlan(taskId, planId);
    // Of a task without plans there is no row, but the editor comes to the front. It stays closed
    // when everything was closed while it read its list.
    if (self && m_editor.isVisible()) {
        m_editor.raise();
        m_editor.activateWindow();
    }
}

void ProblemDock::split(int taskId, int planId)
{
    const QPointer<ProblemDock> self(this);
    if (!m_editor.isVisible()) {
        // It reads the saved schedule, and shows what is edited.
        m_editor.slotShow();
    }
    if (!self || !m_editor.isVisible()) {
        return;
    }
    const ScheduleHost& host = ScheduleHost::instance();
    const auto& tasks = host.workingSet();
    const auto task = tasks.find(taskId);
    if (task == tasks.end()) {
        return;
    }
    const auto parts = splitAtMidnight(task->second, planId, *host.catalogue());
    if (!parts) {
        return;
    }
    scheduleManage::getInstance().addTask(*parts);
    m_editor.slotShowTask(taskId);
    if (self) {
        m_editor.slotShowPlan(taskId, planId);
    }
}

void ProblemDock::retranslate()
{
    setWindowTitle(tr("Problems"));
    m_panel->setListName(windowTitle());
    // The title becomes the text of the action, which has a letter besides.
    toggleViewAction()->setText(tr("Pro&blems"));
    m_number->setToolTip(trel::widgets::plainToolTip(tr("Show what is wrong with the schedule")));
    tellNumber();
}

void ProblemDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace trel::desktop
