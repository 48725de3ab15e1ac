#include "draft/DraftKeeper.h"

#include "HostPrompts.h"
#include "PendingNotices.h"
#include "ProblemWords.h"
#include "changes/ChangesDialog.h"
#include "clock/Clock.h"
#include "common/DefaultDatabase.h"
#include "draft/DraftWords.h"
#include "exchange/ScheduleFile.h"
#include "look/Themes.h"
#include "scheduleControlUI.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/desks/DeskWatch.h"
#include "undo/ListAtRest.h"
#include "versions/DifferenceWords.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>
#include <QSysInfo>
#include <QWidget>

#include <set>
#include <utility>
#include <vector>

#include <pwd.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// Whoever works at this machine under this name: two operators of one machine, or one at two of
/// them, do not get each other's changes.
QString deskName()
{
    const passwd* const user = ::getpwuid(::geteuid());
    const QString name =
        user != nullptr ? QString::fromLocal8Bit(user->pw_name) : QString::number(::geteuid());
    return name + QLatin1Char('@') + QSysInfo::machineHostName();
}

} // namespace

DraftKeeper::DraftKeeper(scheduleControlUI& editor, QAction& bringBack, PendingNotices& notices,
                         const Themes& themes, QWidget* window)
    : QObject(window)
    , m_editor(editor)
    , m_bringBack(bringBack)
    , m_notices(notices)
    , m_themes(themes)
    , m_window(window)
    , m_journal(new DraftJournal(deskName(), this))
    , m_desks(new DeskWatch(deskName(), this))
{
    const ScheduleHost& host = ScheduleHost::instance();
    m_editor.installEventFilter(this);
    connect(&m_bringBack, &QAction::triggered, this, &DraftKeeper::bringBack);
    connect(m_journal, &DraftJournal::canceledChanged, this, &DraftKeeper::updateAction);
    connect(
        m_journal, &DraftJournal::failed, this,
        [this](const Fault& fault) { m_notices.tell(DraftWords::notKept(fault)); },
        Qt::QueuedConnection);
    // The journal has heard of it before.
    connect(&host, &ScheduleHost::workingSetChanged, this, &DraftKeeper::tellUnsaved);
    connect(&host, &ScheduleHost::storedSetChanged, this, &DraftKeeper::tellUnsaved);
    // However the program ends, but by a kill, what was done last is written down.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, m_journal,
            [this] { m_journal->flush(); });
    updateAction();
}

void DraftKeeper::begin()
{
    m_journal->keepAside(QFileInfo(hosts::defaultDatabasePath()).absolutePath() +
                         QStringLiteral("/drafts"));
    m_journal->begin();
    m_desks->begin(ScheduleHost::instance().path());
}

bool DraftKeeper::keep()
{
    if (!m_journal->flush()) {
        prompts::notice(DraftWords::couldNotBeKept());
        return false;
    }
    m_journal->end();
    return true;
}

void DraftKeeper::discard()
{
    m_journal->drop();
    m_journal->end();
}

bool DraftKeeper::isUnsaved() const
{
    return m_journal->isUnsaved();
}

const std::map<int, PlayTask>& DraftKeeper::saved() const
{
    return m_journal->saved();
}

int DraftKeeper::ask(const changes::ChangesQuestion& question) const
{
    changes::ChangesDialog dialog(question, m_themes.colours(), m_window);
    return dialog.ask();
}

void DraftKeeper::giveUp(const DraftTasks& tasks)
{
    m_journal->giveUp(tasks);
    tellUnsaved();
    // The list is in the midst of a save.
    QMetaObject::invokeMethod(this, &DraftKeeper::readAgain, Qt::QueuedConnection);
}

void DraftKeeper::readAgain()
{
    if (m_editor.isVisible()) {
        m_editor.clearAndInitialize();
    } else {
        readAgainHidden();
    }
}

void DraftKeeper::readAgainHidden()
{
    // The cards of the former schedule would answer what is told of the other one. They come when
    // the editor is shown.
    emit m_editor.sigclearPlanList();
    scheduleManage::getInstance().updateUItask();
}

void DraftKeeper::takeCanceledOut()
{
    if (!m_editor.isVisible() && !isUnsaved() && ScheduleHost::instance().hasUnsavedChanges()) {
        readAgainHidden();
    }
}

StoreResult DraftKeeper::mergeWith(qint64 number, const std::map<int, PlayTask>& merged)
{
    ScheduleHost& host = ScheduleHost::instance();
    const std::map<int, PlayTask> former = host.workingSet();
    emit aboutToMerge();
    StoreResult result = host.mergeWith(number, merged);
    emit this->merged();
    if (result) {
        showOthers(former);
    }
    return result;
}

void DraftKeeper::showOthers(const std::map<int, PlayTask>& former)
{
    const std::map<int, PlayTask>& now = ScheduleHost::instance().workingSet();
    std::set<int> others;
    for (const auto* tasks : {&former, &now}) {
        for (const auto& [id, task] : *tasks) {
            const auto before = former.find(id);
            const auto after = now.find(id);
            if (before == former.end() || after == now.end() || before->second != after->second) {
                others.insert(id);
            }
        }
    }
    const undo::ListAtRest rest(m_editor, others.size());
    for (const int id : others) {
        m_editor.slotShowTask(id);
    }
}

void DraftKeeper::goOnEditing()
{
    m_isGoingOn = true;
    QMetaObject::invokeMethod(
        this, [this] { m_isGoingOn = false; }, Qt::QueuedConnection);
}

bool DraftKeeper::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_editor && event->type() == QEvent::Close && m_isGoingOn) {
        event->ignore();
        return true;
    }
    if (watched == &m_editor && (event->type() == QEvent::Hide || event->type() == QEvent::Show)) {
        // An editor that closes after a save has nothing unsaved.
        if (event->type() == QEvent::Hide && !event->spontaneous()) {
            m_journal->cancel();
        }
        tellUnsaved();
    }
    return QObject::eventFilter(watched, event);
}

void DraftKeeper::tellUnsaved()
{
    const bool isNow = isUnsaved();
    // Also called where the editor is shown or hidden, which changes nothing.
    std::pair told(m_journal->edits(), m_journal->unsavedTasks());
    if (told != m_told) {
        m_told = std::move(told);
        m_desks->tellEdited(m_told.second);
    }
    if (std::exchange(m_wasUnsaved, isNow) != isNow) {
        emit unsavedChanged();
    }
}

void DraftKeeper::updateAction()
{
    m_bringBack.setEnabled(!m_journal->canceled().empty());
}

bool DraftKeeper::show(const DraftTasks& tasks)
{
    if (!m_editor.isVisible()) {
        m_editor.slotShow();
    }
    if (!m_editor.isVisible()) {
        return false;
    }
    scheduleManage& manager = scheduleManage::getInstance();
    const undo::ListAtRest rest(m_editor, tasks.size());
    for (const auto& [id, task] : tasks) {
        if (task) {
            manager.addTask(*task);
        } else {
            manager.deleteTask(id);
        }
        m_editor.slotShowTask(id);
    }
    m_editor.raise();
    m_editor.activateWindow();
    return true;
}

void DraftKeeper::bringBack()
{
    // While they are shown, what is canceled may be another one.
    const DraftTasks tasks = m_journal->canceled();
    if (show(tasks)) {
        m_journal->takeCanceled();
    }
}

void DraftKeeper::offer()
{
    const std::vector<LeftDraft> drafts = m_journal->left();
    for (const LeftDraft& left : drafts) {
        if (!decide(left)) {
            return;
        }
    }
}

changes::ChangesQuestion DraftKeeper::questionOf(const LeftDraft& left) const
{
    changes::ChangesQuestion question;
    question.text = DraftWords::offer(left, saved(), Clock::current().msecsSinceEpoch());
    question.listTitle = DraftWords::whatDiffers();
    question.former = {DraftWords::asSaved(), saved()};
    question.later = {DraftWords::withChanges(), scheduleOf(left)};
    question.lines = versions::DifferenceWords::lines(question.former.tasks, question.later.tasks,
                                                      *ScheduleHost::instance().catalogue(),
                                                      changes::kMostLines);
    question.answers = QStringList{DraftWords::takeOver(), DraftWords::putIntoFile(),
                                   DraftWords::drop(), DraftWords::decideLater()};
    return question;
}

bool DraftKeeper::decide(const LeftDraft& left)
{
    if (left.draft.tasks.empty()) {
        if (left.draft.canceled.empty()) {
            decideOnUnreadable(left);
        } else {
            takeCanceledOver(left);
        }
        return true;
    }
    const QString store = ScheduleHost::instance().path();
    const changes::ChangesQuestion question = questionOf(left);
    for (;;) {
        const int answer = ask(question);
        if (ScheduleHost::instance().path() != store) {
            return false;
        }
        switch (answer) {
        case 1:
            return takeOver(left);
        case 2:
            if (putIntoFile(left)) {
                removeLeftDraft(left);
                return true;
            }
            break;
        case 3:
            removeLeftDraft(left);
            return true;
        default:
            return false;
        }
    }
}

void DraftKeeper::decideOnUnreadable(const LeftDraft& left)
{
    const int answer = prompts::confirm(DraftWords::unreadable(left), DraftWords::decideLater(),
                                        DraftWords::deleteFile());
    if (answer == 2) {
        removeLeftDraft(left);
    }
}

void DraftKeeper::takeCanceledOver(const LeftDraft& left)
{
    m_journal->adoptCanceled(left.draft.canceled);
    if (m_journal->flush()) {
        removeLeftDraft(left);
    }
}

bool DraftKeeper::takeOver(const LeftDraft& left)
{
    if (!show(left.draft.tasks)) {
        return false;
    }
    // Until they are written down anew they are nowhere else.
    if (m_journal->flush()) {
        removeLeftDraft(left);
    }
    return true;
}

std::map<int, PlayTask> DraftKeeper::scheduleOf(const LeftDraft& left) const
{
    // Of another store it is not known what was saved there.
    std::map<int, PlayTask> tasks;
    if (!left.isOfOtherStore) {
        tasks = saved();
    }
    for (const auto& [id, task] : left.draft.tasks) {
        if (task) {
            tasks.insert_or_assign(id, *task);
        } else {
            tasks.erase(id);
        }
    }
    return tasks;
}

bool DraftKeeper::putIntoFile(const LeftDraft& left)
{
    const QString file = prompts::saveFileName(m_window, DraftWords::putIntoFile(),
                                               QStringLiteral("*.json"), QStringLiteral("json"));
    if (file.isEmpty()) {
        return false;
    }
    if (const Fault fault = writeSchedule(file, scheduleOf(left), FileHashes::Read)) {
        prompts::notice(problems::unwritable(file, fault));
        return false;
    }
    return true;
}

} // namespace trel::desktop
