#pragma once

#include "follow/ScheduleEdits.h"
#include "undo/TaskEdit.h"

#include <QLocale>
#include <QObject>
#include <QPointer>
#include <QUndoStack>

#include <map>
#include <optional>
#include <set>

class QWidget;

namespace trel::mediadispatch {
class scheduleControlUI;
}

namespace trel::desktop {

namespace follow {
class EditedSchedule;
}

namespace undo {

class EditCommand;
struct EditedField;

/// Every step of the operator that reached the working set since the store was opened, to be taken
/// back and done again. That the editor was opened, a save, and a list that is read again and drops
/// what was not saved, are marks on the way and not its end.
///
/// A step is what one turn of the event loop brought. Nothing is taken back while the editor is
/// hidden, as its edits go when it is next shown, nor while a prompt stands over it. What is half
/// typed is a step of its own, which is taken back first. There is no limit: a step costs the
/// memory of the tasks that it changed.
///
/// What another program has saved, and the list has read or a save was merged with, is a step as
/// well, since the steps before it lead to what was there then. Whoever goes back behind it takes
/// it out of the schedule, and is asked first.
class EditHistory : public QObject
{
    Q_OBJECT

public:
    /// Both outlive the history.
    EditHistory(follow::EditedSchedule& edited, mediadispatch::scheduleControlUI& editor,
                QObject* parent);
    ~EditHistory() override;

    /// Another store has been opened: forgets all steps.
    void clear();

    /// Whether steps can be taken back and done again now.
    bool isAtWork() const { return m_isAtWork; }

    /// How many steps there are, and how many of them are done.
    int count() const { return m_stack.count(); }
    int index() const { return m_stack.index(); }
    /// From now on the days in the names of steps are those of this language.
    void setLanguage(const QLocale& locale);
    /// A step by its place, from 0.
    QString name(int step) const;
    /// Whether what is saved, now or at some time since, is what stood after so many steps.
    bool isSaved(int steps) const;
    /// Whether the editor was opened when so many steps were done.
    bool isOpened(int steps) const;

    /// Takes back the last step that is done, or does the first that is not. Nothing where there is
    /// none.
    void undo();
    void redo();
    /// Takes back or does again until so many steps are done.
    void goTo(int steps);

    /// Takes in what is half typed and what has not been told of yet, so that an edit of the host
    /// is a step of its own. False while nothing can be edited, as with undo().
    bool settle() { return begin(); }

    /// What becomes of the working set between these two is one step: what another program has
    /// saved comes to the edits. The schedule as that one has saved it is what was saved last from
    /// now on.
    void beginMerge();
    void endMerge(const std::map<int, mediadispatch::PlayTask>& saved);

signals:
    /// Steps have come or gone, or others of them are done.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Files a state of a task, made with the catalog of that number, or takes the task out.
    void put(int taskId, const follow::SharedTask& task, int catalogue);
    void showWhatWasPut();

    void take(const follow::ScheduleEdits& edits);
    /// Takes in what has not been told yet.
    void catchUp();
    void add(TaskEdits edits);
    /// What a step is called after that changes these tasks.
    EditedField fieldOf(const TaskEdits& edits) const;
    /// The saved schedule was read, and so many tasks are others.
    EditedField fieldOfReading(const TaskEdits& edits) const;
    void markSaved();
    void markOpened();
    /// What tells the state after so many steps from all others; 0 is the start.
    int stateNumber(int steps) const;
    /// Takes in what is half typed. False when nothing can be taken back now.
    bool begin();
    /// Goes there if the operator means it.
    void walkTo(int steps);
    /// False where what another program has saved would be taken back, and is not to be.
    bool mayWalkTo(int steps) const;
    void leaveKeysTo(QWidget* field);
    void moveTo(int steps);
    void setAtWork(bool isAtWork);
    const EditCommand& step(int index) const;

    mediadispatch::scheduleControlUI& m_editor;
    QUndoStack m_stack;
    QLocale m_locale;
    /// The working set after the last step that is known.
    std::map<int, follow::SharedTask> m_known;
    /// What was saved last, as far as this program has saved or read it.
    std::map<int, follow::SharedTask> m_lastSaved;
    std::set<int> m_due;         ///< Tasks that have been put, but not shown.
    std::set<int> m_saved = {0}; ///< The numbers of the states that were saved.
    std::set<int> m_opened;      ///< Those that the editor was opened with.
    /// The one that it was opened with just now, before its list is read again.
    std::optional<int> m_openedNow;
    int m_lastNumber = 0;
    int m_catalogue = 0; ///< Counts the changes of the catalog.
    bool m_isAtWork = false;
    bool m_isReadAgain = false; ///< What comes now is the saved schedule.
    bool m_isMerged = false;    ///< What comes now was merged with another save.
    QPointer<QWidget> m_field;  ///< Whose keys are watched.
};

} // namespace undo
} // namespace trel::desktop
