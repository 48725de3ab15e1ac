#pragma once

#include <QToolBar>

namespace trel::desktop {

class EditorMenus;

namespace air {

/// What is done daily, in one line under the menus: edit, import, undo, start, stop and search. At
/// the far end stands what it is given.
class AirBar : public QToolBar
{
    Q_OBJECT

public:
    /// The menus outlive the bar. The state becomes a child.
    AirBar(const EditorMenus& menus, QWidget* state, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void tellInWhole(QAction& action);

    const EditorMenus& m_menus;
};

} // namespace air

} // namespace trel::desktop
