#include "week/moves/WeekEdits.h"

#include "scheduleControlUI.h"
#include "service/DateText.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "undo/EditHistory.h"
#include "undo/EditedField.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

WeekEdits::WeekEdits(undo::EditHistory& history, scheduleControlUI& editor, QWidget* window)
    : QObject(window)
    , m_history(history)
    , m_editor(editor)
    , m_window(*window)
{}

follow::SharedTask WeekEdits::task(int taskId) const
{
    const auto& tasks = ScheduleHost::instance().workingSet();
    const auto task = tasks.find(taskId);
    return task == tasks.end() ? nullptr : std::make_shared<const PlayTask>(task->second);
}

std::map<int, PlayTask> WeekEdits::tasks() const
{
    return ScheduleHost::instance().workingSet();
}

int WeekEdits::tasksValidOn(const QDate& day) const
{
    const std::string date = dateToText(day);
    const auto& tasks = ScheduleHost::instance().workingSet();
    return static_cast<int>(std::count_if(tasks.begin(), tasks.end(), [&date](const auto& entry) {
        const PlayTask& task = entry.second;
        return task.startDate <= date && date <= task.endDate;
    }));
}

std::shared_ptr<const Programs> WeekEdits::programs() const
{
    return ScheduleHost::instance().catalogue();
}

void WeekEdits::file(const undo::TaskEdits& edits)
{
    if (m_editor.isVisible()) {
        fileInEditor(edits);
        return;
    }
    // While the editor reads its list it handles events, which a mouse or a drag that is still
    // being handled does not stand.
    QTimer::singleShot(0, this, [this, edits] { fileInShownEditor(edits); });
}

void WeekEdits::fileInShownEditor(const undo::TaskEdits& edits)
{
    // Closed meanwhile; the editor alone would keep the program.
    if (!m_window.isVisible()) {
        return;
    }
    m_editor.slotShow();
    if (!m_editor.isVisible()) {
        emit refused(tr("The editor is not ready yet. Please try again."));
        return;
    }
    const QPointer<WeekEdits> self(this);
    if (fileInEditor(edits) && self) {
        emit editorShown();
    }
}

bool WeekEdits::fileInEditor(const undo::TaskEdits& edits)
{
    const QPointer<WeekEdits> self(this);
    if (!m_history.settle() || !self) {
        return false;
    }
    const bool isAsSeen =
        std::all_of(edits.begin(), edits.end(), [this](const undo::TaskEdit& edit) {
            return undo::isSameToOperator(task(edit.taskId), edit.before);
        });
    if (!isAsSeen) {
        emit refused(tr("The schedule has changed meanwhile; nothing was moved."));
        return false;
    }
    for (const undo::TaskEdit& edit : edits) {
        scheduleManage::getInstance().addTask(*edit.after);
    }
    for (const undo::TaskEdit& edit : edits) {
        m_editor.slotShowTask(edit.taskId);
        if (!self) {
            return false;
        }
    }
    return true;
}

} // namespace trel::desktop::week
