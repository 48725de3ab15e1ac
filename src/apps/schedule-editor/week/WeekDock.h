#pragma once

#include <QDockWidget>

namespace trel::desktop {

class Languages;
class Themes;

namespace follow {
class EditedSchedule;
}

namespace week {
class WeekPanel;
}

/// The picture of a week as a part of the host's window, in its language and theme. Hidden until it
/// is asked for.
class WeekDock : public QDockWidget
{
    Q_OBJECT

public:
    /// All of these outlive the dock.
    WeekDock(follow::EditedSchedule& edited, const Languages& languages, const Themes& themes,
             QWidget* parent);

    week::WeekPanel* panel() const { return m_panel; }

signals:
    /// The operator wants to get to a plan.
    void activated(int taskId, int planRow);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    week::WeekPanel* m_panel;
};

} // namespace trel::desktop
