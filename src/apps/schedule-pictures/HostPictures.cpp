#include "HostPictures.h"

#include "EditorMenus.h"
#include "EditorWindow.h"
#include "HostPrompts.h"
#include "PictureFiles.h"
#include "PopupPictures.h"
#include "ProblemWords.h"
#include "SaveRescue.h"
#include "StationPictures.h"
#include "catalogue/PreviewPicture.h"
#include "changes/ChangesDialog.h"
#include "clock/Clock.h"
#include "draft/DraftKeeper.h"
#include "draft/DraftWords.h"
#include "scheduleControlUI.h"
#include "screen/PreviewDock.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "week/WeekPage.h"
#include "week/WeekView.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>

#include <cerrno>
#include <map>
#include <optional>
#include <vector>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace trel::pictures {

namespace {

/// Longer than any import, in milliseconds.
constexpr int kNever = 3600000;
/// When such a window has its content, in milliseconds.
constexpr int kFilled = 300;
/// How old the draft is that is offered, in milliseconds.
constexpr qint64 kDraftAge = 3 * 3600 * 1000LL;

} // namespace

HostPictures::HostPictures(EditorWindow& window, scheduleControlUI& editor, PictureFiles& files)
    : m_window(window)
    , m_editor(editor)
    , m_files(files)
{}

void HostPictures::drawAll()
{
    m_window.show();
    settle();
    drawWindow();
    drawMenus();
    drawPanels();
    drawEffect();
    drawFullScreen();
    drawWeeks();
    drawVersions();
    drawOtherWindows();
    drawImport();
    drawFileDialogs();
    drawPrompts();
    drawProblems();
    StationPictures(m_window, m_editor, m_files).drawAll();
    PopupPictures(m_window, m_editor, m_files).drawAll();
    drawEmpty();
    m_window.hide();
    QApplication::setActiveWindow(&m_editor);
}

void HostPictures::drawWindow()
{
    m_files.save(&m_window, QStringLiteral("window"));
}

void HostPictures::drawMenus()
{
    int number = 0;
    const QList<QAction*> entries = m_window.menuBar()->actions();
    for (const QAction* entry : entries) {
        entry->menu()->ensurePolished();
        entry->menu()->adjustSize();
        m_files.save(entry->menu(), QStringLiteral("window-menu-%1").arg(++number));
    }
}

void HostPictures::drawPanels()
{
    scheduleManage::getInstance().slotOpen();
    settle();
    const QList<QDockWidget*> panels = m_window.findChildren<QDockWidget*>();
    for (QDockWidget* panel : panels) {
        const bool wasVisible = panel->isVisible();
        panel->show();
        panel->raise();
        settle();
        m_files.save(panel, QStringLiteral("panel-") + panel->objectName());
        panel->setVisible(wasVisible);
    }
}

/// A skipped play, where one is on screen at this hour, in a schedule that has been edited since it
/// was started, and the question of a stop.
void HostPictures::drawEffect()
{
    const EditorMenus& menus = *m_window.findChild<EditorMenus*>();
    ScheduleHost& host = ScheduleHost::instance();
    const std::map<int, PlayTask> former = scheduleManage::getInstance().getgTaskMap();
    std::map<int, PlayTask> edited = former;
    for (auto& [id, task] : edited) {
        task.plans.clear();
    }
    host.replaceSchedule(edited);
    menus.skipPlay()->trigger();
    settle();
    m_files.save(&m_window, QStringLiteral("window-cut-in"));
    m_files.saveDialog(m_window, QStringLiteral("prompt-stop"),
                       [&menus] { menus.stopSchedule()->trigger(); });
    menus.cancelInsertion()->trigger();
    host.replaceSchedule(former);
}

/// While something is on screen.
void HostPictures::drawFullScreen()
{
    QAction& entry = *m_window.findChild<PreviewDock*>()->fullScreen();
    entry.trigger();
    auto* const preview = m_window.findChild<QWidget*>(QStringLiteral("previewFullScreen"));
    QElapsedTimer timer;
    timer.start();
    waitUntil([&timer] { return timer.hasExpired(kFilled); });
    m_files.save(preview, QStringLiteral("preview-full-screen"));
    preview->close();
    settle();
}

void HostPictures::drawWeeks()
{
    auto* page = m_window.findChild<week::WeekPage*>();
    auto* view = page->findChild<week::WeekView*>();
    // The first whole week of the demonstration.
    view->stepWeeks(1);
    settle();
    // With a block that is explained.
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(view, &down);
    settle();
    m_files.save(&m_window, QStringLiteral("window-week"));
    m_files.save(page, QStringLiteral("week"));
    view->showNow();
}

/// Two saves more, of which the second changes what is on screen in every week.
void HostPictures::drawVersions()
{
    ScheduleHost& host = ScheduleHost::instance();
    const std::map<int, PlayTask> former = scheduleManage::getInstance().getgTaskMap();
    std::map<int, PlayTask> edited = former;
    edited.begin()->second.plans.back().endTime = "22:30:00";
    host.replaceSchedule(edited);
    edited.begin()->second.plans.front().startTime = "06:15:00";
    host.replaceSchedule(edited);
    std::vector<ScheduleVersion> versions;
    host.versions(versions);
    host.nameVersion(versions.at(1).number, QStringLiteral("Advent"), QStringLiteral("agreed"));
    m_window.findChild<EditorMenus*>()->versions()->trigger();
    auto* const list = m_window.findChild<QDialog*>(QStringLiteral("versionsWindow"));
    auto* const table = list->findChild<QTableView*>(QStringLiteral("versionTable"));
    const auto* const found = list->findChild<QTableView*>(QStringLiteral("differenceTable"));
    auto* const tabs = list->findChild<QTabWidget*>(QStringLiteral("versionTabs"));
    const auto* const reading = list->findChild<QLabel*>(QStringLiteral("versionSummary"));
    waitUntil([reading] { return !reading->isVisible(); });
    table->setCurrentIndex(table->model()->index(2, 0));
    waitUntil([found] { return found->model()->rowCount() > 0; });
    settle();
    m_files.save(list, QStringLiteral("versions"));
    tabs->setCurrentIndex(1);
    list->findChild<week::WeekView*>(QStringLiteral("formerWeek"))->stepWeeks(1);
    const auto* const stretches = list->findChild<QTableView*>(QStringLiteral("stretchTable"));
    waitUntil([stretches] { return stretches->model()->rowCount() > 0; });
    settle();
    m_files.save(list, QStringLiteral("versions-screen"));
    m_files.saveDialog(m_window, QStringLiteral("prompt-restore"), [list] {
        list->findChild<QPushButton*>(QStringLiteral("versionRestoreButton"))->click();
    });
    list->findChild<week::WeekView*>(QStringLiteral("formerWeek"))->showNow();
    tabs->setCurrentIndex(0);
    list->hide();
    host.replaceSchedule(former);
}

void HostPictures::drawOtherWindows()
{
    const EditorMenus& menus = *m_window.findChild<EditorMenus*>();
    auto* const programs = m_window.findChild<QTableView*>(QStringLiteral("programTable"));
    programs->setCurrentIndex(programs->model()->index(1, 0));
    drawOther(*menus.whereUsed(), QStringLiteral("usesWindow"));
    drawOther(*menus.previewProgram(), QStringLiteral("programPreview"),
              [this] { return !m_window.findChild<PreviewPicture*>()->image().isNull(); });
    drawOther(*menus.asRun(), QStringLiteral("asRunWindow"));
    programs->clearSelection();
    const QList<QAction*> help = m_window.menuBar()->actions().last()->menu()->actions();
    drawOther(*help.at(0), QStringLiteral("guideWindow"));
    drawOther(*help.at(1), QStringLiteral("keySheet"));
}

/// A window that other threads fill, by the name of its object.
void HostPictures::drawOther(QAction& entry, const QString& name,
                             const std::function<bool()>& isFilled)
{
    entry.trigger();
    auto* const shown = m_window.findChild<QWidget*>(name);
    QElapsedTimer timer;
    timer.start();
    waitUntil([&timer] { return timer.hasExpired(kFilled); });
    if (isFilled) {
        waitUntil(isFilled);
    }
    m_files.save(shown, name);
    shown->close();
    settle();
}

void HostPictures::drawImport()
{
    const QString gone = QStringLiteral("/media/disk/");
    m_files.saveDialog(m_window, QStringLiteral("import-refusals"), [this, gone] {
        m_window.importMedia({gone + QStringLiteral("Morning news.mp4"),
                              QStringLiteral("/dev/null"), QStringLiteral("tape://studio/4"),
                              QStringLiteral("http://example.com/Evening news.mp4")});
        auto* progress = m_window.findChild<QProgressDialog*>(QStringLiteral("importProgress"));
        // Once events go on, the import may be through.
        progress->show();
        m_files.save(progress, QStringLiteral("import-progress"));
        // As in the middle of many files.
        progress->setLabelText(QStringLiteral("Summer sale.mp4"));
        auto* const bar = progress->findChild<QProgressBar*>();
        bar->setRange(0, 120);
        bar->setValue(47);
        m_files.save(progress, QStringLiteral("import-progress-files"));
        progress->setMinimumDuration(kNever);
        progress->hide();
    });
    m_files.save(&m_window, QStringLiteral("window-imported"));
}

void HostPictures::drawFileDialogs()
{
    const EditorMenus& menus = *m_window.findChild<EditorMenus*>();
    const struct
    {
        const char* name;
        QAction* entry;
    } dialogs[] = {{"file-open", menus.openDatabase()},
                   {"file-read", menus.importSchedule()},
                   {"file-write", menus.exportSchedule()},
                   {"file-import", menus.importFiles()},
                   {"file-folder", menus.importFolder()}};
    for (const auto& dialog : dialogs) {
        m_files.saveDialog(m_window, QString::fromLatin1(dialog.name),
                           [&dialog] { dialog.entry->trigger(); });
    }
}

void HostPictures::drawPrompts()
{
    const EditorMenus& menus = *m_window.findChild<EditorMenus*>();
    m_window.findChild<QTableView*>(QStringLiteral("programTable"))->selectAll();
    m_files.saveDialog(m_window, QStringLiteral("prompt-remove-programs"),
                       [&menus] { menus.removePrograms()->trigger(); });
    m_window.findChild<QTableView*>(QStringLiteral("programTable"))->clearSelection();

    scheduleManage& manager = scheduleManage::getInstance();
    manager.updateUItask();
    PlayTask task = manager.getAllTask().begin()->second;
    task.endDate = task.startDate;
    manager.addTask(task);
    m_files.saveDialog(m_window, QStringLiteral("prompt-unsaved"), [this] { m_window.close(); });
    drawDrafts();

    const QString store = ScheduleHost::instance().path();
    const SaveRescue rescue(ScheduleHost::instance(), m_window.drafts(), &m_window);
    const QFile::Permissions former = QFile::permissions(store);
    QFile::setPermissions(store, QFile::ReadOwner);
    m_files.saveDialog(m_window, QStringLiteral("prompt-not-saved"),
                       [&manager] { manager.save(); });
    QFile::setPermissions(store, former);
    manager.updateUItask();
}

void HostPictures::drawDrafts()
{
    LeftDraft left;
    left.path = QStringLiteral("/home/operator/schedules/station.db.unsaved-operator@studio");
    left.draft.state = DraftState::Damaged;
    left.draft.edited = Clock::current().msecsSinceEpoch() - kDraftAge;
    left.isOfOtherSave = true;
    const std::map<int, PlayTask>& saved = m_window.drafts().saved();
    PlayTask edited = saved.begin()->second;
    edited.plans.front().startTime = "06:15:00";
    edited.plans.back().weeks = "1,3,5";
    edited.plans.erase(edited.plans.begin() + 1);
    left.draft.tasks = {{edited.id, edited}, {saved.rbegin()->first, std::nullopt}};
    edited.id = 9;
    left.draft.tasks.emplace(9, edited);
    const auto ask = [this, &left] { m_window.drafts().ask(m_window.drafts().questionOf(left)); };
    m_files.saveDialog(m_window, QStringLiteral("prompt-draft"), ask);
    m_files.saveDialog(m_window, QStringLiteral("prompt-draft-week"), ask, [](QWidget* dialog) {
        dialog->findChild<QPushButton*>(QStringLiteral("changesLook"))->click();
    });
    left.draft.state = DraftState::TooNew;
    m_files.saveDialog(m_window, QStringLiteral("prompt-draft-too-new"), [&left] {
        prompts::confirm(DraftWords::unreadable(left), DraftWords::decideLater(),
                         DraftWords::deleteFile());
    });
    savePrompt("prompt-draft-failed", DraftWords::notKept(faultOf(FaultCode::System, ENOSPC)));
}

/// The longest ones.
void HostPictures::drawProblems()
{
    const QString file = QStringLiteral("/home/operator/schedules/station.db");
    savePrompt("prompt-unclear", problems::sentence(StoreResult{
                                     StoreProblem::Unclear, file, {FaultCode::DiskError, {}}}));
    savePrompt("prompt-foreign-log",
               problems::sentence(StoreResult{
                   StoreProblem::Damaged, file,
                   faultOf(FaultCode::ForeignLog, QString(file + QStringLiteral("-wal")))}));
    ScheduleFromJson schedule;
    schedule.fault = faultOf(FaultCode::TaskTextTooLong, 3, 65536);
    schedule.place = QStringLiteral("tasks[2].plans[0].startTime");
    schedule.line = 48;
    savePrompt("prompt-json",
               problems::unreadable(QStringLiteral("/home/operator/station.json"), schedule));
}

void HostPictures::savePrompt(const char* name, const QString& text)
{
    m_files.saveDialog(m_window, QString::fromLatin1(name), [&text] { prompts::notice(text); });
}

void HostPictures::drawEmpty()
{
    const QString store = ScheduleHost::instance().path();
    m_window.openDatabase(QFileInfo(store).absolutePath() + QStringLiteral("/empty.db"));
    settle();
    m_files.save(&m_window, QStringLiteral("window-empty"));
    m_window.openDatabase(store);
    settle();
}

} // namespace trel::pictures
