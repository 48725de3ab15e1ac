#include "undo/HistoryActions.h"

#include "EditorMenus.h"
#include "help/EntryText.h"
#include "undo/EditHistory.h"

#include <QAction>

namespace trel::desktop::undo {

HistoryActions::HistoryActions(const EditorMenus& menus, EditHistory& history, QObject* parent)
    : QObject(parent)
    , m_menus(menus)
    , m_history(history)
{
    connect(menus.undo(), &QAction::triggered, &history, &EditHistory::undo);
    connect(menus.redo(), &QAction::triggered, &history, &EditHistory::redo);
    connect(&history, &EditHistory::changed, this, &HistoryActions::update);
    update();
}

void HistoryActions::update()
{
    const int index = m_history.index();
    const bool canUndo = index > 0;
    const bool canRedo = index < m_history.count();
    m_menus.undo()->setEnabled(canUndo && m_history.isAtWork());
    m_menus.redo()->setEnabled(canRedo && m_history.isAtWork());
    const QString undo = tr("&Undo");
    const QString redo = tr("Re&do");
    // What lists the entries names them without the step, which may be long and is soon another.
    setEntryName(*m_menus.undo(), undo);
    setEntryName(*m_menus.redo(), redo);
    m_menus.undo()->setText(canUndo ? named(undo, index - 1) : undo);
    m_menus.redo()->setText(canRedo ? named(redo, index) : redo);
}

QString HistoryActions::named(const QString& action, int step) const
{
    return tr("%1: %2", "what is done, and the step").arg(action, m_history.name(step));
}

} // namespace trel::desktop::undo
