#pragma once

#include <QPoint>
#include <QString>

class QWidget;

namespace trel::desktop {
class EditorMenus;
class EditorWindow;
namespace week {
class WeekView;
}
} // namespace trel::desktop

namespace trel::mediadispatch {
class scheduleControlUI;
} // namespace trel::mediadispatch

namespace trel::pictures {

class PictureFiles;

/// Draws what opens over the host's windows for a moment: calendars, lists, menus, tool tips, and
/// what is dragged. The window shows the demonstration.
class PopupPictures
{
public:
    PopupPictures(desktop::EditorWindow& window, mediadispatch::scheduleControlUI& editor,
                  PictureFiles& files);

    void drawAll();

private:
    void drawCalendars();
    void unfold();
    void drawLists();
    void drawMenus();
    void drawCopyDay();
    void drawDrag();
    void drawTips();
    void drawVersionName();

    void drawTip(QWidget* widget, const QPoint& place, const QString& name);
    /// The middle of the first block of the week that is high enough to be taken there.
    QPoint firstBlock() const;

    desktop::EditorWindow& m_window;
    mediadispatch::scheduleControlUI& m_editor;
    PictureFiles& m_files;
    const desktop::EditorMenus& m_menus;
    desktop::week::WeekView& m_week;
};

} // namespace trel::pictures
