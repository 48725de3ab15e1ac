#include "air/StartAction.h"

#include "HostPrompts.h"
#include "PendingNotices.h"
#include "draft/DraftKeeper.h"
#include "scheduleControlUI.h"
#include "service/TaskPeriods.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelwidgets/PlainToolTip.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QEvent>

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::air {

namespace {

QAbstractButton* buttonOf(const scheduleControlUI& editor)
{
    return editor.findChild<QAbstractButton*>(QStringLiteral("pushButtonStart"));
}

} // namespace

StartAction::StartAction(QAction& action, scheduleControlUI& editor, DraftKeeper& drafts,
                         PendingNotices& notices, Count openProblems, QObject* parent)
    : QObject(parent)
    , m_action(action)
    , m_editor(editor)
    , m_drafts(drafts)
    , m_notices(notices)
    , m_openProblems(std::move(openProblems))
{
    parent->installEventFilter(this);
    connect(&m_action, &QAction::triggered, this, &StartAction::ask);
    followEditor();
    retranslate();
}

void StartAction::retranslate()
{
    m_action.setIconText(tr("Start"));
    m_action.setToolTip(trel::widgets::plainToolTip(tr("Put the schedule on air")));
}

bool StartAction::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    return QObject::eventFilter(watched, event);
}

QString StartAction::question() const
{
    QStringList lines{tr("Put the schedule on air? What is not saved is saved first.")};
    if (const int problems = m_openProblems(); problems > 0) {
        lines.append(tr("Open problems: %1").arg(problems));
    }
    return lines.join(QLatin1String("\n\n"));
}

void StartAction::ask()
{
    if (prompts::confirm(question(), tr("Start"), tr("Cancel")) == 1) {
        start();
    }
}

void StartAction::followEditor()
{
    const QAbstractButton* const button = buttonOf(m_editor);
    if (button == nullptr) {
        return;
    }
    connect(button, &QAbstractButton::pressed, this,
            [this] { m_before = ScheduleHost::instance().started(); });
    // The editor has heard of it first, and has started by now what it starts.
    connect(button, &QAbstractButton::clicked, this, &StartAction::tellOfStart);
}

void StartAction::tellOfStart()
{
    const auto now = ScheduleHost::instance().started();
    if (now && !(m_before && *now == *m_before)) {
        emit told(sentence());
    }
}

QString StartAction::sentence() const
{
    const int problems = m_openProblems();
    return problems == 0 ? tr("The schedule is on air.")
                         : tr("The schedule is on air. Open problems: %1").arg(problems);
}

void StartAction::start()
{
    if (m_editor.isVisible()) {
        // The editor takes over what is half typed, and says itself what is in the way.
        if (QAbstractButton* const button = buttonOf(m_editor)) {
            button->click();
        }
        return;
    }
    m_drafts.takeCanceledOut();
    const auto overlap = firstTaskOverlap(scheduleManage::getInstance().getAllTask());
    if (overlap) {
        m_notices.tell(tr("Tasks %1 and %2 are valid on the same days. The schedule can be put on "
                          "air once they are not.")
                           .arg(overlap->first)
                           .arg(overlap->second));
        return;
    }
    m_before = ScheduleHost::instance().started();
    m_editor.slotStart();
    tellOfStart();
}

} // namespace trel::desktop::air
