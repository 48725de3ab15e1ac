#pragma once

#include <QSize>

class QWidget;

namespace trel::desktop::fit {

/// How large a window may be on its screen, without the frame that the desktop puts around it.
QSize roomFor(const QWidget& window);

/// Makes a window no larger than that, as far as what is in it does with less. Popups, tool tips
/// and what fills the screen anyway are left alone.
void keepWithinRoom(QWidget& window);

} // namespace trel::desktop::fit
