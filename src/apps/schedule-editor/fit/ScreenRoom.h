#pragma once

#include <QSize>

class QWidget;

namespace trel::desktop::fit {

/// How large a window may be on its screen, without the frame that the desktop puts around it.
QSize roomFor(const QWidget& window);

/// Makes a window no larger than that, as far as what is in it does with less. Popups, tool tips
/// and what fills the screen anyway are left alone.
void keepWithinRoom(QWidget& window);

/// Moves a window that reaches over an edge of its screen, or lies off every screen, so that all of
/// it is on the screen, its frame included; of one that is larger the part where one begins to
/// read, up to which it is made smaller. What fills the screen anyway is left alone.
void moveOntoScreen(QWidget& window);

} // namespace trel::desktop::fit
