#pragma once

#include <QModelIndex>

class QTableView;
class QWidget;

namespace trel::mediadispatch {

/// The cell that a widget lies in; invalid when it lies in none.
QModelIndex cellOf(const QTableView& table, const QWidget* inside);

/// What of a cell a screen reader stops at: the one widget in a holder, or the button with which a
/// program field opens the chooser. Null when the cell has no editor.
QWidget* editorIn(const QTableView& table, const QModelIndex& cell);

/// Whether a prompt stands over a window, or a menu is open anywhere. What comes from elsewhere
/// than its own events, such as a key or a screen reader, would reach what is behind the prompt all
/// the same, and bring the next one over the first, or take away what the menu is about.
bool isBehindPrompt(const QWidget& window);

} // namespace trel::mediadispatch
