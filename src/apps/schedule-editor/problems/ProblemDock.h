#pragma once

#include <QDockWidget>

class QStatusBar;
class QToolButton;

namespace trel::mediadispatch {
class scheduleControlUI;
}

namespace trel::desktop {

namespace follow {
class EditedSchedule;
}

class ProblemFollower;
class ProblemPanel;

/// What is wrong with the schedule that is being edited, as a part of the host's window: a list
/// that leads to the rows, and the number of problems in the status bar, a click on which shows the
/// list.
class ProblemDock : public QDockWidget
{
    Q_OBJECT

public:
    /// All of these outlive the dock.
    ProblemDock(follow::EditedSchedule& edited, mediadispatch::scheduleControlUI& editor,
                QStatusBar& bar, QWidget* parent);
    ~ProblemDock() override;

    /// How many problems there are, as far as is known.
    int count() const;
    /// How many of them are seen at once where the panel is as high as it asks for.
    void setRows(int rows);

protected:
    void changeEvent(QEvent* event) override;

private:
    void tellNumber();
    void reveal();
    void leadTo(int taskId, int planId);
    void split(int taskId, int planId);
    void retranslate();

    mediadispatch::scheduleControlUI& m_editor;
    ProblemFollower* m_follower;
    ProblemPanel* m_panel;
    QToolButton* m_number;
};

} // namespace trel::desktop
