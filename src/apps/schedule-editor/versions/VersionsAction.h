#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace trel::mediadispatch {
class scheduleControlUI;
}

namespace trel::desktop {

class Languages;
class Themes;

namespace versions {

class VersionsWindow;

/// Shows the window of the versions when it is asked for, and keeps it in language and theme.
class VersionsAction : public QObject
{
    Q_OBJECT

public:
    /// All of these outlive it; the window is its parent and that of the versions.
    VersionsAction(QAction& action, mediadispatch::scheduleControlUI& editor,
                   const Languages& languages, const Themes& themes, QWidget* window);

    /// Another store has been opened.
    void readAgain();

signals:
    /// See VersionsWindow.
    void aboutToReplace();
    void replaced();

private:
    void show();
    void takeLanguage();
    void takeColours();

    mediadispatch::scheduleControlUI& m_editor;
    const Languages& m_languages;
    const Themes& m_themes;
    QWidget* m_parent;
    VersionsWindow* m_window = nullptr; ///< None before it is first asked for.
};

} // namespace versions
} // namespace trel::desktop
