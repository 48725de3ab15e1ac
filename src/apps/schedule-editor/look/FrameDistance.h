#pragma once

#include <QStyleOption>

class QStyle;
class QWidget;

namespace trel::desktop::look {

/// Texts keep this far from the frame of the list, or of the panel, that they stand in.
constexpr int kFrameDistance = 8;

/// How much further from the frame of its list a cell begins than the style has it: of the first
/// column of the host's tables, and of every row of its lists. None in those of the editor, which
/// have a look of their own, and in lists that open below a box.
int cellInset(const QStyle& style, const QStyleOptionViewItem& item, const QWidget* view);
/// The same for the title of a column.
int titleInset(const QStyle& style, const QStyleOptionHeader& title, const QWidget* header);

/// Whether a widget has the titles of the columns of one of the host's tables.
bool isTitleOfHost(const QWidget* header);

/// A place whose text begins so much later, in reading direction.
QRect withInset(const QRect& place, int inset, Qt::LayoutDirection direction);

} // namespace trel::desktop::look
