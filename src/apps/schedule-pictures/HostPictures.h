#pragma once

#include <functional>

class QAction;
class QString;

namespace trel::desktop {
class EditorWindow;
} // namespace trel::desktop

namespace trel::mediadispatch {
class scheduleControlUI;
} // namespace trel::mediadispatch

namespace trel::pictures {

class PictureFiles;

/// Draws the host's windows as an operator gets to see them, by operating them. The window shows
/// the demonstration.
class HostPictures
{
public:
    HostPictures(desktop::EditorWindow& window, mediadispatch::scheduleControlUI& editor,
                 PictureFiles& files);

    void drawAll();

private:
    void drawWindow();
    void drawMenus();
    void drawPanels();
    void drawEffect();
    void drawFullScreen();
    void drawWeeks();
    void drawVersions();
    void drawOtherWindows();
    void drawOther(QAction& entry, const QString& name, const std::function<bool()>& isFilled = {});
    void drawImport();
    void drawFileDialogs();
    void drawPrompts();
    void drawDrafts();
    void drawProblems();
    void drawEmpty();

    void savePrompt(const char* name, const QString& text);

    desktop::EditorWindow& m_window;
    mediadispatch::scheduleControlUI& m_editor;
    PictureFiles& m_files;
};

} // namespace trel::pictures
