#include "EditorWindow.h"

#include "DatabaseArgument.h"
#include "Demonstration.h"
#include "EditorMenus.h"
#include "HostPrompts.h"
#include "Languages.h"
#include "PendingNotices.h"
#include "PlainTabTips.h"
#include "ProblemWords.h"
#include "access/Announcer.h"
#include "air/AirBar.h"
#include "air/AirState.h"
#include "air/StartAction.h"
#include "asrun/AsRunWindow.h"
#include "catalogue/CatalogueImport.h"
#include "catalogue/CataloguePanel.h"
#include "catalogue/MediaDrop.h"
#include "clock/ClockChangePanel.h"
#include "common/PatientFile.h"
#include "desks/DeskNotice.h"
#include "draft/DraftKeeper.h"
#include "effect/EffectActions.h"
#include "exchange/ScheduleFile.h"
#include "fit/ScreenRoom.h"
#include "follow/EditedSchedule.h"
#include "help/HelpMenu.h"
#include "look/Themes.h"
#include "memory/LastFolders.h"
#include "place/AddressDialog.h"
#include "place/PlaceWords.h"
#include "players/PlayersDock.h"
#include "problems/ProblemDock.h"
#include "scheduleControlUI.h"
#include "screen/NowNextPanel.h"
#include "screen/PreviewDock.h"
#include "screen/ScreenFollower.h"
#include "screen/ScreenNews.h"
#include "service/ScheduleDifferences.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/store/StorePlace.h"
#include "undo/EditHistory.h"
#include "undo/EditWords.h"
#include "undo/HistoryActions.h"
#include "undo/HistoryDock.h"
#include "versions/VersionsAction.h"
#include "week/WeekMenu.h"
#include "week/WeekPage.h"
#include "week/WeekPanel.h"
#include "week/moves/WeekEdits.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>

#include <chrono>
#include <set>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// Leaves room for the frame of the window and for a bar of the desktop on a screen of 1366 by 768.
constexpr QSize kFirstSize(1350, 700);
/// As high as it opens where the screen has the room.
constexpr int kHighest = 900;
/// From this height on more of the problems are seen, and the week is no lower for it.
constexpr int kRoomy = 800;
constexpr int kRowsWhereRoomy = 4;
/// With a server.
constexpr std::chrono::seconds kPatience{10};

/// A panel that never makes the window higher than the screen, whatever it has to say.
QScrollArea* scrolled(QWidget& panel)
{
    auto* area = new QScrollArea(panel.parentWidget());
    area->setObjectName(panel.objectName() + QStringLiteral("Area"));
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(&panel);
    return area;
}

/// Names a button of the toolkit in the toolkit's own words.
void nameButton(const QDockWidget& panel, const char* button, const char* name)
{
    if (auto* found = panel.findChild<QAbstractButton*>(QLatin1String(button))) {
        found->setAccessibleName(QDockWidget::staticMetaObject.tr(name, nullptr));
    }
}

/// Whether a file can be read and is no database. One of no bytes becomes a schedule.
bool isForeignFile(const QString& path)
{
    const QFileInfo file(path);
    return !StorePlace::isAddress(path) && file.isFile() && file.isReadable() && file.size() > 0 &&
           !isDatabaseFile(path);
}

} // namespace

EditorWindow::EditorWindow(scheduleControlUI& editor, Languages& languages, Themes& themes)
    : m_editor(editor)
    , m_themes(themes)
    , m_menus(new EditorMenus(*menuBar(), languages, themes))
    , m_help(new HelpMenu(*this, editor))
    , m_catalogue(new CataloguePanel(*m_menus, this))
    , m_programs(new QDockWidget(this))
    , m_announcer(new access::Announcer(this))
    , m_nowNext(new QDockWidget(this))
    , m_clockChanges(new QDockWidget(this))
    , m_notices(new PendingNotices(*this))
    , m_import(new CatalogueImport(*m_notices, *this))
    , m_drafts(new DraftKeeper(m_editor, *m_menus->bringBack(), *m_notices, themes, this))
{
    setObjectName(QStringLiteral("editorWindow"));
    new LastFolders(*this);
    auto* drop = new MediaDrop(this);
    drop->watch(*this);
    drop->watch(m_editor);
    connect(drop, &MediaDrop::dropped, this, &EditorWindow::importMedia);

    connectMenus();
    new EffectActions(*m_menus, *m_notices, this);
    new PlainTabTips(*this);
    statusBar()->addPermanentWidget(new DeskNotice(m_drafts->desks(), statusBar()));
    buildPanels(languages, themes);
    retranslate();
    resize(kFirstSize);
    // Some are made sick by what moves of itself, and what a system says of that does not always
    // reach the toolkit.
    setAnimated(false);

    // The windows wait with each call; an operator takes a longer silence for a crash.
    ScheduleHost::instance().setPatience(kPatience);
    ScheduleHost::instance().watchFiles();
    ScheduleHost::instance().followStore();
    // The panels write dates as the language does; they take the locale over.
    const auto takeLocale = [this, &languages] {
        setLocale(QLocale(languages.current()));
        m_history->setLanguage(locale());
    };
    connect(&languages, &Languages::changed, this, takeLocale);
    takeLocale();
    connect(&languages, &Languages::changed, this, &EditorWindow::updateTitle);
    connect(m_drafts, &DraftKeeper::unsavedChanged, this, &EditorWindow::updateTitle);
}

EditorWindow::~EditorWindow() = default;

void EditorWindow::connectMenus()
{
    const auto run = [this](QAction* action, auto slot) {
        connect(action, &QAction::triggered, this, slot);
    };
    run(m_menus->editSchedule(), &EditorWindow::showEditor);
    run(m_menus->openDatabase(), &EditorWindow::chooseDatabase);
    run(m_menus->openFromServer(), &EditorWindow::chooseAddress);
    run(m_menus->newDatabase(), &EditorWindow::makeDatabase);
    run(m_menus->importSchedule(), &EditorWindow::importSchedule);
    run(m_menus->exportSchedule(), &EditorWindow::exportSchedule);
    run(m_menus->quit(), &EditorWindow::close);
    run(m_menus->asRun(), &EditorWindow::showAsRun);

    connect(m_menus->importFiles(), &QAction::triggered, m_import, &CatalogueImport::chooseFiles);
    connect(m_menus->importFolder(), &QAction::triggered, m_import, &CatalogueImport::chooseFolder);
    connect(m_catalogue, &CataloguePanel::planAsked, &m_editor, &scheduleControlUI::slotShowPlan);
    connect(m_import, &CatalogueImport::ended, this, &EditorWindow::importEnded);
    connect(m_import, &CatalogueImport::told, this,
            [this](const QString& line) { statusBar()->showMessage(line); });
    connect(m_import, &CatalogueImport::told, m_announcer, &access::Announcer::say);
    connect(m_import, &CatalogueImport::tenthDone, this,
            [this](int tenth) { m_announcer->say(tr("Import: %1 percent").arg(tenth * 10)); });
}

void EditorWindow::buildPanels(const Languages& languages, const Themes& themes)
{
    m_programs->setObjectName(QStringLiteral("catalogueDock"));
    m_programs->setWidget(m_catalogue);
    addPanel(m_programs, Qt::LeftDockWidgetArea);
    auto* follower = new ScreenFollower(ScheduleHost::instance().dispatch(), this);
    auto* news = new ScreenNews(*follower, this);
    connect(news, &ScreenNews::told, m_announcer, &access::Announcer::say);
    m_nowNext->setObjectName(QStringLiteral("nowNextDock"));
    m_nowNextPanel = new NowNextPanel(*follower, m_nowNext);
    m_nowNext->setWidget(scrolled(*m_nowNextPanel));
    addPanel(m_nowNext, Qt::RightDockWidgetArea);
    auto* preview = new PreviewDock(*follower, this);
    addPanel(preview, Qt::RightDockWidgetArea);
    m_menus->addPanel(preview->fullScreen());
    m_clockChanges->setObjectName(QStringLiteral("clockChangeDock"));
    auto* edited = new follow::EditedSchedule(this);
    m_clockChanges->setWidget(new ClockChangePanel(*edited, m_clockChanges));
    addPanel(m_clockChanges, Qt::BottomDockWidgetArea);
    m_problems = new ProblemDock(*edited, m_editor, *statusBar(), this);
    addPanel(m_problems, Qt::BottomDockWidgetArea);
    buildBar(*follower, *m_problems);
    // The problems tell of those changes that touch a plan soon.
    m_clockChanges->hide();
    auto* week = new week::WeekPage(*edited, languages, themes, this);
    connect(week, &week::WeekPage::activated, this, &EditorWindow::showPlan);
    setCentralWidget(week);
    m_week = new week::WeekMenu(*menuBar(), *m_menus->viewMenu(), *week->panel());
    m_history = new undo::EditHistory(*edited, m_editor, this);
    connect(m_drafts, &DraftKeeper::aboutToMerge, m_history, &undo::EditHistory::beginMerge);
    connect(m_drafts, &DraftKeeper::merged, m_history,
            [this] { m_history->endMerge(m_drafts->saved()); });
    m_undo = new undo::HistoryActions(*m_menus, *m_history, this);
    m_versions =
        new versions::VersionsAction(*m_menus->versions(), m_editor, languages, themes, this);
    connect(m_versions, &versions::VersionsAction::aboutToReplace, this,
            &EditorWindow::takeOverTyping);
    connect(m_versions, &versions::VersionsAction::replaced, this,
            &EditorWindow::showReplacedSchedule);
    m_editor.addActions({m_menus->undo(), m_menus->redo()});
    allowEdits(*week->panel());
    addPanel(new undo::HistoryDock(*m_history, this), Qt::RightDockWidgetArea);
    m_players = new players::PlayersDock(*follower, *statusBar(), this);
    connect(this, &EditorWindow::databaseOpened, m_players, &players::PlayersDock::look);
    addPanel(m_players, Qt::BottomDockWidgetArea);
    m_players->hide();
    tabifyDockWidget(m_problems, m_players);
    connect(&themes, &Themes::changed, this, &EditorWindow::takeColours);
    takeColours();
    // The catalog and what is on screen stand beside the list of changes, not above it.
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    resizeDocks({m_programs, m_nowNext}, {275, 260}, Qt::Horizontal);
    resizeDocks({m_nowNext, preview}, {480, 120}, Qt::Vertical);
    resizeDocks({m_problems}, {m_problems->sizeHint().height()}, Qt::Vertical);
}

void EditorWindow::takeColours()
{
    const look::ThemeColours colours = m_themes.colours();
    m_nowNextPanel->setColours(colours);
    m_catalogue->setColours(colours);
    m_players->setColours(colours);
    if (m_asRun != nullptr) {
        m_asRun->setColours(colours);
    }
}

void EditorWindow::takeRoomOnScreen()
{
    const int room = fit::roomFor(*this).height();
    resize(width(), qBound(kFirstSize.height(), room, kHighest));
    if (height() >= kRoomy) {
        m_problems->setRows(kRowsWhereRoomy);
        resizeDocks({m_problems}, {m_problems->sizeHint().height()}, Qt::Vertical);
    }
}

void EditorWindow::allowEdits(week::WeekPanel& panel)
{
    auto* edits = new week::WeekEdits(*m_history, m_editor, this);
    panel.allowEdits(*edits);
    connect(edits, &week::WeekEdits::refused, this, [this](const QString& why) {
        statusBar()->showMessage(why);
        m_announcer->say(why);
    });
    // The operator goes on in the picture; that the editor has opened is said.
    connect(edits, &week::WeekEdits::editorShown, this, [this] {
        raise();
        activateWindow();
        statusBar()->showMessage(tr("The change is in the editor now, where it can be saved."));
    });
}

void EditorWindow::buildBar(ScreenFollower& follower, const ProblemDock& problems)
{
    auto* start = new air::StartAction(
        *m_menus->startSchedule(), m_editor, *m_drafts, *m_notices,
        [&problems] { return problems.count(); }, this);
    connect(start, &air::StartAction::told, this,
            [this](const QString& line) { statusBar()->showMessage(line); });
    m_air = new air::AirState(follower, *m_drafts, this);
    connect(m_menus->searchPrograms(), &QAction::triggered, this, [this] {
        m_programs->show();
        m_programs->raise();
        m_catalogue->focusSearch();
    });
    addToolBar(new air::AirBar(*m_menus, m_air, this));
}

void EditorWindow::addPanel(QDockWidget* panel, Qt::DockWidgetArea area)
{
    addDockWidget(area, panel);
    m_menus->addPanel(panel->toggleViewAction());
}

void EditorWindow::retranslate()
{
    m_menus->retranslate();
    m_help->retranslate();
    m_week->retranslate();
    m_undo->update();
    m_programs->setWindowTitle(tr("Catalog"));
    m_programs->toggleViewAction()->setText(tr("Catal&og"));
    m_nowNext->setWindowTitle(tr("Now and next"));
    m_clockChanges->setWindowTitle(tr("Clock changes"));
    // A new title becomes the text of the action, which has a letter besides.
    m_nowNext->toggleViewAction()->setText(tr("&Now and next"));
    m_clockChanges->toggleViewAction()->setText(tr("&Clock changes"));
    // What was said in another language is not said again.
    if (auto* bar = findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        bar->clearMessage();
    }
    // The toolkit names the buttons of a panel once, when it is made.
    const QList<QDockWidget*> panels = findChildren<QDockWidget*>();
    for (const QDockWidget* panel : panels) {
        nameButton(*panel, "qt_dockwidget_floatbutton", "Float");
        nameButton(*panel, "qt_dockwidget_closebutton", "Close");
    }
    updateTitle();
}

void EditorWindow::updateTitle()
{
    QString database = place::placeName(ScheduleHost::instance().path());
    if (!database.isEmpty() && m_drafts->isUnsaved()) {
        database += QLatin1Char('*');
    }
    setWindowTitle(database.isEmpty() ? tr("Schedule editor")
                                      : tr("%1 – Schedule editor").arg(database));
    // The editor sets its own title on every change of language; the database's name goes behind.
    if (!database.isEmpty()) {
        m_editor.setTitle(QStringLiteral("%1 – %2").arg(Languages::editorTitle(), database));
    }
}

void EditorWindow::showReplacedSchedule()
{
    if (m_editor.isVisible()) {
        m_editor.clearAndInitialize();
    } else {
        // The cards of the former schedule would answer what is told of the new one, and file their
        // tasks in it. They come when the editor is shown.
        emit m_editor.sigclearPlanList();
    }
}

QString EditorWindow::openDatabase(const QString& path, const QString& demonstration)
{
    const bool isNew = !StorePlace::isAddress(path) && !QFileInfo::exists(path);
    QString error = problems::sentence(ScheduleHost::instance().open(path));
    if (error.isEmpty() && isNew && !demonstration.isEmpty()) {
        error = fillWithDemonstration(demonstration);
    }
    m_history->clear();
    m_drafts->begin();
    m_air->reload();
    updateTitle();
    m_catalogue->reload();
    showReplacedSchedule();
    m_versions->readAgain();
    // What players write stands beside a file.
    const bool isOnServer = StorePlace::isAddress(ScheduleHost::instance().path());
    m_menus->asRun()->setEnabled(!isOnServer);
    if (m_asRun != nullptr && isOnServer) {
        m_asRun->hide();
    } else if (m_asRun != nullptr) {
        m_asRun->setStore(ScheduleHost::instance().path());
    }
    if (ScheduleHost::instance().isOpen()) {
        emit databaseOpened(ScheduleHost::instance().path());
    }
    return error;
}

void EditorWindow::tell(const QString& text)
{
    prompts::notice(text);
}

void EditorWindow::offerDrafts()
{
    m_drafts->offer();
}

void EditorWindow::showEditor()
{
    m_editor.slotShow();
    m_editor.setWindowState(m_editor.windowState() & ~Qt::WindowMinimized);
    m_editor.raise();
    m_editor.activateWindow();
}

void EditorWindow::showPlan(int taskId, int planId)
{
    const QPointer<EditorWindow> self(this);
    m_editor.slotShowPlan(taskId, planId);
    // What is in effect may have plans that were taken out since; the editor comes to the front all
    // the same. It stays closed when everything was closed while it read its list.
    if (self && m_editor.isVisible()) {
        m_editor.raise();
        m_editor.activateWindow();
    }
}

void EditorWindow::showAsRun()
{
    if (m_asRun == nullptr) {
        m_asRun = new AsRunWindow(this);
        m_asRun->setColours(m_themes.colours());
    }
    m_asRun->setStore(ScheduleHost::instance().path());
    m_asRun->show();
    m_asRun->raise();
    m_asRun->activateWindow();
}

void EditorWindow::chooseDatabase()
{
    const QString file = prompts::openFileName(this, prompts::kDatabases, tr("Open database"),
                                               tr("Schedules (*.db *.sqlite);;All files (*)"),
                                               place::placeFolder(ScheduleHost::instance().path()));
    if (!file.isEmpty()) {
        openChosen(file);
    }
}

void EditorWindow::chooseAddress()
{
    const QString open = ScheduleHost::instance().path();
    place::AddressDialog dialog(StorePlace::isAddress(open) ? open : QString(), this);
    if (dialog.exec() == QDialog::Accepted) {
        openChosen(dialog.address());
    }
}

void EditorWindow::makeDatabase()
{
    const QString file = prompts::saveFileName(this, tr("New database"),
                                               tr("Schedules (*.db *.sqlite);;All files (*)"),
                                               QStringLiteral("db"), prompts::Existing::IsTold);
    if (file.isEmpty()) {
        return;
    }
    if (QFileInfo::exists(file)) {
        tell(tr("The file %1 exists already. It is not written over.")
                 .arg(QFileInfo(file).fileName()));
        return;
    }
    openChosen(file);
}

QMenu& EditorWindow::recentDatabases() const
{
    return *m_menus->recentDatabases();
}

void EditorWindow::openChosen(const QString& file)
{
    const QString former = ScheduleHost::instance().path();
    if (isForeignFile(file)) {
        // What is open is not even asked about.
        tell(problems::sentence(StoreResult{StoreProblem::NotADatabase, file, {}}));
        return;
    }
    if (!maySettle()) {
        return;
    }
    if (const QString error = openDatabase(file); !error.isEmpty()) {
        if (!former.isEmpty()) {
            openDatabase(former);
        }
        tell(error);
    }
    m_drafts->offer();
}

void EditorWindow::exportSchedule()
{
    const QString file = prompts::saveFileName(this, tr("Write the schedule to a file"),
                                               tr("Schedules (*.json)"), QStringLiteral("json"));
    if (file.isEmpty()) {
        return;
    }
    // Beside what is edited, which is still held against what it was edited from.
    ScheduleVersion version;
    std::map<int, PlayTask> saved;
    if (const StoreResult read = ScheduleHost::instance().readNewestSave(version, saved); !read) {
        if (read.cause.code != FaultCode::VersionUnknown) {
            // What was read before may be another save than the newest.
            tell(problems::sentence(read));
            return;
        }
        // Nobody has saved yet.
        saved = m_drafts->saved();
    }
    if (const Fault fault = writeSchedule(file, saved, FileHashes::Read)) {
        tell(problems::unwritable(file, fault));
        return;
    }
    statusBar()->showMessage(tr("Written to %1.").arg(file));
}

void EditorWindow::importSchedule()
{
    const QString name = prompts::openFileName(
        this, prompts::kSchedules, tr("Read a schedule from a file"), tr("Schedules (*.json)"));
    if (name.isEmpty()) {
        return;
    }
    // A pipe that has nothing ready would keep the windows waiting.
    hosts::PatientFile file(name, std::chrono::milliseconds(0));
    const QByteArray json = file.open(QIODevice::ReadOnly) ? readScheduleJson(file) : QByteArray();
    if (file.hasFailed()) {
        tell(problems::unreadable(name, file.fault()));
        return;
    }
    const NamedScheduleFromJson schedule = namedScheduleFromJson(json);
    if (schedule.fault) {
        tell(problems::unreadable(name, schedule));
        return;
    }
    ArrivingSchedule arriving;
    if (const StoreResult result = findPrograms(schedule, arriving); !result) {
        tell(problems::sentence(result));
        return;
    }
    if (!mayReplace(static_cast<int>(schedule.tasks.size()), arriving.doubts)) {
        return;
    }
    if (const StoreResult result = takeSchedule(arriving); !result) {
        tell(problems::sentence(result));
        return;
    }
    showReplacedSchedule();
}

bool EditorWindow::mayReplace(int tasks, const QString& doubts)
{
    // What is being typed is a change that is not saved, too.
    takeOverTyping();
    const ScheduleHost& host = ScheduleHost::instance();
    QString question =
        tr("Replace the whole schedule with the %n tasks in this file?", nullptr, tasks);
    if (!doubts.isEmpty()) {
        question += QStringLiteral("\n\n") + doubts;
    }
    if (!m_editor.isVisible() || !host.hasUnsavedChanges()) {
        return prompts::confirmLoss(question, tr("Replace"), tr("Cancel"));
    }
    std::set<int> edited;
    for (const ScheduleDifference& one : differencesOfNote(m_drafts->saved(), host.workingSet())) {
        edited.insert(one.taskId);
    }
    const QString store = host.path();
    constexpr int kCancel = 3;
    const int answer = prompts::confirm(
        question + QStringLiteral("\n\n") +
            tr("Changes in the editor that are not saved go with it (tasks %1). Undo brings them "
               "back.")
                .arg(undo::EditWords::ids(edited)),
        tr("Save, then replace"), tr("Replace without saving"), tr("Cancel"), kCancel);
    // While the question stood, anything may have happened.
    if ((answer != 1 && answer != 2) || host.path() != store) {
        return false;
    }
    if (answer == 1) {
        // Through the service, so that a failure takes the same way as any other.
        scheduleManage::getInstance().save();
    }
    return answer == 2 || !host.hasUnsavedChanges();
}

void EditorWindow::importMedia(const QStringList& paths)
{
    m_import->run(paths);
}

void EditorWindow::takeOverTyping()
{
    auto* const field = qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget());
    if (field != nullptr && m_editor.isAncestorOf(field)) {
        field->interpretText();
    }
}

bool EditorWindow::maySettle()
{
    // What is being typed is a change that is not saved, too.
    takeOverTyping();
    ScheduleHost& host = ScheduleHost::instance();
    if (!m_editor.isVisible() || !host.hasUnsavedChanges()) {
        return true;
    }
    const int answer =
        prompts::confirm(tr("The schedule has changes that are not saved. As a draft they are "
                            "offered when this database is opened again.\n\nClose this question "
                            "to keep editing."),
                         tr("Save"), tr("Keep as draft"), tr("Discard"));
    switch (answer) {
    case 1:
        // Through the service, so that a failure takes the same way as any other.
        scheduleManage::getInstance().save();
        return !m_drafts->isGoingOn();
    case 2:
        return m_drafts->keep();
    case 3:
        m_drafts->discard();
        return true;
    default:
        return false;
    }
}

void EditorWindow::closeEvent(QCloseEvent* event)
{
    if (!maySettle()) {
        event->ignore();
        return;
    }
    m_editor.close();
    // Where something keeps the editor open, a prompt in the middle of its own end for instance,
    // this window stays too: with the editor alone, the program would not end and could not be
    // left.
    event->setAccepted(!m_editor.isVisible());
    if (m_editor.isVisible()) {
        m_drafts->begin();
    }
}

void EditorWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void EditorWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    // The panels and the table take their places in several passes, each of which would paint the
    // whole window. It is painted once, when they are through.
    setUpdatesEnabled(false);
    QTimer::singleShot(0, this, &EditorWindow::enableUpdates);
}

void EditorWindow::enableUpdates()
{
    setUpdatesEnabled(true);
    // A panel that was taken out meanwhile is a window of its own, which the call above leaves out.
    const QList<QDockWidget*> panels = findChildren<QDockWidget*>();
    for (QDockWidget* panel : panels) {
        panel->setUpdatesEnabled(true);
    }
}

} // namespace trel::desktop
