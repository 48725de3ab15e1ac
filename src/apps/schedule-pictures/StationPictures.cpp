#include "StationPictures.h"

#include "EditorMenus.h"
#include "EditorWindow.h"
#include "HostPrompts.h"
#include "PictureFiles.h"
#include "PictureSchedule.h"
#include "SaveRescue.h"
#include "clock/Clock.h"
#include "draft/DraftKeeper.h"
#include "merge/ConflictsDialog.h"
#include "players/PlayersDock.h"
#include "scheduleControlUI.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/asrun/AsRunSchedule.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/desks/DeskWatch.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "trelprogramschedule/merge/ScheduleMerge.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"
#include "undo/EditWords.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <vector>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace trel::pictures {

namespace {

/// Before a dialog has been laid out and painted, in milliseconds.
constexpr int kFileDialog = 10;
constexpr Instant kMinute = 60000;

using Tasks = std::map<int, PlayTask>;

/// What a player would have written down of the last minutes, with what can go wrong.
std::vector<AsRunRecord> playedRecords(const AsRunSchedule& schedule, const QByteArray& hash,
                                       Instant from, Instant to)
{
    ScreenTimeline timeline(schedule.tasks, schedule.catalogue, QTimeZone(schedule.zone));
    std::vector<AsRunRecord> records;
    AsRunRecord taken;
    taken.kind = AsRunKind::ScheduleTaken;
    taken.schedule = hash;
    taken.begins = taken.ends = from;
    records.push_back(taken);
    for (Instant at = from; at < to;) {
        const ScreenState state = timeline.at(at, schedule.insertions);
        AsRunRecord record;
        record.schedule = hash;
        record.picture = state.picture;
        record.taskId = state.taskId;
        record.planId = state.planId;
        record.planRow = state.planRow;
        record.entry = state.entry;
        record.play = state.play;
        record.run = state.run;
        record.progIndex = state.progIndex;
        const auto program = schedule.catalogue.find(state.progIndex);
        if (state.picture != ScreenPicture::Black && program != schedule.catalogue.end()) {
            record.program = QString::fromStdString(program->second.progName);
        }
        record.plannedBegin = state.since;
        record.plannedEnd = state.until;
        record.begins = at;
        record.ends = std::min(state.until, to);
        at = record.ends;
        switch (records.size() % 7) {
        case 2:
            record.shown = AsRunShown::StandBy;
            record.why = QStringLiteral("/srv/media/City news.mp4: No such file or directory");
            break;
        case 4:
            record.late = 1240;
            record.begins += record.late;
            records.back().ends = record.begins;
            break;
        case 6:
            record.outcome = AsRunOutcome::CutByFault;
            record.why = QStringLiteral("Invalid data found when processing input");
            break;
        default:
            break;
        }
        records.push_back(record);
    }
    records.back().outcome = AsRunOutcome::CutByKill;
    return records;
}

PlayerStatus status(const char* screen, Instant heard)
{
    PlayerStatus status;
    status.screen = QString::fromUtf8(screen);
    status.player = QStringLiteral("schedule-player 17@lobby");
    status.started = heard - 90 * kMinute;
    status.heard = heard;
    status.shown.picture = ScreenPicture::Playing;
    status.program = QStringLiteral("City news");
    status.shown.progIndex = 2;
    status.switches = 1200;
    status.medianLateness = 4.2;
    status.worstLateness = 18.0;
    return status;
}

/// In every task something else.
Tasks edited(Tasks tasks, const char* end, const char* weeks)
{
    for (auto& [id, task] : tasks) {
        task.plans.front().endTime = end;
        task.plans.back().weeks = weeks;
    }
    return tasks;
}

/// Chooses a file in the dialog that comes next, before it is taken for what is to be drawn.
void chooseNext(const QString& file)
{
    auto* const look = new QTimer(qApp);
    QObject::connect(look, &QTimer::timeout, look, [look, file] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog != nullptr) {
            look->deleteLater();
            look->stop();
            dialog->selectFile(file);
            QMetaObject::invokeMethod(dialog, "accept");
        }
    });
    look->start(kFileDialog);
}

} // namespace

StationPictures::StationPictures(EditorWindow& window, scheduleControlUI& editor,
                                 PictureFiles& files)
    : m_window(window)
    , m_editor(editor)
    , m_files(files)
    , m_menus(*window.findChild<EditorMenus*>())
{}

void StationPictures::drawAll()
{
    drawStart();
    drawPlayers();
    drawAsRun();
    drawCatalogue();
    drawReplacement();
    drawHelp();
    const Tasks former = scheduleManage::getInstance().getgTaskMap();
    drawProblems();
    drawEdits();
    drawOtherDesk();
    drawConflicts();
    drawOtherSave();
    ScheduleHost::instance().replaceSchedule(former);
    settle();
    // The last ones: panels do not get back all that they give.
    drawSizes();
}

void StationPictures::drawDock(const char* dock, const QString& name)
{
    auto* const panel = m_window.findChild<QDockWidget*>(QLatin1String(dock));
    const bool wasVisible = panel->isVisible();
    panel->show();
    panel->raise();
    settle();
    m_files.save(panel, name);
    m_files.save(&m_window, QStringLiteral("window-") + name);
    panel->setVisible(wasVisible);
}

/// As on small screens.
void StationPictures::drawSizes()
{
    const QSize former = m_window.size();
    for (const QSize size : {QSize(1366, 720), QSize(1024, 700)}) {
        m_window.resize(size);
        settle();
        m_files.save(&m_window, QStringLiteral("window-%1").arg(size.width()));
    }
    m_window.resize(former);
    settle();
}

void StationPictures::drawStart()
{
    m_files.saveDialog(m_window, QStringLiteral("prompt-start"),
                       [this] { m_menus.startSchedule()->trigger(); });
}

void StationPictures::drawPlayers()
{
    const PlayerStatusFolder folder(ScheduleHost::instance().path());
    const Instant now = Clock::current().msecsSinceEpoch();
    PlayerStatus broken = status("Hall 2, above the stairs to the restaurant", now);
    broken.isStandIn = true;
    broken.keepsLastPicture = true;
    broken.faults = 12;
    broken.lastFault = QStringLiteral("City news.mp4: Invalid data found when processing input");
    broken.lastFaultAt = now - kMinute;
    const PlayerStatus silent = status("Window", now - 5 * kMinute);
    for (const PlayerStatus& one : {status("Lobby", now), broken, silent}) {
        folder.write(one);
    }
    auto* const dock = m_window.findChild<players::PlayersDock*>();
    const auto* const table = dock->findChild<QTableView*>(QStringLiteral("playerTable"));
    dock->look();
    waitUntil([table] { return table->model()->rowCount() > 0; });
    drawDock("playersDock", QStringLiteral("station-players"));
    for (const PlayerStatus& one : {status("Lobby", now), broken, silent}) {
        folder.remove(one.screen);
    }
    dock->look();
    waitUntil([table] { return table->model()->rowCount() == 0; });
}

void StationPictures::drawAsRun()
{
    const ScheduleHost& host = ScheduleHost::instance();
    const Clock& clock = Clock::current();
    const Instant now = clock.msecsSinceEpoch();
    AsRunSchedule schedule;
    schedule.start = EffectStart{now - 20 * kMinute, 1, QStringLiteral("schedule-editor@studio")};
    schedule.tasks = scheduleManage::getInstance().getgTaskMap();
    schedule.catalogue = *host.catalogue();
    schedule.zone = clock.zone().id();
    const QByteArray contents = asRunContents(schedule);
    {
        AsRunDatabase asRun;
        asRun.open(AsRunDatabase::pathFor(host.path()), StoreOpenMode::CreateIfMissing);
        asRun.append(QStringLiteral("Lobby"), "lobby", 1,
                     playedRecords(schedule, asRunScheduleHash(contents), now - 20 * kMinute, now),
                     {contents});
    }
    m_menus.asRun()->trigger();
    auto* const window = m_window.findChild<QDialog*>(QStringLiteral("asRunWindow"));
    auto* const table = window->findChild<QTableView*>(QStringLiteral("asRunTable"));
    waitUntil([table] { return table->model()->rowCount() > 0; });
    table->scrollToBottom();
    settle();
    m_files.save(window, QStringLiteral("asRunWindow-day"));
    auto* const deviations = window->findChild<QCheckBox*>(QStringLiteral("asRunOnlyDeviations"));
    deviations->setChecked(true);
    settle();
    m_files.save(window, QStringLiteral("asRunWindow-deviations"));
    deviations->setChecked(false);
    window->close();
    settle();
}

/// Long names, files that are missing, programs of every kind and programs that nothing plays.
void StationPictures::drawCatalogue()
{
    ScheduleHost& host = ScheduleHost::instance();
    const auto former = host.catalogue();
    const QDir folder = QFileInfo(host.path()).absoluteDir();
    folder.mkpath(QStringLiteral("server/advertising"));
    const QString place = folder.filePath(QStringLiteral("server/advertising/"));
    std::vector<MediaSource> sources{
        {QStringLiteral("Winter sale with a long name that no column can hold whole"),
         place + QStringLiteral("winter.mp4"), 31000.0, ProgramKind::Video},
        {QStringLiteral("Studio 4"), QStringLiteral("rtsp://studio.example/4"), 0.0,
         ProgramKind::Live},
        {QStringLiteral("Café “Zur Brücke”"), place + QStringLiteral("cafe.png"), 0.0,
         ProgramKind::Image}};
    host.addPrograms(sources);
    auto* const table = m_window.findChild<QTableView*>(QStringLiteral("programTable"));
    waitUntil([&host, &sources] {
        for (const auto& [index, program] : *host.catalogue()) {
            if (program.progName == sources.front().name.toStdString()) {
                return program.isNull;
            }
        }
        return false;
    });
    drawDock("catalogueDock", QStringLiteral("station-catalogue"));
    const auto box = [this](const char* name) {
        return m_window.findChild<QCheckBox*>(QLatin1String(name));
    };
    box("programMissing")->setChecked(true);
    settle();
    drawDock("catalogueDock", QStringLiteral("station-missing"));
    table->setCurrentIndex(table->model()->index(0, 0));
    m_menus.previewProgram()->trigger();
    settle();
    auto* const preview = m_window.findChild<QDialog*>(QStringLiteral("programPreview"));
    m_files.save(preview, QStringLiteral("programPreview-missing"));
    preview->close();
    m_menus.whereUsed()->trigger();
    settle();
    auto* const uses = m_window.findChild<QDialog*>(QStringLiteral("usesWindow"));
    m_files.save(uses, QStringLiteral("usesWindow-unused"));
    uses->close();
    box("programMissing")->setChecked(false);
    box("programUnused")->setChecked(true);
    settle();
    drawDock("catalogueDock", QStringLiteral("station-unused"));
    box("programUnused")->setChecked(false);
    auto* const search = m_window.findChild<QLineEdit*>(QStringLiteral("programSearch"));
    search->setText(QStringLiteral("news"));
    settle();
    drawDock("catalogueDock", QStringLiteral("station-search"));
    search->setText(QStringLiteral("nothing has this name"));
    settle();
    drawDock("catalogueDock", QStringLiteral("station-search-nothing"));
    search->clear();
    std::vector<int> added;
    for (const auto& [index, program] : *host.catalogue()) {
        if (former->count(index) == 0) {
            added.push_back(index);
        }
    }
    host.removePrograms(added);
    settle();
}

/// A file in the place of the schedule, and one in the place of another file.
void StationPictures::drawReplacement()
{
    scheduleManage& manager = scheduleManage::getInstance();
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("station.json"));
    const bool isWritten = !writeScheduleFile(file, manager.getAllTask());
    Q_ASSERT(isWritten);
    const auto replace = [this, &file] {
        chooseNext(file);
        m_menus.importSchedule()->trigger();
    };
    m_files.saveDialog(m_window, QStringLiteral("prompt-replace"), replace);
    const Tasks former = manager.getAllTask();
    for (const auto& [id, task] : edited(former, "22:30:00", "1,3,5")) {
        manager.addTask(task);
    }
    m_files.saveDialog(m_window, QStringLiteral("prompt-replace-unsaved"), replace);
    manager.updateUItask();
    m_files.saveDialog(m_window, QStringLiteral("prompt-overwrite"), [this, &file] {
        chooseNext(file);
        // Who declines is in the file dialog again.
        bool isAsked = false;
        QTimer leave;
        QObject::connect(&leave, &QTimer::timeout, &m_window, [&isAsked] {
            QWidget* const open = QApplication::activeModalWidget();
            auto* const dialog = qobject_cast<QFileDialog*>(open);
            isAsked = isAsked || (open != nullptr && dialog == nullptr);
            if (isAsked && dialog != nullptr) {
                dialog->reject();
            }
        });
        leave.start(kFileDialog);
        m_menus.exportSchedule()->trigger();
    });
    m_files.saveDialog(m_window, QStringLiteral("file-new"),
                       [this] { m_menus.newDatabase()->trigger(); });
}

void StationPictures::drawProblems()
{
    ScheduleHost& host = ScheduleHost::instance();
    Tasks troubled = scheduleManage::getInstance().getgTaskMap();
    PlayTask& first = troubled.begin()->second;
    PlayPlan colliding = first.plans.back();
    colliding.id = 90;
    first.plans.push_back(colliding);
    PlayPlan late = first.plans.front();
    late.id = 91;
    late.mode = TimeMode;
    late.startTime = "23:00:00";
    late.endTime = "22:00:00";
    first.plans.push_back(late);
    host.replaceSchedule(troubled);
    m_editor.clearAndInitialize();
    addTroubledPlan();
    overlapTasks();
    m_editor.slotShowTask(troubled.begin()->first);
    const auto* const table = m_window.findChild<QTableView*>(QStringLiteral("problemTable"));
    waitUntil([table] { return table->model()->rowCount() > 3; });
    drawDock("problemDock", QStringLiteral("station-problems"));
    const auto cards = m_editor.findChildren<QWidget*>(QStringLiteral("PlanTaskWidget"));
    for (const QWidget* card : cards) {
        card->findChild<QAbstractButton*>(QStringLiteral("title"))->setChecked(false);
    }
    settle();
    m_files.save(&m_editor, QStringLiteral("editor-problems"));
    m_files.saveDialog(m_window, QStringLiteral("prompt-start-problems"),
                       [this] { m_menus.startSchedule()->trigger(); });
}

void StationPictures::drawEdits()
{
    scheduleManage& manager = scheduleManage::getInstance();
    const auto put = [this, &manager](const PlayTask& task) {
        manager.addTask(task);
        m_editor.slotShowTask(task.id);
        settle();
    };
    PlayTask task = manager.getAllTask().begin()->second;
    task.plans.front().startTime = "06:15:00";
    put(task);
    task.plans.front().weeks = "1,3,5";
    put(task);
    task.plans.erase(task.plans.begin() + 1);
    put(task);
    task.endDate = "2026.12.24";
    put(task);
    m_menus.undo()->trigger();
    settle();
    drawDock("historyDock", QStringLiteral("station-history"));
    m_files.saveDialog(m_window, QStringLiteral("prompt-take-back-other"), [] {
        prompts::confirmLoss(undo::EditWords::takingBackOfOther({1, 2, 5}),
                             undo::EditWords::takeBack(), undo::EditWords::leave());
    });
}

void StationPictures::drawOtherDesk()
{
    const auto* const notice = m_window.findChild<QLabel*>(QStringLiteral("deskNotice"));
    {
        DeskWatch other(QStringLiteral("anna@studio"));
        other.begin(ScheduleHost::instance().path());
        other.tellEdited({1, 3});
        waitUntil([notice] { return notice->isVisible(); });
        m_files.save(&m_window, QStringLiteral("window-desks"));
    }
    waitUntil([notice] { return !notice->isVisible(); });
}

void StationPictures::drawConflicts()
{
    const Tasks base = scheduleManage::getInstance().getgTaskMap();
    const ScheduleMerge merge(base, edited(base, "21:00:00", "1,2,3"),
                              edited(base, "22:30:00", "5,6,7"));
    m_files.saveDialog(
        m_window, QStringLiteral("conflicts"),
        [this, &merge] {
            merge::ConflictsDialog dialog(merge, *ScheduleHost::instance().catalogue(), {},
                                          &m_window);
            dialog.ask();
        },
        [](QWidget* dialog) {
            dialog->findChild<QTableWidget*>(QStringLiteral("conflictTable"))->selectRow(0);
        });
}

/// Another desk saves while this one edits.
void StationPictures::drawOtherSave()
{
    scheduleManage& manager = scheduleManage::getInstance();
    ScheduleHost& host = ScheduleHost::instance();
    m_editor.clearAndInitialize();
    const Tasks saved = manager.getgTaskMap();
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("theirs.json"));
    const bool isWritten = !writeScheduleFile(file, edited(saved, "21:00:00", "1,2,3"));
    Q_ASSERT(isWritten);
    QProcess::execute(
        QCoreApplication::applicationDirPath() + QStringLiteral("/schedulectl"),
        {QStringLiteral("import-schedule"), file, QStringLiteral("--database"), host.path()});
    manager.addTask(edited(saved, "22:30:00", "5,6,7").begin()->second);
    const SaveRescue rescue(host, m_window.drafts(), &m_window);
    m_files.saveDialog(m_window, QStringLiteral("prompt-moved-on"), [&manager] { manager.save(); });
    host.reload();
    manager.updateUItask();
    settle();
}

void StationPictures::drawHelp()
{
    const QList<QAction*> help = m_window.menuBar()->actions().last()->menu()->actions();
    m_files.saveDialog(m_window, QStringLiteral("prompt-about"),
                       [&help] { help.last()->trigger(); });
}

} // namespace trel::pictures
