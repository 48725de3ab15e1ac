#pragma once

#include "week/moves/EditTarget.h"

#include <QObject>

class QWidget;

namespace trel::mediadispatch {
class scheduleControlUI;
} // namespace trel::mediadispatch

namespace trel::desktop {

namespace undo {
class EditHistory;
} // namespace undo

namespace week {

/// Brings edits of the picture into the schedule that is being edited, where they are saved, taken
/// back and canceled like those that are made in the editor.
///
/// A hidden editor begins with what is saved and drops what was edited before. So the first edit
/// shows the editor, and is filed when that has read the saved schedule: had the operator dragged
/// what was canceled, it is refused then. Half-typed values in the editor are taken over before.
class WeekEdits : public QObject, public EditTarget
{
    Q_OBJECT

public:
    /// Both outlive it. The window is that of the picture, and owns it; once it is closed, edits
    /// that would have to show the editor are dropped.
    WeekEdits(undo::EditHistory& history, trel::mediadispatch::scheduleControlUI& editor,
              QWidget* window);

    follow::SharedTask task(int taskId) const override;
    std::map<int, trel::mediadispatch::PlayTask> tasks() const override;
    int tasksValidOn(const QDate& day) const override;
    std::shared_ptr<const Programs> programs() const override;
    /// Within the call where the editor is on show, from the event loop otherwise.
    void file(const undo::TaskEdits& edits) override;

signals:
    /// The editor has been shown for an edit that is in it now; it may stand over the picture.
    void editorShown();
    /// An edit led to nothing; a sentence for the operator.
    void refused(const QString& why);

private:
    /// False where nothing was filed.
    bool fileInEditor(const undo::TaskEdits& edits);
    /// Shows the editor first.
    void fileInShownEditor(const undo::TaskEdits& edits);

    undo::EditHistory& m_history;
    trel::mediadispatch::scheduleControlUI& m_editor;
    const QWidget& m_window;
};

} // namespace week
} // namespace trel::desktop
