#include "help/KeyTable.h"

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

QString native(const char* keys)
{
    return native(QKeySequence(QLatin1String(keys)));
}

/// The text of a menu entry without the mark of its letter, and without a letter in brackets.
QString plain(QString text)
{
    const int bracket = text.indexOf(QLatin1String("(&"));
    if (bracket > 0) {
        text.remove(bracket, text.indexOf(QLatin1Char(')'), bracket) - bracket + 1);
    }
    return text.remove(QLatin1Char('&')).trimmed();
}

void addActions(KeySection& section, const QList<QAction*>& actions)
{
    for (const QAction* action : actions) {
        if (action->menu() != nullptr) {
            addActions(section, action->menu()->actions());
        } else if (!action->shortcut().isEmpty()) {
            section.lines.push_back({native(action->shortcut()), plain(action->text())});
        }
    }
}

QString joined(std::initializer_list<const char*> keys)
{
    QStringList texts;
    for (const char* key : keys) {
        texts.append(native(key));
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace

std::vector<KeySection> KeyTable::sections(const QMenuBar& menus, const QWidget& editor)
{
    return {ofMenus(menus), ofEditor(editor), ofWeek()};
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

KeySection KeyTable::ofWeek()
{
    return {tr("Week"),
            {{joined({"Up", "Down", "Left", "Right"}), tr("Select another plan")},
             {native("Return"), tr("Open the selected plan in the editor")},
             {native("Space"), tr("Say what is on screen then, and why")},
             {joined({"Ctrl+Up", "Ctrl+Down"}), tr("Move the plan by a quarter of an hour")},
             {joined({"Ctrl+Left", "Ctrl+Right"}), tr("Move the plan to another day")},
             {joined({"Ctrl+Shift+Up", "Ctrl+Shift+Down"}), tr("Move the end of the plan")},
             {joined({"Alt+Shift+Up", "Alt+Shift+Down"}), tr("Move the begin of the plan")},
             {native("Esc"), tr("Give up dragging")},
             {native("Menu"), tr("Copy the plans of the day")},
             {joined({"Ctrl+PgUp", "Ctrl+PgDown"}), tr("Show another week")},
             {native("Home"), tr("Show the present moment")},
             {joined({"+", "-"}), tr("Zoom")},
             {native("0"), tr("Fit the whole day")}}};
}

} // namespace trel::desktop
