#pragma once

#include <QObject>

class QAction;
class QActionGroup;
class QMenu;
class QMenuBar;

namespace trel::desktop {

class Languages;
class Themes;

/// The menus of the host's window: what stands in them, with its keys, and the choice of theme and
/// language. What the other entries do is up to the code that connects them.
class EditorMenus : public QObject
{
    Q_OBJECT

public:
    /// Fills the menu bar, whose child it becomes. Languages and themes outlive it.
    EditorMenus(QMenuBar& bar, Languages& languages, Themes& themes);

    QAction* editSchedule() const { return m_editSchedule; }
    QAction* undo() const { return m_undo; }
    QAction* redo() const { return m_redo; }
    QAction* openDatabase() const { return m_openDatabase; }
    QAction* openFromServer() const { return m_openFromServer; }
    QAction* newDatabase() const { return m_newDatabase; }
    /// The way to those that were open before.
    QMenu* recentDatabases() const { return m_recentDatabases; }
    QAction* importSchedule() const { return m_importSchedule; }
    QAction* exportSchedule() const { return m_exportSchedule; }
    QAction* quit() const { return m_quit; }
    QAction* importFiles() const { return m_importFiles; }
    QAction* importFolder() const { return m_importFolder; }
    QAction* searchPrograms() const { return m_searchPrograms; }
    QAction* previewProgram() const { return m_previewProgram; }
    QAction* whereUsed() const { return m_whereUsed; }
    QAction* removePrograms() const { return m_removePrograms; }
    QAction* skipPlay() const { return m_skipPlay; }
    QAction* cancelInsertion() const { return m_cancelInsertion; }
    QAction* startSchedule() const { return m_startSchedule; }
    QAction* stopSchedule() const { return m_stopSchedule; }
    QAction* asRun() const { return m_asRun; }
    QAction* bringBack() const { return m_bringBack; }
    QAction* versions() const { return m_versions; }

    /// What the menu of the view is in the bar, for what stands in front of it.
    QAction* viewMenu() const;

    /// The name of the menu of programs, without the mark of its letter.
    QString programsTitle() const;
    /// Adds what shows or hides a part of the window, above the themes, in the order of the calls.
    void addPanel(QAction* toggle);
    /// Puts every text into the language in use.
    void retranslate();

private:
    void buildThemes(Themes& themes);
    void buildLanguages(Languages& languages);

    QMenu* m_schedule;
    QMenu* m_programs;
    QMenu* m_view;
    QMenu* m_language;
    QAction* m_editSchedule;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_bringBack;
    QAction* m_versions;
    QAction* m_openDatabase;
    QAction* m_openFromServer;
    QAction* m_newDatabase;
    QMenu* m_recentDatabases;
    QAction* m_importSchedule;
    QAction* m_exportSchedule;
    QAction* m_quit;
    QAction* m_importFiles;
    QAction* m_importFolder;
    QAction* m_searchPrograms;
    QAction* m_previewProgram;
    QAction* m_whereUsed;
    QAction* m_removePrograms;
    QAction* m_skipPlay;
    QAction* m_cancelInsertion;
    QAction* m_startSchedule;
    QAction* m_stopSchedule;
    QAction* m_belowPanels; ///< Parts them from what is no part of the window.
    QAction* m_asRun;
    QActionGroup* m_themes;
};

} // namespace trel::desktop
