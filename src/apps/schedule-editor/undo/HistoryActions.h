#pragma once

#include <QObject>

namespace trel::desktop {

class EditorMenus;

namespace undo {

class EditHistory;

/// Undo and redo in the menu of the window, with the names of their steps. Each can be chosen only
/// while it does something. Their keys work in the editor's window as well.
class HistoryActions : public QObject
{
    Q_OBJECT

public:
    /// Menus and history outlive it.
    HistoryActions(const EditorMenus& menus, EditHistory& history, QObject* parent);

    /// Puts the texts into the language in use.
    void update();

private:
    QString named(const QString& action, int step) const;

    const EditorMenus& m_menus;
    EditHistory& m_history;
};

} // namespace undo
} // namespace trel::desktop
