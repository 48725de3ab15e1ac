#pragma once

#include "InSightFirst.h"

class QEvent;

namespace trel::widgets {

/// Has all that lies in a window follow the palette and the font of the application and of the
/// window. Below a style sheet, be it that of a single part, the toolkit passes both over. What a
/// widget has set for itself it keeps.
///
/// What is in sight follows at once, and the rest before anybody sees it.
class LookFollower
{
public:
    explicit LookFollower(QWidget& window);

    /// To be called for each change that the window is told of, behind what it does itself.
    void follow(const QEvent& change);

private:
    QWidget& m_window;
    InSightFirst m_parts;
};

} // namespace trel::widgets
