#pragma once

#include <QString>

class QWidget;

namespace trel::desktop {
class EditorMenus;
class EditorWindow;
} // namespace trel::desktop

namespace trel::mediadispatch {
class scheduleControlUI;
} // namespace trel::mediadispatch

namespace trel::pictures {

class PictureFiles;

/// Draws the host's windows as they are at a station at work: with problems, missing files,
/// players, records, steps to undo, and other desks that edit and save. The window shows the
/// demonstration, and does so again afterwards.
class StationPictures
{
public:
    StationPictures(desktop::EditorWindow& window, mediadispatch::scheduleControlUI& editor,
                    PictureFiles& files);

    void drawAll();

private:
    void drawSizes();
    void drawStart();
    void drawPlayers();
    void drawAsRun();
    void drawEdits();
    void drawProblems();
    void drawCatalogue();
    void drawReplacement();
    void drawOtherDesk();
    void drawConflicts();
    void drawOtherSave();
    void drawHelp();

    void drawDock(const char* dock, const QString& name);

    desktop::EditorWindow& m_window;
    mediadispatch::scheduleControlUI& m_editor;
    PictureFiles& m_files;
    const desktop::EditorMenus& m_menus;
};

} // namespace trel::pictures
