#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QMainWindow;
class QMenu;

namespace trel::desktop {

class GuideWindow;

/// The menu of help: the guide, the keys, and what this program is.
class HelpMenu : public QObject
{
    Q_OBJECT

public:
    /// Puts the menu behind those that the window has. The editor outlives it.
    HelpMenu(QMainWindow& window, const QWidget& editor);

    QAction* guide() const { return m_guide; }
    QAction* keys() const { return m_keys; }
    QAction* about() const { return m_about; }

    void retranslate();

private:
    void showGuide();
    void showKeys();
    void showAbout() const;

    QMainWindow& m_window;
    const QWidget& m_editor;
    QMenu* m_menu;
    QAction* m_guide;
    QAction* m_keys;
    QAction* m_about;
    QPointer<GuideWindow> m_guideWindow; ///< Once it has been asked for.
};

} // namespace trel::desktop
