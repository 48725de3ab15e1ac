#pragma once

#include <QDir>
#include <QString>

#include <functional>

class QDialog;
class QWidget;

namespace trel::desktop {
class EditorWindow;
} // namespace trel::desktop

namespace trel::mediadispatch {
class PlanTaskWidget;
class scheduleControlUI;
} // namespace trel::mediadispatch

namespace trel::pictures {

/// Draws the host's and the editor's windows as an operator gets to see them, by operating them.
/// The editor is visible, and shows the schedule.
class PictureBook
{
public:
    /// Files are written to the folder, with the suffix before their extension.
    PictureBook(trel::desktop::EditorWindow& window, trel::mediadispatch::scheduleControlUI& editor,
                const QDir& folder, const QString& suffix);

    void drawAll();
    /// False after a picture could not be written.
    bool isComplete() const { return m_complete; }

private:
    void drawWindow();
    void drawEditor();
    void drawChoosers();
    void drawMenu();
    void drawPrompts();
    void drawEmpty();

    void save(QWidget* widget, const QString& name);
    /// Does what opens a dialog, draws the dialog and closes it.
    void saveDialog(const QString& name, const std::function<void()>& open,
                    const std::function<void(QWidget*)>& prepare = {});
    void refresh();
    QWidget* card() const;
    /// The widget in a cell of the first card.
    QWidget* cellWidget(int row, int column) const;

    trel::desktop::EditorWindow& m_window;
    trel::mediadispatch::scheduleControlUI& m_editor;
    QDir m_folder;
    QString m_suffix;
    bool m_complete = true;
};

} // namespace trel::pictures
