#pragma once

#include <QMainWindow>
#include <QStringList>

class QDockWidget;
class QMenu;

namespace trel::mediadispatch {
class scheduleControlUI;
} // namespace trel::mediadispatch

namespace trel::desktop {

namespace access {
class Announcer;
} // namespace access

namespace air {
class AirState;
}

namespace players {
class PlayersDock;
}

namespace undo {
class EditHistory;
class HistoryActions;
} // namespace undo

namespace versions {
class VersionsAction;
} // namespace versions

namespace week {
class WeekMenu;
class WeekPanel;
} // namespace week

class AsRunWindow;
class CatalogueImport;
class CataloguePanel;
class DraftKeeper;
class EditorMenus;
class HelpMenu;
class Languages;
class NowNextPanel;
class PendingNotices;
class ProblemDock;
class ScreenFollower;
class Themes;

/// The host's window: the catalogue of programs, the menus, and the way into the schedule editor.
///
/// Media dropped on it, or on the editor, are imported. Its title names the open database.
class EditorWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Nothing of these is owned; all outlive the window.
    EditorWindow(trel::mediadispatch::scheduleControlUI& editor, Languages& languages,
                 Themes& themes);
    ~EditorWindow() override;

    /// Makes the window higher than it begins, where its screen has the room: the week gets it, and
    /// from some height on the list of problems as well. To be called before it is shown and before
    /// it gets the size in which it was left.
    void takeRoomOnScreen();

    /// Opens the store in a file. A database that does not exist yet is made, and filled from the
    /// demonstration's folder unless that is empty. Returns an empty text, or a sentence that says
    /// what went wrong.
    QString openDatabase(const QString& path, const QString& demonstration = QString());

    /// Opens what the operator has chosen, once it is settled what becomes of unsaved changes. What
    /// cannot be opened leaves the present one open.
    void openChosen(const QString& path);
    /// The menu of the databases that were open before, to be filled.
    QMenu& recentDatabases() const;

    /// Imports media; shows progress, with a way to cancel, and reports what could not be taken,
    /// once no other prompt stands.
    /// While an import runs, another one is not begun.
    void importMedia(const QStringList& paths);

    /// Shows a message and waits until it has been read.
    void tell(const QString& text);

    /// What looks after the changes that are not saved.
    DraftKeeper& drafts() const { return *m_drafts; }
    /// Asks what becomes of changes that were left unsaved in the database that is open.
    void offerDrafts();

    /// Shows the schedule editor, or brings it back; in the first second of its life the editor
    /// stays away.
    void showEditor();
    /// Shows it with the card and the row of a plan; without a row of that plan as it is.
    void showPlan(int taskId, int planId);

signals:
    /// A database is open.
    void databaseOpened(const QString& path);
    /// An import that was begun has ended, in whatever way.
    void importEnded();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void connectMenus();
    void buildPanels(const Languages& languages, const Themes& themes);
    void allowEdits(week::WeekPanel& panel);
    void buildBar(ScreenFollower& follower, const ProblemDock& problems);
    /// Docks a panel, which becomes a child, and lets the view menu show and hide it.
    void addPanel(QDockWidget* panel, Qt::DockWidgetArea area);
    void retranslate();
    void updateTitle();
    void enableUpdates();

    void chooseDatabase();
    void chooseAddress();
    void makeDatabase();
    void exportSchedule();
    void importSchedule();
    /// Asks before so many tasks out of a file take the place of all, and of what is not saved, and
    /// tells what is doubtful in them.
    bool mayReplace(int tasks, const QString& doubts);
    void showReplacedSchedule();
    void showAsRun();
    void takeOverTyping();
    void takeColours();
    /// True when the window may go: nothing unsaved, or the operator has said what becomes of it.
    bool maySettle();

    trel::mediadispatch::scheduleControlUI& m_editor;
    const Themes& m_themes;
    EditorMenus* m_menus;
    HelpMenu* m_help;
    week::WeekMenu* m_week = nullptr;
    CataloguePanel* m_catalogue;
    QDockWidget* m_programs;
    access::Announcer* m_announcer;
    QDockWidget* m_nowNext;
    NowNextPanel* m_nowNextPanel = nullptr;
    players::PlayersDock* m_players = nullptr;
    QDockWidget* m_clockChanges;
    ProblemDock* m_problems = nullptr;
    PendingNotices* m_notices;
    CatalogueImport* m_import;
    air::AirState* m_air = nullptr;
    undo::EditHistory* m_history = nullptr;
    undo::HistoryActions* m_undo = nullptr;
    DraftKeeper* m_drafts;
    versions::VersionsAction* m_versions = nullptr;
    AsRunWindow* m_asRun = nullptr; ///< Once it has been asked for.
};

} // namespace trel::desktop
