#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace trel::mediadispatch {
class scheduleControlUI;
} // namespace trel::mediadispatch

namespace trel::pictures {

class PictureFiles;

/// Draws the editor's windows as an operator gets to see them, by operating them. The editor is
/// visible, and shows the schedule.
class PictureBook
{
public:
    PictureBook(mediadispatch::scheduleControlUI& editor, PictureFiles& files);

    void drawAll();

private:
    void drawEditor();
    void drawChoosers();
    void drawMenu();
    void drawPrompts();
    void drawEmpty();

    void saveDialog(const QString& name, const std::function<void()>& open,
                    const std::function<void(QWidget*)>& prepare = {});
    void refresh();
    QWidget* card() const;
    /// The widget in a cell of the first card.
    QWidget* cellWidget(int row, int column) const;

    mediadispatch::scheduleControlUI& m_editor;
    PictureFiles& m_files;
};

} // namespace trel::pictures
