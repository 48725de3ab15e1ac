#pragma once

#include "ThemeColours.h"

class QPainter;
class QRect;
class QStyleOptionTab;

namespace trel::desktop::look {

/// The line around an open menu, by which it is seen over a window of the same colour.
void paintMenuFrame(QPainter& painter, const ThemeColours& colours, const QRect& rect);

/// The line between two groups of a menu.
void paintMenuSeparator(QPainter& painter, const ThemeColours& colours, const QRect& rect);

/// What the pages of tabs lie on: as the window, whose widgets they hold.
void paintTabPane(QPainter& painter, const ThemeColours& colours, const QRect& rect);

/// The tab in front: on the ground of its page, with a mark along its outer edge.
void paintTabInFront(QPainter& painter, const ThemeColours& colours, const QStyleOptionTab& tab);

} // namespace trel::desktop::look
