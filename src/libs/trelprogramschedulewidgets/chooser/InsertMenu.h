#pragma once

class QMenu;
class QString;

namespace trel::mediadispatch {

/// The lines of the context menu of the chooser's right table, from the top.
enum class InsertMenuLine {
    Cut,   ///< Insert the program at once.
    Delay, ///< Insert it with delay.
    MoveUp,
    MoveDown
};

/// Adds an action for each line, in the language of the moment.
void fillInsertMenu(QMenu& menu);
/// The line whose action has this text: the actions carry nothing else. Cut for a text that is not
/// known, such as one of a language that has changed under the menu.
InsertMenuLine insertMenuLine(const QString& text);

} // namespace trel::mediadispatch
