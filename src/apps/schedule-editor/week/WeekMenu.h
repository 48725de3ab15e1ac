#pragma once

#include <QObject>

class QAction;
class QMenu;
class QMenuBar;

namespace trel::desktop::week {

class WeekPanel;

/// The menu of the week that is shown: which one it is. Its keys work wherever the keyboard is in
/// the window.
class WeekMenu : public QObject
{
    Q_OBJECT

public:
    /// Puts the menu into the bar, whose child it becomes, in front of another one. The panel
    /// outlives it.
    WeekMenu(QMenuBar& bar, QAction& before, WeekPanel& panel);

    QAction* today() const { return m_today; }
    QAction* former() const { return m_former; }
    QAction* next() const { return m_next; }
    QAction* choose() const { return m_choose; }

    /// Puts every text into the language in use.
    void retranslate();

private:
    QMenu* m_menu;
    QAction* m_today;
    QAction* m_former;
    QAction* m_next;
    QAction* m_choose;
};

} // namespace trel::desktop::week
