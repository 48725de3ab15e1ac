#include "../ChangesAnswer.h"
#include "../FileDialogAnswer.h"
#include "../HostFixture.h"
#include "EditorMenus.h"
#include "SaveRescue.h"
#include "draft/DraftKeeper.h"
#include "merge/ConflictsDialog.h"
#include "service/ScheduleDifferences.h"
#include "support/PromptAnswer.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "undo/HistoryModel.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QListView>
#include <QProcess>
#include <QRadioButton>
#include <QTableWidget>

#include <deque>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;

/// In what two schedules differ, but for marks of collision, which each card works out afresh.
QString difference(const Tasks& a, const Tasks& b)
{
    QStringList lines;
    const std::vector<ScheduleDifference> differences = differencesOfNote(a, b);
    for (const ScheduleDifference& one : differences) {
        lines.append(QStringLiteral("task %1, plan %2: %3 %4")
                         .arg(one.taskId)
                         .arg(one.planId)
                         .arg(static_cast<int>(one.kind))
                         .arg(static_cast<int>(one.field)));
    }
    return lines.join(QLatin1Char('\n'));
}

/// The real windows on the demonstration, and another program that saves it.
struct TwoDesks : HostFixture
{
    TwoDesks()
    {
        window.openDatabase(database, QStringLiteral(DEMONSTRATION));
        window.show();
        showEditor();
        QCoreApplication::processEvents();
    }

    /// Files a task as the operator of this desk has edited it.
    void edit(const PlayTask& task)
    {
        manager.addTask(task);
        editor->slotShowTask(task.id);
        QCoreApplication::processEvents();
    }
    void remove(int taskId)
    {
        manager.deleteTask(taskId);
        editor->slotShowTask(taskId);
        QCoreApplication::processEvents();
    }
    Tasks saved() const { return window.drafts().saved(); }
    PlayTask saved(int taskId) const { return saved().at(taskId); }

    /// Another desk saves this.
    void saveElsewhere(const Tasks& tasks) const
    {
        const QString file = folder.filePath(QStringLiteral("theirs.json"));
        QVERIFY(!writeScheduleFile(file, tasks));
        QProcess other;
        other.start(QStringLiteral(SCHEDULECTL), {QStringLiteral("import-schedule"), file,
                                                  QStringLiteral("--database"), database});
        QVERIFY(other.waitForFinished());
        QCOMPARE(other.exitCode(), 0);
    }
    /// What the store has, as any other program reads it.
    Tasks stored() const
    {
        std::vector<ScheduleVersion> versions;
        Tasks tasks;
        return host.versions(versions) && host.versionTasks(versions.front().number, tasks)
                   ? tasks
                   : Tasks();
    }
    int cards() const
    {
        return editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget")).size();
    }
    QString lastStep() const
    {
        QCoreApplication::processEvents();
        const QAbstractItemModel* const steps =
            window.findChild<QListView*>(QStringLiteral("historyList"))->model();
        return steps->index(steps->rowCount() - 1, 0).data().toString();
    }
    void undo() const { window.findChild<EditorMenus*>()->undo()->trigger(); }
};

PlayTask withEndAction(PlayTask task, std::size_t plan = 0)
{
    int& action = task.plans.at(plan).endAction;
    action = action == BlackScreen ? FreezeCurrentFrame : BlackScreen;
    return task;
}

PlayTask withRow(PlayTask task, const char* weeks)
{
    task.plans.back().weeks = weeks;
    return task;
}

/// Does one thing with each of the dialogs that have the operator choose, in their order.
class ConflictsAnswer : public QObject
{
public:
    using Act = std::function<void(merge::ConflictsDialog&)>;

    explicit ConflictsAnswer(std::initializer_list<Act> acts)
        : m_acts(acts)
    {
        connect(&m_timer, &QTimer::timeout, this, &ConflictsAnswer::act);
        m_timer.start(0);
    }
    ~ConflictsAnswer() override
    {
        if (!m_acts.empty()) {
            QTest::qFail("nobody was asked to choose", __FILE__, __LINE__);
        }
    }
    Q_DISABLE_COPY(ConflictsAnswer)

private:
    void act()
    {
        auto* const dialog =
            qobject_cast<merge::ConflictsDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible() || dialog == m_last) {
            return;
        }
        m_last = dialog;
        if (m_acts.empty()) {
            QTest::qFail("a choice that nobody expected", __FILE__, __LINE__);
            dialog->reject();
            return;
        }
        const Act act = m_acts.front();
        m_acts.pop_front();
        act(*dialog);
    }

    QTimer m_timer;
    std::deque<Act> m_acts;
    QPointer<QWidget> m_last;
};

/// All windows that open while it lives are read from the right.
class FromTheRight
{
public:
    FromTheRight() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~FromTheRight() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    Q_DISABLE_COPY(FromTheRight)
};

void press(QDialog& dialog, const char* name)
{
    auto* const button = dialog.findChild<QAbstractButton*>(QLatin1String(name));
    QVERIFY2(button, name);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

bool isEnabled(QDialog& dialog, const char* name)
{
    return dialog.findChild<QAbstractButton*>(QLatin1String(name))->isEnabled();
}

QString text(QDialog& dialog, const char* name)
{
    return dialog.findChild<QPlainTextEdit*>(QLatin1String(name))->toPlainText();
}

QString outlook(QDialog& dialog)
{
    return dialog.findChild<QLabel*>(QStringLiteral("mergeOutlook"))->text();
}

/// Where Tab leads, from the table on and back to it.
QString tabOrder(QDialog& dialog)
{
    auto* const table = dialog.findChild<QTableWidget*>(QStringLiteral("conflictTable"));
    dialog.activateWindow();
    QStringList names;
    if (!QTest::qWaitForWindowActive(&dialog)) {
        return {};
    }
    table->setFocus();
    for (QWidget* at = table; at != nullptr && !names.contains(at->objectName());
         at = QApplication::focusWidget()) {
        names.append(at->objectName());
        QTest::keyClick(at, Qt::Key_Tab);
    }
    return names.join(QLatin1Char(' '));
}

constexpr int kGoOn = 1;
constexpr int kMerge = 2;

} // namespace

/// A save that met that of another desk is merged with it.
class tst_MergingSave : public QObject
{
    Q_OBJECT

private slots:
    void bothAreSaved();
    void theEditorShowsWhatCameOfIt();
    void oneOfTwoIsChosen_data();
    void oneOfTwoIsChosen();
    void choosesForAllThatAreSelected();
    void choosesWhereOneReadsFromTheRight();
    void goingBackLosesNoChoice();
    void goingOnForgetsTheChoices();
    void whatOverlapsStaysInTheEditor();
    void whatOverlapsByAChoiceIsTold();
    void whatWasMergedIsKnownAsSaved();
    void aThirdDeskLeadsToTheSameWay();
    void goingOnMergesNothing();
    void keepingMineKeepsToWhatWasTold();
    void writingTheScheduleForgetsNothing();
    void fitsInEveryLanguage_data();
    void fitsInEveryLanguage();
};

void tst_MergingSave::bothAreSaved()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    const QString told = deletedLine(theirs.at(3));
    theirs.erase(3);
    Tasks expected = theirs;
    expected[1] = withEndAction(desks.saved(1));
    desks.edit(expected[1]);
    desks.saveElsewhere(theirs);
    const ChangesAnswer answer(kMerge);

    desks.editor->slotSave();

    QCOMPARE(answer.lists(), QStringList{told});
    QVERIFY(answer.texts().first().contains(QStringLiteral("No task was changed at both desks")));
    QCOMPARE(answer.buttons().first(),
             QStringLiteral("Go on editing|Merge and save|Keep mine|Take theirs|Write mine to a "
                            "file"));
    QVERIFY(!desks.editor->isVisible());
    QCOMPARE(difference(desks.stored(), expected), QString());
    QVERIFY(!desks.window.drafts().isUnsaved());
    QCOMPARE(desks.lastStep(), QStringLiteral("Saved by another program: tasks 3 (saved)"));
}

void tst_MergingSave::theEditorShowsWhatCameOfIt()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    const Tasks before = desks.saved();
    Tasks theirs = before;
    theirs.erase(3);
    theirs[2] = withEndAction(theirs[2]);
    Tasks mine = before;
    mine[9] = makeTask(9, "2040.01.01", "2040.01.02");
    desks.edit(mine[9]);
    desks.saveElsewhere(theirs);
    Tasks expected = theirs;
    expected[9] = mine[9];
    {
        const ChangesAnswer answer(kMerge);
        desks.editor->slotStart();
    }
    QVERIFY(desks.editor->isVisible());
    QCOMPARE(desks.cards(), 3);
    QCOMPARE(difference(desks.stored(), expected), QString());
    QCOMPARE(difference(desks.host.workingSet(), expected), QString());
    // A card of the former state would file it again.
    emit desks.manager.signalReflushConflict(-1);
    QCOMPARE(difference(desks.host.workingSet(), expected), QString());

    // What came from there is one step, which is taken back only when that is meant.
    QCOMPARE(desks.lastStep(), QStringLiteral("Saved by another program: tasks 2, 3 (saved)"));
    {
        const PromptAnswer answer{PromptAnswer::Enter, 1};
        desks.undo();
        QCOMPARE(difference(desks.host.workingSet(), expected), QString());
        desks.undo();
        QVERIFY2(answer.texts().first().contains(QStringLiteral("(tasks 2, 3)")),
                 qPrintable(answer.texts().first()));
    }
    const PromptAnswer none;
    QCOMPARE(difference(desks.host.workingSet(), mine), QString());
    QCOMPARE(desks.cards(), 4);
    QTRY_VERIFY(desks.window.drafts().isUnsaved());
    desks.undo();
    QCOMPARE(difference(desks.host.workingSet(), before), QString());
}

void tst_MergingSave::oneOfTwoIsChosen_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("isDeletedThere");
    QTest::newRow("mine") << "takeMine" << false;
    QTest::newRow("theirs") << "takeTheirs" << false;
    QTest::newRow("mine, deleted there") << "takeMine" << true;
    QTest::newRow("theirs, deleted there") << "takeTheirs" << true;
}

void tst_MergingSave::oneOfTwoIsChosen()
{
    QFETCH(const QString, choice);
    QFETCH(const bool, isDeletedThere);
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    const PlayTask mine = withRow(withEndAction(theirs[1]), "2");
    if (isDeletedThere) {
        theirs.erase(1);
    } else {
        theirs[1].startDate = "2026.10.01";
    }
    theirs.erase(3);
    desks.edit(mine);
    desks.saveElsewhere(theirs);
    Tasks expected = theirs;
    if (choice == QLatin1String("takeMine")) {
        expected[1] = mine;
    }
    const ChangesAnswer answer(kMerge);
    ConflictsAnswer choose{[&](merge::ConflictsDialog& dialog) {
        const QStringList lines =
            text(dialog, "linesOfMine").split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        // In the order of the rows.
        QVERIFY2(lines.first().startsWith(QStringLiteral("Task 1, plan 1: at the end ")),
                 qPrintable(lines.first()));
        QVERIFY2(lines.last().contains(QStringLiteral(": days ")), qPrintable(lines.last()));
        QVERIFY2(text(dialog, "linesOfTheirs")
                     .startsWith(isDeletedThere ? QStringLiteral("Task 1: deleted, was valid from")
                                                : QStringLiteral("Task 1: first day ")),
                 qPrintable(text(dialog, "linesOfTheirs")));
        QVERIFY(!isEnabled(dialog, "mergeChosen"));
        // The titles stand above what they name, and none is set off.
        const auto* const table = dialog.findChild<QTableWidget*>(QStringLiteral("conflictTable"));
        const QHeaderView& titles = *table->horizontalHeader();
        QCOMPARE(titles.defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QVERIFY(!titles.highlightSections());
        // Its rows look as those of every other table.
        QVERIFY(!table->showGrid() && table->alternatingRowColors());
        QCOMPARE(outlook(dialog), QStringLiteral("1 task is still to be chosen."));
        press(dialog, choice.toLatin1().constData());
        QCOMPARE(outlook(dialog), QStringLiteral("Everything else of both is kept."));
        press(dialog, "mergeChosen");
    }};

    desks.editor->slotSave();

    QVERIFY(answer.texts().first().contains(
        QStringLiteral("1 task was changed at both desks: if you merge, you choose")));
    QVERIFY(answer.buttons().first().startsWith(QStringLiteral("Go on editing|Merge…|")));
    QVERIFY(!desks.editor->isVisible());
    QCOMPARE(difference(desks.stored(), expected), QString());
}

void tst_MergingSave::choosesForAllThatAreSelected()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    Tasks expected = theirs;
    for (const int id : {1, 2, 3}) {
        desks.edit(withEndAction(theirs[id]));
        theirs[id] = withRow(theirs[id], "2");
    }
    expected = theirs;
    expected[1] = desks.host.workingSet().at(1);
    desks.saveElsewhere(theirs);
    const ChangesAnswer answer(kMerge);
    ConflictsAnswer choose{[](merge::ConflictsDialog& dialog) {
        auto* const table = dialog.findChild<QTableWidget*>(QStringLiteral("conflictTable"));
        QCOMPARE(table->rowCount(), 3);
        table->selectAll();
        press(dialog, "takeTheirs");
        QVERIFY(isEnabled(dialog, "mergeChosen"));
        table->selectRow(0);
        press(dialog, "takeMine");
        table->selectRow(1);
        QVERIFY(!dialog.findChild<QRadioButton*>(QStringLiteral("takeMine"))->isChecked());
        QVERIFY(dialog.findChild<QRadioButton*>(QStringLiteral("takeTheirs"))->isChecked());
        QStringList cells;
        for (int row = 0; row < 3; ++row) {
            cells.append(table->item(row, 0)->text() + QLatin1Char(' ') +
                         table->item(row, 1)->text());
        }
        QCOMPARE(cells.join(QLatin1Char('|')), QStringLiteral("1 mine|2 theirs|3 theirs"));
        press(dialog, "mergeChosen");
    }};

    desks.editor->slotSave();

    QCOMPARE(difference(desks.stored(), expected), QString());
}

void tst_MergingSave::choosesWhereOneReadsFromTheRight()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    for (const int id : {1, 2}) {
        desks.edit(withEndAction(theirs[id]));
        theirs[id] = withRow(theirs[id], "2");
    }
    Tasks expected = theirs;
    expected[1] = desks.host.workingSet().at(1);
    desks.saveElsewhere(theirs);
    const FromTheRight direction;
    const ChangesAnswer answer(kMerge);
    ConflictsAnswer choose{[](merge::ConflictsDialog& dialog) {
        const auto take = [&dialog](const char* name) {
            auto* const choice = dialog.findChild<QRadioButton*>(QLatin1String(name));
            QTest::mouseClick(choice, Qt::LeftButton, {},
                              QPoint(choice->width() - 8, choice->height() / 2));
        };
        auto* const table = dialog.findChild<QTableWidget*>(QStringLiteral("conflictTable"));
        // The first task is chosen, and what stands first stands on the right.
        QCOMPARE(table->selectionModel()->selectedRows().value(0).row(), 0);
        QVERIFY(!text(dialog, "linesOfMine").isEmpty());
        QVERIFY(dialog.findChild<QWidget*>(QStringLiteral("linesOfMine"))->x() >
                dialog.findChild<QWidget*>(QStringLiteral("linesOfTheirs"))->x());
        QVERIFY(dialog.findChild<QWidget*>(QStringLiteral("mergeChosen"))->x() <
                dialog.findChild<QWidget*>(QStringLiteral("backToQuestion"))->x());
        take("takeMine");
        QCOMPARE(table->item(0, 1)->text(), QStringLiteral("mine"));
        const QRect second = table->visualItemRect(table->item(1, 1));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, second.center());
        QCOMPARE(table->selectionModel()->selectedRows().value(0).row(), 1);
        QVERIFY(!isEnabled(dialog, "mergeChosen"));
        take("takeTheirs");
        QCOMPARE(table->item(1, 1)->text(), QStringLiteral("theirs"));
        QCOMPARE(table->item(0, 1)->text(), QStringLiteral("mine"));
        press(dialog, "mergeChosen");
    }};

    desks.editor->slotSave();

    QCOMPARE(difference(desks.stored(), expected), QString());
}

void tst_MergingSave::goingBackLosesNoChoice()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    const PlayTask mine = withEndAction(theirs[1]);
    theirs[1] = withRow(theirs[1], "2");
    desks.edit(mine);
    desks.saveElsewhere(theirs);
    const ChangesAnswer answer{kMerge, kMerge};
    QString order;
    merge::ConflictsDialog::Choices byKeys;
    ConflictsAnswer choose{[&](merge::ConflictsDialog& dialog) {
                               order = tabOrder(dialog);
                               // Of the two, arrows lead to the other one.
                               auto* const own =
                                   dialog.findChild<QRadioButton*>(QStringLiteral("takeMine"));
                               own->setFocus();
                               QTest::keyClick(own, Qt::Key_Right);
                               QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
                               byKeys = dialog.choices();
                               press(dialog, "takeMine");
                               // Enter saves nothing.
                               QTest::keyClick(&dialog, Qt::Key_Return);
                               QVERIFY(!dialog.isVisible());
                           },
                           [](merge::ConflictsDialog& dialog) {
                               QVERIFY(isEnabled(dialog, "mergeChosen"));
                               press(dialog, "mergeChosen");
                           }};

    desks.editor->slotSave();

    QCOMPARE(answer.count(), 2);
    QCOMPARE(order, QStringLiteral("conflictTable takeMine linesOfMine linesOfTheirs "
                                   "backToQuestion"));
    QVERIFY(byKeys == (merge::ConflictsDialog::Choices{{1, MergeSide::Theirs}}));
    theirs[1] = mine;
    QCOMPARE(difference(desks.stored(), theirs), QString());
}

// What was chosen of a task that is no longer edited does not stand for another one.
void tst_MergingSave::goingOnForgetsTheChoices()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    const Tasks before = desks.saved();
    Tasks theirs = before;
    for (const int id : {1, 2}) {
        desks.edit(withEndAction(theirs[id]));
        theirs[id] = withRow(theirs[id], "2");
    }
    const PlayTask mine = desks.host.workingSet().at(2);
    desks.saveElsewhere(theirs);
    const ChangesAnswer answer{kMerge, kGoOn, kMerge};
    ConflictsAnswer choose{[](merge::ConflictsDialog& dialog) {
                               press(dialog, "takeMine");
                               press(dialog, "backToQuestion");
                           },
                           [](merge::ConflictsDialog& dialog) {
                               QVERIFY(!isEnabled(dialog, "mergeChosen"));
                               press(dialog, "takeMine");
                               press(dialog, "mergeChosen");
                           }};

    desks.editor->slotSave();
    QCoreApplication::processEvents();
    desks.edit(before.at(1));
    desks.editor->slotSave();

    theirs[2] = mine;
    QCOMPARE(difference(desks.stored(), theirs), QString());
}

void tst_MergingSave::whatOverlapsStaysInTheEditor()
{
    TwoDesks desks;
    SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    QSignalSpy goesOn(&rescue, &SaveRescue::goesOn);
    QVERIFY(goesOn.isValid());
    Tasks theirs = desks.saved();
    theirs[4] = makeTask(4, "2040.01.01", "2040.01.05");
    desks.edit(makeTask(4, "2040.01.04", "2040.01.09"));
    desks.saveElsewhere(theirs);
    {
        const ChangesAnswer answer(kMerge);
        desks.editor->slotSave();
        QVERIFY2(answer.texts().first().contains(
                     QStringLiteral("Merged, tasks 4 and 5 would be valid on the same days.")),
                 qPrintable(answer.texts().first()));
        QVERIFY(answer.buttons().first().startsWith(
            QStringLiteral("Go on editing|Merge and go on editing|")));
        QVERIFY(answer.lists().first().endsWith(QStringLiteral(
            "Merged, your new task 4 becomes task 5: another task 4 was added there.")));
    }
    QCOMPARE(goesOn.count(), 1);
    QVERIFY(desks.editor->isVisible());
    QCOMPARE(desks.cards(), 5);
    QCOMPARE(difference(desks.stored(), theirs), QString());
    QCoreApplication::processEvents();
    // Once the dates are put right, it is saved without a question.
    theirs[5] = makeTask(5, "2040.01.06", "2040.01.09");
    desks.edit(theirs[5]);
    desks.editor->slotSave();
    QVERIFY(!desks.editor->isVisible());
    QCOMPARE(difference(desks.stored(), theirs), QString());
}

void tst_MergingSave::whatOverlapsByAChoiceIsTold()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    PlayTask mine = theirs[3];
    mine.endDate = "2040.01.02";
    theirs[3] = withEndAction(theirs[3]);
    theirs[4] = makeTask(4, "2040.01.01", "2040.01.05");
    desks.edit(mine);
    desks.saveElsewhere(theirs);
    const ChangesAnswer answer(kMerge);
    ConflictsAnswer choose{[](merge::ConflictsDialog& dialog) {
        auto* const merge = dialog.findChild<QPushButton*>(QStringLiteral("mergeChosen"));
        press(dialog, "takeTheirs");
        QCOMPARE(merge->text(), QStringLiteral("Merge and save"));
        press(dialog, "takeMine");
        QCOMPARE(merge->text(), QStringLiteral("Merge and go on editing"));
        QVERIFY(outlook(dialog).startsWith(QStringLiteral("Merged, tasks 3 and 4 would be")));
        press(dialog, "mergeChosen");
    }};

    desks.editor->slotSave();

    QVERIFY(desks.editor->isVisible());
    QCOMPARE(difference(desks.stored(), theirs), QString());
    theirs[3] = mine;
    QCOMPARE(difference(desks.host.workingSet(), theirs), QString());
}

// To drop the edits leads back to what was merged, and nobody has saved since.
void tst_MergingSave::whatWasMergedIsKnownAsSaved()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    PlayTask mine = theirs[3];
    mine.endDate = "2040.01.02";
    theirs[3] = withEndAction(theirs[3]);
    theirs[4] = makeTask(4, "2040.01.01", "2040.01.05");
    desks.edit(mine);
    desks.saveElsewhere(theirs);
    const ChangesAnswer answer(kMerge);
    ConflictsAnswer choose{[](merge::ConflictsDialog& dialog) {
        press(dialog, "takeMine");
        press(dialog, "mergeChosen");
    }};
    desks.editor->slotSave();
    QVERIFY(desks.editor->isVisible());
    QCOMPARE(desks.lastStep(), QStringLiteral("Saved by another program: tasks 4"));

    desks.editor->clearAndInitialize();

    QCOMPARE(difference(desks.host.workingSet(), theirs), QString());
    QCOMPARE(desks.lastStep(), QStringLiteral("Back to what is saved (saved)"));
}

// While the question stands, a third desk saves.
void tst_MergingSave::aThirdDeskLeadsToTheSameWay()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    const PlayTask mine = withEndAction(theirs[1]);
    theirs[1] = withRow(theirs[1], "2");
    Tasks third = theirs;
    third[2] = withEndAction(third[2]);
    desks.edit(mine);
    desks.saveElsewhere(theirs);
    const ChangesAnswer answer{kMerge, kMerge};
    // What was chosen is not asked about again.
    ConflictsAnswer choose{[&](merge::ConflictsDialog& dialog) {
        desks.saveElsewhere(third);
        press(dialog, "takeMine");
        press(dialog, "mergeChosen");
    }};

    desks.editor->slotSave();

    QCOMPARE(answer.count(), 2);
    QVERIFY2(answer.lists().last().startsWith(QStringLiteral("Task 2, plan ")),
             qPrintable(answer.lists().last()));
    QCOMPARE(answer.lists().last().count(QLatin1Char('\n')), 0);
    QVERIFY(answer.buttons().last().contains(QStringLiteral("|Merge and save|")));
    third[1] = mine;
    QCOMPARE(difference(desks.stored(), third), QString());
}

void tst_MergingSave::goingOnMergesNothing()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    const Tasks before = desks.saved();
    Tasks theirs = before;
    const PlayTask mine = withEndAction(theirs[1]);
    theirs[1] = withRow(theirs[1], "2");
    desks.edit(mine);
    const QString step = desks.lastStep();
    desks.saveElsewhere(theirs);
    const ChangesAnswer answer{kMerge, 0, kGoOn};
    ConflictsAnswer choose{[](merge::ConflictsDialog& dialog) {
        press(dialog, "takeMine");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    }};

    desks.editor->slotSave();

    QVERIFY(desks.editor->isVisible());
    QCOMPARE(difference(desks.saved(), before), QString());
    Tasks expected = before;
    expected[1] = mine;
    QCOMPARE(difference(desks.host.workingSet(), expected), QString());
    QCOMPARE(difference(desks.stored(), theirs), QString());
    QCOMPARE(desks.lastStep(), step);
    QCoreApplication::processEvents();
    // Nothing is saved without the question.
    desks.editor->slotSave();
    QCOMPARE(answer.count(), 3);
    QCOMPARE(difference(desks.stored(), theirs), QString());
}

// A save over another one that was refused leaves the next one asking about a third.
void tst_MergingSave::keepingMineKeepsToWhatWasTold()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    Tasks mine = theirs;
    mine[1] = withEndAction(mine[1]);
    theirs.erase(3);
    Tasks third = theirs;
    third[2] = withEndAction(third[2]);
    desks.edit(mine[1]);
    desks.saveElsewhere(theirs);
    ChangesAnswer answer{3, kGoOn, kMerge};
    answer.onEach = [&](QDialog&) {
        if (answer.count() == 1) {
            desks.saveElsewhere(third);
        }
    };

    desks.editor->slotSave();

    QCOMPARE(answer.count(), 2);
    QCOMPARE(difference(desks.stored(), third), QString());
    QCoreApplication::processEvents();
    desks.editor->slotSave();
    QCOMPARE(answer.count(), 3);
    // Mine was kept against the second, and goes together with the third.
    mine[2] = third[2];
    QCOMPARE(difference(desks.stored(), mine), QString());
}

// To write what is saved into a file reads what was saved elsewhere; what is edited is still held
// against what it was edited from.
void tst_MergingSave::writingTheScheduleForgetsNothing()
{
    TwoDesks desks;
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    const PlayTask mine = withEndAction(theirs[1]);
    theirs.erase(3);
    desks.edit(mine);
    desks.saveElsewhere(theirs);
    const QString file = desks.folder.filePath(QStringLiteral("saved.json"));
    answerFileDialog(file);
    desks.window.findChild<EditorMenus*>()->exportSchedule()->trigger();
    QFile json(file);
    QVERIFY(json.open(QIODevice::ReadOnly));
    QCOMPARE(difference(scheduleFromJson(json.readAll()).tasks, theirs), QString());
    const ChangesAnswer answer(kMerge);

    desks.editor->slotSave();

    QCOMPARE(answer.count(), 1);
    theirs[1] = mine;
    QCOMPARE(difference(desks.stored(), theirs), QString());
}

void tst_MergingSave::fitsInEveryLanguage_data()
{
    QTest::addColumn<QString>("theme");
    const char* const languages[] = {"de_DE", "en_US", "es_ES", "fr_FR", "ja_JP",
                                     "ko_KR", "pt_BR", "ru_RU", "zh_CN", "zh_TW"};
    for (const char* language : languages) {
        QTest::newRow(language) << QStringLiteral("light");
    }
    QTest::newRow("de_DE dark") << QStringLiteral("dark");
    QTest::newRow("en_US high contrast") << QStringLiteral("high-contrast");
}

void tst_MergingSave::fitsInEveryLanguage()
{
    QFETCH(const QString, theme);
    const QString row = QString::fromLatin1(QTest::currentDataTag());
    TwoDesks desks;
    desks.languages.select(row.left(5));
    desks.themes.select(theme);
    const SaveRescue rescue(desks.host, desks.window.drafts(), &desks.window);
    Tasks theirs = desks.saved();
    for (const int id : {1, 2}) {
        desks.edit(withRow(withEndAction(theirs[id]), "2"));
        theirs[id].startDate = "2026.10.01";
    }
    desks.edit(makeTask(4, "2040.01.04", "2040.01.09"));
    theirs[4] = makeTask(4, "2040.01.01", "2040.01.05");
    theirs.erase(3);
    desks.saveElsewhere(theirs);
    QDir().mkpath(QStringLiteral(PICTURES));
    const auto look = [&row](QDialog& dialog, const QString& name) {
        // Other words on a button have it laid out anew.
        QCoreApplication::processEvents();
        QVERIFY(dialog.grab().save(QStringLiteral(PICTURES "/merge-%1-%2.png").arg(name, row)));
        // On a small screen.
        QVERIFY2(dialog.width() <= 1340, qPrintable(QString::number(dialog.width())));
        const auto buttons = dialog.findChildren<QAbstractButton*>();
        for (const QAbstractButton* button : buttons) {
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
        }
    };
    ChangesAnswer answer{kMerge, 0};
    answer.onEach = [&](QDialog& dialog) { look(dialog, QStringLiteral("question")); };
    ConflictsAnswer choose{[&](merge::ConflictsDialog& dialog) {
        press(dialog, "takeTheirs");
        dialog.findChild<QTableWidget*>(QStringLiteral("conflictTable"))->selectRow(1);
        press(dialog, "takeMine");
        look(dialog, QStringLiteral("conflicts"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    }};
    desks.editor->slotSave();
    desks.themes.select(QStringLiteral("light"));
}

TREL_TEST(tst_MergingSave, QApplication)
#include "tst_MergingSave.moc"
