#pragma once

#include <QObject>

class QCoreApplication;

namespace trel::desktop::fit {

/// Keeps the windows of the program on the screen: one that would open larger than the screen opens
/// as large as the screen, as far as what is in it does with less. The middle of a main window does
/// with what its bars and panels leave, and scrolls there. The chooser, which is always 610 by 470,
/// is higher than the smallest screens.
///
/// Popups, tool tips and what fills the screen anyway are left alone.
class WindowsOnScreen : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the application, which has widgets.
    explicit WindowsOnScreen(QCoreApplication& application);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace trel::desktop::fit
