#pragma once

#include <QToolBar>

class QAction;

namespace trel::desktop {

class EditorMenus;

namespace air {

class StartAction;

/// What is done daily, in one line under the menus: edit, import, undo, start, stop and search. At
/// the far end stands what it is given.
class AirBar : public QToolBar
{
    Q_OBJECT

public:
    /// Menus and start outlive the bar. The state becomes a child.
    AirBar(const EditorMenus& menus, const StartAction& start, QWidget* state, QWidget* parent);

    /// Leads to the search of the catalogue; what it does is up to who connects it.
    QAction* search() const { return m_search; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    const EditorMenus& m_menus;
    QAction* m_search;
};

} // namespace air

} // namespace trel::desktop
