#pragma once

#include <QDockWidget>

class QAction;

namespace trel::desktop {

class PreviewScreen;
class ScreenFollower;

/// The preview of the screen in the host's window; a double click, or its action, lets it fill a
/// screen, and a second one, or Escape, brings it back.
class PreviewDock : public QDockWidget
{
    Q_OBJECT

public:
    /// The follower outlives the dock.
    PreviewDock(ScreenFollower& follower, QWidget* parent);

    QAction* fullScreen() const { return m_fullScreen; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void setFullScreen(bool isFull);

    ScreenFollower& m_follower;
    QAction* m_fullScreen;
    PreviewScreen* m_large = nullptr; ///< A window of its own, while there is one.
};

} // namespace trel::desktop
