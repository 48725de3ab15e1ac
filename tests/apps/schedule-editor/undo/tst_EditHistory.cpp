#include "../EditorRun.h"
#include "../LayoutCount.h"
#include "EditorMenus.h"
#include "help/KeyTable.h"
#include "support/PlatformNotes.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "trelwidgets/TipDialog.h"
#include "undo/HistoryModel.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QListView>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <optional>
#include <random>
#include <utility>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// The demonstration in the editor, with the first card open.
class Desk : public EditorRun
{
public:
    Desk()
        : EditorRun(QStringLiteral("history"), QStringLiteral("en_US"))
    {
        card(0).toggleFold();
        editor->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), editor.get());
        QCoreApplication::processEvents();
    }

    QAction& undo() const { return *menus().undo(); }
    QAction& redo() const { return *menus().redo(); }
    QListView& list() const { return *window.findChild<QListView*>(QStringLiteral("historyList")); }
    /// The steps as the list shows them.
    QStringList steps() const
    {
        QStringList lines;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            const QModelIndex index = list().model()->index(row, 0);
            const bool isDone = index.data(undo::HistoryModel::DoneRole).toBool();
            lines.append(index.data().toString() + QLatin1String(isDone ? "" : " (undone)"));
        }
        return lines;
    }
    QString lastStep() const { return steps().last(); }

    /// Presses keys in the editor's window, as the operator does.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) const
    {
        QTest::keyClick(editor->windowHandle(), key, modifiers);
        QCoreApplication::processEvents();
    }
    void pressUndo() const { press(Qt::Key_Z); }
    void pressRedo() const { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    std::map<int, PlayTask> working() const { return manager.getAllTask(); }

    /// Another program takes the first task out of what is saved.
    void saveElsewhere() const
    {
        const QString file = folder.filePath(QStringLiteral("theirs.json"));
        std::map<int, PlayTask> theirs = manager.getgTaskMap();
        theirs.erase(theirs.begin());
        QVERIFY(!writeScheduleFile(file, theirs));
        QProcess other;
        other.start(QStringLiteral(SCHEDULECTL), {QStringLiteral("import-schedule"), file,
                                                  QStringLiteral("--database"), database});
        QVERIFY(other.waitForFinished());
        QCOMPARE(other.exitCode(), 0);
    }

private:
    const EditorMenus& menus() const { return *window.findChild<EditorMenus*>(); }
    NoPlatformNotes m_quiet;
};

/// A schedule, with what nobody sees, but without what is worked out wherever it is shown.
QByteArray recordsOf(std::map<int, PlayTask> tasks)
{
    for (auto& [id, task] : tasks) {
        for (PlayPlan& plan : task.plans) {
            plan.isConflict = false;
        }
    }
    return scheduleToJson(tasks);
}

/// Runs once as soon as a prompt or a chooser stands.
class OnPrompt : public QObject
{
public:
    explicit OnPrompt(std::function<void(QWidget& prompt)> run)
    {
        m_timer.setInterval(0);
        connect(&m_timer, &QTimer::timeout, this, [this, run = std::move(run)] {
            if (QWidget* const prompt = QApplication::activeModalWidget()) {
                m_timer.stop();
                hasRun = true;
                run(*prompt);
            }
        });
        m_timer.start();
    }

    bool hasRun = false;

private:
    QTimer m_timer;
};

/// Presses the first button of every prompt that comes.
class Confirming : public QObject
{
public:
    Confirming()
    {
        m_timer.setInterval(0);
        connect(&m_timer, &QTimer::timeout, this, [] {
            if (auto* const prompt =
                    qobject_cast<trel::widgets::TipDialog*>(QApplication::activeModalWidget())) {
                QTest::mouseClick(prompt->findChild<QPushButton*>(QStringLiteral("tipButton1")),
                                  Qt::LeftButton);
            }
        });
        m_timer.start();
    }

private:
    QTimer m_timer;
};

} // namespace

/// Steps of the operator are taken back and done again, through the windows.
class tst_EditHistory : public QObject
{
    Q_OBJECT

private slots:
    void beginsEmpty();
    void takesAFieldBackFromWithinIt();
    void joinsWhatIsTypedIntoOneField();
    void forgetsWhatIsTypedBack();
    void keepsSavesApart();
    void keepsEverySavedStateApart();
    void marksThatTheEditorWasOpened();
    void goesBackBehindASave();
    void namesTheStepInTheMenu();
    void theSheetOfKeysNamesNoStep();
    void bringsADeletedTaskBack();
    void takesManyTasksBackAtOnce();
    void bringsADeletedPlanBackWhole();
    void bringsBackWhatCancelDropped();
    void aNewStepEndsWhatWasTakenBack();
    void walksByTheList();
    void waitsForThePromptAndTheEditor();
    void takesBackWhatIsHalfTyped();
    void takesBackWhatWasNotToldYet();
    void leavesTheChooserItsKeys();
    void anotherStoreHasAHistoryOfItsOwn();
    void anotherLengthIsNoStep();
    void speaksTheLanguageInUse();
    void whatAnotherProgramSavedIsAStep();
    void asksBeforeItTakesBackWhatAnotherSaved();
    void aProgramThatHasGoneIsNoSave();
    void aRandomWalk_data();
    void aRandomWalk();
};

void tst_EditHistory::beginsEmpty()
{
    const Desk desk;
    QVERIFY(!desk.undo().isEnabled());
    QVERIFY(!desk.redo().isEnabled());
    QCOMPARE(desk.undo().text(), QStringLiteral("&Undo"));
    QCOMPARE(desk.steps(), QStringList({QStringLiteral("Start (saved; editor opened)")}));
    QVERIFY(!desk.host.hasUnsavedChanges());
}

void tst_EditHistory::takesAFieldBackFromWithinIt()
{
    const Desk desk;
    const QStringList before = desk.lines();
    desk.card(0).type(desk.card(0).startTime(3), "14:10:00");
    const QStringList after = desk.lines();
    QVERIFY(before != after);
    QVERIFY(desk.card(0).startTime(3).hasFocus());
    desk.pressUndo();
    QCOMPARE(desk.lines(), before);
    QVERIFY(desk.card(0).startTime(3).hasFocus());
    QVERIFY(!desk.card(0).isFolded());
    QVERIFY(!desk.host.hasUnsavedChanges());
    desk.pressRedo();
    QCOMPARE(desk.lines(), after);
    QVERIFY(desk.card(0).startTime(3).hasFocus());
    // With nothing left, the keys do nothing.
    desk.pressRedo();
    QCOMPARE(desk.lines(), after);
}

void tst_EditHistory::joinsWhatIsTypedIntoOneField()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).startTime(3), "14:10:00");
    desk.card(0).type(desk.card(0).startTime(3), "15:20:30");
    desk.card(0).choose(desk.card(0).endAction(3), 1);
    QCOMPARE(desk.steps(),
             QStringList({QStringLiteral("Start (saved; editor opened)"),
                          QStringLiteral("Task 1, plan 4: start 13:30:00 → 15:20:30"),
                          QStringLiteral("Task 1, plan 4: the last frame at the end")}));
    desk.pressUndo();
    desk.pressUndo();
    QVERIFY(!desk.undo().isEnabled());
    QCOMPARE(desk.card(0).startTime(3).time(), QTime(13, 30));
}

void tst_EditHistory::forgetsWhatIsTypedBack()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.card(0).type(desk.card(0).endTime(3), "18:00:00");
    QTRY_COMPARE(desk.steps().size(), 1);
    QVERIFY(!desk.undo().isEnabled());
}

void tst_EditHistory::keepsSavesApart()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    QVERIFY(desk.host.trySave());
    desk.card(0).type(desk.card(0).endTime(3), "16:00:00");
    QTRY_COMPARE(desk.steps(),
                 QStringList({QStringLiteral("Start (saved; editor opened)"),
                              QStringLiteral("Task 1, plan 4: end 18:00:00 → 17:00:00 (saved)"),
                              QStringLiteral("Task 1, plan 4: end 17:00:00 → 16:00:00")}));
}

// Also one that was saved before another one was.
void tst_EditHistory::keepsEverySavedStateApart()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    QVERIFY(desk.host.trySave());
    desk.pressUndo();
    QVERIFY(desk.host.trySave());
    desk.pressRedo();
    desk.card(0).type(desk.card(0).endTime(3), "16:00:00");
    QTRY_COMPARE(desk.steps(),
                 QStringList({QStringLiteral("Start (saved; editor opened)"),
                              QStringLiteral("Task 1, plan 4: end 18:00:00 → 17:00:00 (saved)"),
                              QStringLiteral("Task 1, plan 4: end 17:00:00 → 16:00:00")}));
}

void tst_EditHistory::marksThatTheEditorWasOpened()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.EditorRun::press("pushButtonSave");
    QVERIFY(!desk.editor->isVisible());
    const QString former = QStringLiteral("Task 1, plan 4: end 18:00:00 → 17:00:00 (saved");
    QCOMPARE(desk.lastStep(), former + QLatin1Char(')'));
    desk.editor->show();
    desk.editor->clearAndInitialize();
    QCOMPARE(desk.lastStep(), former + QStringLiteral("; editor opened)"));
    // What was dropped meanwhile is a step of its own, and the editor begins behind it.
    desk.card(0).toggleFold();
    desk.card(0).choose(desk.card(0).endAction(3), 1);
    desk.EditorRun::press("pushButtonClose");
    desk.editor->show();
    desk.editor->clearAndInitialize();
    QCOMPARE(desk.steps().mid(2),
             QStringList({QStringLiteral("Task 1, plan 4: the last frame at the end"),
                          QStringLiteral("Back to what is saved (saved; editor opened)")}));
    // A list that is read again while it is open is no start of the editor.
    desk.card(0).toggleFold();
    desk.card(0).choose(desk.card(0).endAction(3), 1);
    desk.editor->clearAndInitialize();
    QCOMPARE(desk.lastStep(), QStringLiteral("Back to what is saved (saved)"));
}

void tst_EditHistory::goesBackBehindASave()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.EditorRun::press("pushButtonStart");
    QVERIFY(!desk.host.hasUnsavedChanges());
    QVERIFY(desk.editor->isVisible());
    desk.pressUndo();
    QCOMPARE(desk.card(0).endTime(3).time(), QTime(18, 0));
    QVERIFY(desk.host.hasUnsavedChanges());
    QVERIFY(desk.host.trySave());
    QCOMPARE(desk.manager.getgTaskMap().at(1).plans.at(3).endTime, std::string("18:00:00"));
}

void tst_EditHistory::namesTheStepInTheMenu()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    QTRY_COMPARE(desk.undo().text(),
                 QStringLiteral("&Undo: Task 1, plan 4: end 18:00:00 → 17:00:00"));
    desk.undo().trigger();
    QCOMPARE(desk.undo().text(), QStringLiteral("&Undo"));
    QCOMPARE(desk.redo().text(), QStringLiteral("Re&do: Task 1, plan 4: end 18:00:00 → 17:00:00"));
    desk.redo().trigger();
    QCOMPARE(desk.card(0).endTime(3).time(), QTime(17, 0));
}

void tst_EditHistory::theSheetOfKeysNamesNoStep()
{
    const Desk desk;
    const auto names = [&desk] {
        QStringList names;
        const auto sections = KeyTable::sections(*desk.window.menuBar(), *desk.editor);
        for (const KeyLine& line : sections.front().lines) {
            if (line.keys == QLatin1String("Ctrl+Z") ||
                line.keys == QLatin1String("Ctrl+Shift+Z")) {
                names.append(line.text);
            }
        }
        return names;
    };
    const QStringList plain{QStringLiteral("Undo"), QStringLiteral("Redo")};
    QCOMPARE(names(), plain);
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    QTRY_VERIFY(desk.undo().text() != QStringLiteral("&Undo"));
    QCOMPARE(names(), plain);
    desk.undo().trigger();
    QVERIFY(desk.redo().text() != QStringLiteral("Re&do"));
    QCOMPARE(names(), plain);
}

void tst_EditHistory::bringsADeletedTaskBack()
{
    const Desk desk;
    const QStringList before = desk.lines();
    const QByteArray records = recordsOf(desk.working());
    {
        PromptAnswer answer(1);
        desk.card(0).removeTask();
    }
    QTRY_COMPARE(desk.lastStep(), QStringLiteral("Task 1 deleted"));
    QVERIFY(desk.lines() != before);
    desk.undo().trigger();
    QCOMPARE(recordsOf(desk.working()), records);
    QCOMPARE(desk.lines(), before);
    desk.redo().trigger();
    QCOMPARE(desk.working().count(1), std::size_t(0));
}

void tst_EditHistory::takesManyTasksBackAtOnce()
{
    constexpr int kTasks = 20;
    const Desk desk;
    const QStringList before = desk.lines();
    PlayTask task = desk.manager.getTask(3);
    for (int i = 0; i < kTasks; ++i) {
        task.id = 20 + i;
        desk.manager.addTask(task);
        desk.editor->slotShowTask(task.id);
    }
    QTRY_COMPARE(desk.steps().size(), 2);
    const QStringList after = desk.lines();
    const QSize size = desk.editor->size();
    click(desk.card(0).startTime(3));
    QVERIFY(desk.card(0).startTime(3).hasFocus());
    for (int round = 0; round < 2; ++round) {
        const LayoutCount layouts(*desk.editor);
        desk.pressUndo();
        QCOMPARE(desk.lines(), before);
        desk.pressRedo();
        QCOMPARE(desk.lines(), after);
        QVERIFY2(layouts.count() < kTasks / 2, qPrintable(QString::number(layouts.count())));
    }
    QVERIFY(desk.card(0).startTime(3).hasFocus());
    QVERIFY(!desk.card(0).isFolded());
    QCOMPARE(desk.editor->size(), size);
}

void tst_EditHistory::bringsADeletedPlanBackWhole()
{
    const Desk desk;
    PlayTask task = desk.manager.getTask(1);
    task.plans.at(2).serviceCount = 77;
    task.plans.at(2).serviceList = {1, 1LL << 40};
    task.plans.at(2).serviceTime = "10:11:12";
    task.plans.at(2).serviceFlagB = true;
    desk.manager.addTask(task);
    desk.editor->slotShowTask(1);
    QTRY_COMPARE(desk.lastStep(), QStringLiteral("Task 1, plan 3 edited"));
    {
        PromptAnswer answer(1);
        desk.card(0).remove(2);
    }
    QTRY_COMPARE(desk.lastStep(), QStringLiteral("Task 1, plan 3 deleted"));
    desk.undo().trigger();
    const PlayPlan plan = desk.manager.getTask(1).plans.at(2);
    QCOMPARE(plan.serviceCount, 77);
    QVERIFY(plan.serviceList == task.plans.at(2).serviceList);
    QCOMPARE(plan.serviceTime, std::string("10:11:12"));
    QVERIFY(plan.serviceFlagB);
}

void tst_EditHistory::bringsBackWhatCancelDropped()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.card(0).choose(desk.card(0).endAction(3), 1);
    const QByteArray edited = recordsOf(desk.working());
    desk.EditorRun::press("pushButtonClose");
    QVERIFY(!desk.editor->isVisible());
    QVERIFY(!desk.undo().isEnabled());
    desk.editor->show();
    desk.editor->clearAndInitialize();
    QVERIFY(!desk.host.hasUnsavedChanges());
    QCOMPARE(desk.lastStep(), QStringLiteral("Back to what is saved (saved; editor opened)"));
    desk.undo().trigger();
    QCOMPARE(recordsOf(desk.working()), edited);
    desk.undo().trigger();
    desk.undo().trigger();
    QVERIFY(!desk.host.hasUnsavedChanges());
}

void tst_EditHistory::aNewStepEndsWhatWasTakenBack()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.card(0).choose(desk.card(0).endAction(3), 1);
    desk.pressUndo();
    desk.pressUndo();
    QCOMPARE(desk.steps().filter(QStringLiteral("(undone)")).size(), 2);
    desk.card(0).copy(0);
    QTRY_COMPARE(desk.steps(), QStringList({QStringLiteral("Start (saved; editor opened)"),
                                            QStringLiteral("Task 1, plan 6 added")}));
    QVERIFY(!desk.redo().isEnabled());
}

void tst_EditHistory::walksByTheList()
{
    Desk desk;
    desk.window.show();
    desk.list().window()->findChild<QDockWidget*>(QStringLiteral("historyDock"))->show();
    desk.editor->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), desk.editor.get());
    const QStringList before = desk.lines();
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.card(0).choose(desk.card(0).endAction(3), 1);
    desk.card(0).copy(0);
    const QStringList after = desk.lines();
    QTRY_COMPARE(desk.steps().size(), 4);
    QListView& list = desk.list();
    QCoreApplication::processEvents();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(0, 0)).center());
    QCOMPARE(desk.lines(), before);
    QCOMPARE(list.currentIndex().row(), 0);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_End);
    QCOMPARE(desk.lines(), after);
    QTest::keyClick(&list, Qt::Key_Up);
    desk.picture(desk.window, QStringLiteral("window"));
    QCOMPARE(desk.steps().filter(QStringLiteral("(undone)")).size(), 1);
}

void tst_EditHistory::waitsForThePromptAndTheEditor()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    std::string end;
    const OnPrompt onPrompt([&](QWidget& prompt) {
        desk.undo().trigger();
        end = desk.manager.getTask(1).plans.at(3).endTime;
        QTest::mouseClick(prompt.findChild<QPushButton*>(QStringLiteral("tipButton2")),
                          Qt::LeftButton);
    });
    desk.card(0).remove(2);
    QVERIFY(onPrompt.hasRun);
    QCOMPARE(end, std::string("17:00:00"));
    desk.editor->hide();
    QVERIFY(!desk.undo().isEnabled());
    QVERIFY(!desk.list().isEnabled());
    desk.editor->show();
    QVERIFY(desk.undo().isEnabled());
}

void tst_EditHistory::takesBackWhatIsHalfTyped()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).times(0), "7");
    click(desk.card(0).times(0));
    desk.card(0).times(0).selectAll();
    QTest::keyClicks(&desk.card(0).times(0), QStringLiteral("25"));
    desk.pressUndo();
    QCOMPARE(desk.card(0).times(0).value(), 3);
    QVERIFY(!desk.undo().isEnabled());

    // One digit of the hours waits for the second, and nobody has heard of it yet.
    desk.card(0).choose(desk.card(0).endAction(3), 1);
    QTimeEdit& start = desk.card(0).startTime(0);
    click(start);
    start.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&start, QStringLiteral("1"));
    desk.pressUndo();
    QCOMPARE(desk.card(0).startTime(0).time(), QTime(7, 30));
    QCOMPARE(desk.card(0).endAction(3).currentIndex(), 1);
}

void tst_EditHistory::takesBackWhatWasNotToldYet()
{
    const Desk desk;
    desk.card(0).choose(desk.card(0).endAction(3), 1);
    desk.card(0).endTime(3).setTime(QTime(17, 0));
    desk.undo().trigger();
    QCOMPARE(desk.card(0).endTime(3).time(), QTime(18, 0));
    QCOMPARE(desk.card(0).endAction(3).currentIndex(), 1);
}

void tst_EditHistory::leavesTheChooserItsKeys()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    std::string end;
    const OnPrompt onPrompt([&](QWidget& chooser) {
        QTest::keyClick(chooser.windowHandle(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(desk.editor->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
        end = desk.manager.getTask(1).plans.at(3).endTime;
        chooser.close();
    });
    desk.card(0).openChooser(0);
    QVERIFY(onPrompt.hasRun);
    QCOMPARE(end, std::string("17:00:00"));
    QVERIFY(desk.undo().isEnabled());
}

void tst_EditHistory::anotherStoreHasAHistoryOfItsOwn()
{
    Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    QTRY_COMPARE(desk.steps().size(), 2);
    QCOMPARE(desk.window.openDatabase(desk.folder.filePath(QStringLiteral("other.db"))), QString());
    QTRY_VERIFY(!desk.host.hasUnsavedChanges());
    QCoreApplication::processEvents();
    QCOMPARE(desk.steps(), QStringList({QStringLiteral("Start (saved)")}));
    QVERIFY(!desk.undo().isEnabled());
    QCOMPARE(desk.cards().size(), 0);
}

void tst_EditHistory::anotherLengthIsNoStep()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).startTime(0), "07:45:00");
    QTRY_COMPARE(desk.steps().size(), 2);
    // One of the programs that the first plan runs three times gets longer.
    const int index = desk.manager.getTask(1).plans.at(0).programs.at(0).progIndex;
    const ProgramIten program = desk.manager.getProgramItemByIndex(index);
    MediaSource longer;
    longer.name = QString::fromStdString(program.progName);
    longer.path = QString::fromStdString(program.mediaPath);
    longer.durationMs = program.durationMs + 10000.0;
    longer.kind = program.kind;
    QVERIFY(desk.host.addPrograms({longer}).store);
    QCoreApplication::processEvents();
    QCOMPARE(desk.steps().size(), 2);
    desk.undo().trigger();
    // Back at its time, and as long as it is now.
    QCOMPARE(desk.card(0).startTime(0).time(), QTime(7, 30));
    QCOMPARE(desk.card(0).endTime(0).time(), QTime(7, 31, 21).addSecs(30));
}

void tst_EditHistory::speaksTheLanguageInUse()
{
    Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    QTRY_COMPARE(desk.steps().size(), 2);
    desk.languages.select(QStringLiteral("de_DE"));
    QCOMPARE(desk.lastStep(), QStringLiteral("Auftrag 1, Plan 4: Ende 18:00:00 → 17:00:00"));
    QTRY_VERIFY(desk.undo().text().endsWith(desk.lastStep()));

    QComboBox& days = desk.card(0).weeks(3);
    const QStringList chosen{days.itemText(Monday), days.itemText(Friday)};
    QVERIFY(QMetaObject::invokeMethod(&days, "signalSelectedText", Q_ARG(QStringList, chosen)));
    QTRY_VERIFY2(desk.lastStep().endsWith(QStringLiteral("→ Mo., Fr.")),
                 qPrintable(desk.lastStep()));
    desk.languages.select(QStringLiteral("fr_FR"));
    QTRY_VERIFY2(desk.lastStep().endsWith(QStringLiteral("→ lun., ven.")),
                 qPrintable(desk.lastStep()));
}

// Another program takes the first task out, and the list is read again.
void tst_EditHistory::whatAnotherProgramSavedIsAStep()
{
    const Desk desk;
    desk.card(1).toggleFold();
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.saveElsewhere();
    desk.editor->clearAndInitialize();
    QCOMPARE(desk.lastStep(), QStringLiteral("Saved by another program: tasks 1 (saved)"));
    QCOMPARE(desk.working().count(1), std::size_t(0));
    // What is dropped of one's own is the step that it has been.
    const int second = desk.working().begin()->first;
    PlayTask edited = desk.working().at(second);
    edited.endDate = "2031.01.01";
    desk.manager.addTask(edited);
    desk.editor->clearAndInitialize();
    QCOMPARE(desk.lastStep(), QStringLiteral("Back to what is saved (saved)"));
}

void tst_EditHistory::asksBeforeItTakesBackWhatAnotherSaved()
{
    const Desk desk;
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.EditorRun::press("pushButtonStart");
    const QByteArray own = recordsOf(desk.working());
    desk.saveElsewhere();
    desk.editor->clearAndInitialize();
    const QByteArray theirs = recordsOf(desk.working());
    const int steps = desk.steps().size();
    {
        // Enter leaves it, as closing the question does.
        PromptAnswer answer({PromptAnswer::Enter, PromptAnswer::Escape, 2});
        for (int count = 0; count < 3; ++count) {
            desk.undo().trigger();
            QCOMPARE(recordsOf(desk.working()), theirs);
        }
        QCOMPARE(answer.buttons().first(), QStringLiteral("Take it back|Leave it"));
        QVERIFY2(answer.texts().first().contains(QLatin1String("(tasks 1)")),
                 qPrintable(answer.texts().first()));
        QCOMPARE(desk.steps().filter(QStringLiteral("(undone)")), QStringList());
    }
    {
        const PromptAnswer answer(1);
        desk.undo().trigger();
        QCOMPARE(recordsOf(desk.working()), own);
    }
    // It stays saved until somebody saves; behind it, and forth again, nothing is asked.
    QVERIFY(desk.host.hasUnsavedChanges());
    const PromptAnswer none;
    desk.undo().trigger();
    QCOMPARE(desk.working().at(1).plans.at(3).endTime, std::string("18:00:00"));
    desk.redo().trigger();
    desk.redo().trigger();
    QCOMPARE(recordsOf(desk.working()), theirs);
    QVERIFY(!desk.host.hasUnsavedChanges());
    QCOMPARE(desk.steps().size(), steps);
}

void tst_EditHistory::aProgramThatHasGoneIsNoSave()
{
    const Desk desk;
    const int program = desk.working().at(1).plans.front().programs.front().progIndex;
    QVERIFY(desk.host.removeProgram(program));
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.editor->clearAndInitialize();
    QVERIFY2(desk.steps().filter(QStringLiteral("another program")).isEmpty(),
             qPrintable(desk.steps().join(QLatin1Char('\n'))));
    const PromptAnswer none;
    desk.pressUndo();
}

void tst_EditHistory::aRandomWalk_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1U, 2U}) {
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }
}

void tst_EditHistory::aRandomWalk()
{
    QFETCH(const unsigned, seed);
    // More by hand: 5000 take some minutes.
    const int asked = qEnvironmentVariableIntValue("TREL_WALK_STEPS");
    const int length = asked > 0 ? asked : 80;
    Desk desk;
    const Confirming confirming;
    std::mt19937 random(seed);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    const auto time = [&below] { return QTime(below(24), below(60), below(60)); };
    const auto state = [&desk] {
        QCoreApplication::processEvents();
        return std::make_pair(recordsOf(desk.working()), desk.lines());
    };
    // Where one action was two steps, the state between them is not known.
    std::vector<std::optional<std::pair<QByteArray, QStringList>>> states = {state()};
    for (int action = 0; action < length; ++action) {
        const int tasks = desk.cards().size();
        const int choice = below(14);
        if (tasks == 0 || (choice == 0 && tasks < 12)) {
            desk.addTask();
        } else if (choice == 1 && tasks < 12) {
            desk.copyTask(below(tasks));
        } else {
            const CardOnScreen card = desk.card(below(tasks));
            const int rows = card.rowCount();
            const int row = rows == 0 ? -1 : below(rows);
            if (choice == 2) {
                card.removeTask();
            } else if (row < 0 || choice == 3) {
                card.lastDay().setDate(card.lastDay().date().addDays(below(40)));
            } else if (choice == 4) {
                card.remove(row);
            } else if (choice == 5 && rows < 12) {
                card.copy(row);
            } else if (choice == 6) {
                card.mode(row).setCurrentIndex(below(2));
            } else if (choice == 7) {
                card.endAction(row).setCurrentIndex(below(2));
            } else if (choice == 8 && card.times(row).isEnabled()) {
                card.times(row).setValue(1 + below(50));
            } else if (choice < 11 || !card.endTime(row).isEnabled()) {
                card.startTime(row).setTime(time());
            } else {
                card.endTime(row).setTime(time());
            }
        }
        const auto now = state();
        states.resize(static_cast<std::size_t>(desk.list().currentIndex().row()));
        states.emplace_back(now);
    }
    const auto compare = [](const auto& known, const auto& shown) {
        if (known) {
            QCOMPARE(shown.first, known->first);
            QCOMPARE(shown.second, known->second);
        }
    };
    const int steps = static_cast<int>(states.size()) - 1;
    QVERIFY(steps > length / 3);
    QVERIFY(std::count(states.begin(), states.end(), std::nullopt) < steps / 4);
    for (int step = steps - 1; step >= 0; --step) {
        desk.undo().trigger();
        compare(states[static_cast<std::size_t>(step)], state());
    }
    QVERIFY(!desk.undo().isEnabled());
    QVERIFY(!desk.host.hasUnsavedChanges());
    for (int step = 1; step <= steps; ++step) {
        desk.redo().trigger();
        compare(states[static_cast<std::size_t>(step)], state());
    }
    QVERIFY(!desk.redo().isEnabled());
}

TREL_TEST(tst_EditHistory, QApplication)
#include "tst_EditHistory.moc"
