#include "help/KeyTable.h"

#include "common/ListText.h"
#include "help/EntryText.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

namespace trel::desktop {

namespace {

QString native(const QKeySequence& keys)
{
    return keys.toString(QKeySequence::NativeText);
}

void addActions(KeySection& section, const QList<QAction*>& actions)
{
    for (const QAction* action : actions) {
        if (action->menu() != nullptr) {
            addActions(section, action->menu()->actions());
        } else if (!action->shortcut().isEmpty()) {
            section.lines.push_back({native(action->shortcut()), entryName(*action)});
        }
    }
}

/// Keys that do the same stand in one line.
void addKey(KeySection& section, int keys, const QString& text)
{
    const QString told = native(QKeySequence(keys));
    if (!section.lines.empty() && section.lines.back().text == text) {
        section.lines.back().keys = hosts::ListText::joined({section.lines.back().keys, told});
    } else {
        section.lines.push_back({told, text});
    }
}

} // namespace

std::vector<KeySection> KeyTable::sections(const QMenuBar& menus, const QWidget& editor)
{
    return {ofMenus(menus), ofEditor(editor), ofWeek(), ofPrograms()};
}

KeySection KeyTable::ofMenus(const QMenuBar& menus)
{
    KeySection section{tr("Main window"), {}};
    addActions(section, menus.actions());
    return section;
}

KeySection KeyTable::ofEditor(const QWidget& editor)
{
    KeySection section{tr("Editor"), {}};
    const QList<QShortcut*> shortcuts = editor.findChildren<QShortcut*>();
    for (const QShortcut* shortcut : shortcuts) {
        const QString text = ofShortcut(shortcut->key().toString(QKeySequence::PortableText));
        if (!text.isEmpty()) {
            section.lines.push_back({native(shortcut->key()), text});
        }
    }
    return section;
}

QString KeyTable::ofShortcut(const QString& keys)
{
    const std::pair<const char*, QString> known[] = {
        {"Ctrl+PgDown", tr("Go to the next task")},
        {"Ctrl+PgUp", tr("Go to the task before")},
        {"F3", tr("Fold or open the task")},
        {"Ctrl+Shift+N", tr("Add a task")},
        {"Ctrl+Shift+D", tr("Copy the task")},
        {"Ctrl+Shift+Del", tr("Delete the task")},
        {"Ctrl+N", tr("Add a plan")},
        {"Ctrl+D", tr("Copy the plan")},
        {"Ctrl+Del", tr("Delete the plan")},
        {"F2", tr("Choose the programs of the plan")},
        {"Ctrl+Return", tr("Save and close")},
        {"F5", tr("Save and start")},
        {"Ctrl+W", tr("Close without saving")},
    };
    for (const auto& [sequence, text] : known) {
        if (keys == QLatin1String(sequence)) {
            return text;
        }
    }
    return {};
}

QString KeyTable::ofCommand(week::WeekCommand command)
{
    using week::WeekCommand;
    switch (command) {
    case WeekCommand::None:
        break;
    case WeekCommand::Earlier:
    case WeekCommand::Later:
    case WeekCommand::DayBefore:
    case WeekCommand::DayAfter:
        return tr("Select another plan");
    case WeekCommand::Activate:
        return tr("Open the selected plan in the editor");
    case WeekCommand::Explain:
        return tr("Say what is on screen then, and why");
    case WeekCommand::WeekBefore:
    case WeekCommand::WeekAfter:
        return tr("Show another week");
    case WeekCommand::Now:
        return tr("Show the present moment");
    case WeekCommand::ZoomIn:
    case WeekCommand::ZoomOut:
        return tr("Zoom");
    case WeekCommand::ZoomToFit:
        return tr("Fit the whole day");
    }
    return {};
}

QString KeyTable::ofMove(const week::MoveKey& move)
{
    switch (move.part) {
    case week::PlanMove::Begin:
        return tr("Move the begin of the plan");
    case week::PlanMove::End:
        return tr("Move the end of the plan");
    case week::PlanMove::Whole:
        break;
    }
    return move.days == 0 ? tr("Move the plan by a quarter of an hour")
                          : tr("Move the plan to another day");
}

KeySection KeyTable::ofWeek()
{
    KeySection section{tr("Week"), {}};
    for (const week::WeekKey& key : week::weekKeys()) {
        if (!key.isTwin) {
            const int control = key.needsControl ? static_cast<int>(Qt::CTRL) : 0;
            addKey(section, control + key.key, ofCommand(key.command));
        }
    }
    for (const week::MoveKey& key : week::moveKeys()) {
        addKey(section, key.keys, ofMove(key));
    }
    addKey(section, week::kGiveUpKey, tr("Give up dragging"));
    // The platform decides what asks for a context menu; this key does on most keyboards.
    addKey(section, Qt::Key_Menu, tr("Copy the plans of the day"));
    return section;
}

// The list of programs is made when it is opened, so that there are no shortcuts to read.
KeySection KeyTable::ofPrograms()
{
    KeySection section{tr("Programs of a plan"), {}};
    const QString walk = tr("Go to another program");
    addKey(section, Qt::Key_Up, walk);
    addKey(section, Qt::Key_Down, walk);
    addKey(section, Qt::Key_Space, tr("Tick the program, or untick it"));
    addKey(section, static_cast<int>(Qt::CTRL) + Qt::Key_A, tr("Tick all programs, or none"));
    addKey(section, Qt::Key_Return, tr("Add the ticked programs, or this one"));
    addKey(section, Qt::Key_Delete, tr("Take the ticked programs out, or this one"));
    const QString move = tr("Move the program up or down");
    addKey(section, static_cast<int>(Qt::ALT) + Qt::Key_Up, move);
    addKey(section, static_cast<int>(Qt::ALT) + Qt::Key_Down, move);
    addKey(section, Qt::Key_F2, tr("Change how often the program is played"));
    addKey(section, static_cast<int>(Qt::CTRL) + Qt::Key_Return,
           tr("Take over the list of programs"));
    return section;
}

} // namespace trel::desktop
