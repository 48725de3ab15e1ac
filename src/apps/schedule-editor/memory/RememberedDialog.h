#pragma once

#include <QObject>
#include <QPointer>

class QSettings;
class QWidget;

namespace trel::desktop {

/// What the operator has made of a window that opens above the host's own one, from one time that
/// it is opened to the next and from one start of the program to the next: its size and place, the
/// widths of the columns of its tables, and where it is divided. It is remembered by the window's
/// name where the host's window is remembered, and nowhere else. What was left on a screen that is
/// smaller by now, or gone, comes back on one that there is.
class RememberedDialog : public QObject
{
    Q_OBJECT

public:
    /// Gives the window what is remembered, and becomes its child. To be made when the window has
    /// its name, its parent, all its parts and its first size, and before it is shown. What it is
    /// like is written down when it is closed or hidden and when the program ends.
    explicit RememberedDialog(QWidget& window);
    ~RememberedDialog() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void save();

    QWidget& m_window;
    QPointer<QSettings> m_settings; ///< None where nothing is remembered.
};

} // namespace trel::desktop
