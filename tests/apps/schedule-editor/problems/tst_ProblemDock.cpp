#include "../HostFixture.h"
#include "problems/ProblemDock.h"
#include "support/PlanRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QToolButton>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

PlayTask taskOf2027(std::vector<PlayPlan> plans)
{
    PlayTask task = taskWithPlans(std::move(plans));
    task.startDate = "2027.01.01";
    task.endDate = "2027.02.28";
    return task;
}

/// The window with its list of problems.
struct ProblemFixture : HostFixture
{
    ProblemFixture()
        : clock(QDateTime(QDate(2026, 11, 21), QTime(12, 0)))
    {
        window.openDatabase(database);
        dock = window.findChild<ProblemDock*>();
        table = dock->findChild<QTableView*>(QStringLiteral("problemTable"));
        number = window.findChild<QToolButton*>(QStringLiteral("problemNumber"));
        window.show();
        showEditor();
        QCoreApplication::processEvents();
    }

    QPushButton* button(const char* name) const
    {
        return dock->findChild<QPushButton*>(QLatin1String(name));
    }

    /// The text of a row, from the column of what is wrong.
    QString wrong(int row) const { return table->model()->index(row, 2).data().toString(); }

    int rowOf(const QString& text) const
    {
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            if (wrong(row).contains(text)) {
                return row;
            }
        }
        return -1;
    }

    TestClock clock;
    ProblemDock* dock = nullptr;
    QTableView* table = nullptr;
    QToolButton* number = nullptr;
};

} // namespace

/// The list of problems in the host's window.
class tst_ProblemDock : public QObject
{
    Q_OBJECT

private slots:
    void followsEveryEdit();
    void theNumberShowsTheList();
    void leadsToTheRow();
    void opensNothingBehindAClosedWindow();
    void splitsInTwo();
    void speaksTheLanguageInUse();
};

void tst_ProblemDock::followsEveryEdit()
{
    ProblemFixture fixture;
    QCOMPARE(fixture.number->text(), QStringLiteral("No open problems"));
    QVERIFY(fixture.table->isHidden());

    fixture.manager.addTask(
        taskOf2027({timePlan(3, "08:00:00", "12:00:00"), timePlan(4, "11:00:00", "13:00:00")}));
    QTRY_VERIFY(fixture.rowOf(QStringLiteral("Plan 4 is in conflict with plan 3 in row 1 from "
                                             "2027.01.01 on.")) >= 0);
    QVERIFY(!fixture.table->isHidden());
    QCOMPARE(fixture.dock->count(), fixture.table->model()->rowCount());
    QCOMPARE(fixture.number->text(), QStringLiteral("%1 open problems").arg(fixture.dock->count()));

    PlayTask other = taskOf2027({});
    other.id = 2;
    other.startDate = "2027.02.28";
    fixture.manager.addTask(other);
    QTRY_COMPARE(fixture.wrong(0), QStringLiteral("The validity overlaps that of task 1 from "
                                                  "2027.02.28 to 2027.02.28."));
    fixture.manager.deleteTask(1);
    fixture.manager.deleteTask(2);
    QTRY_COMPARE(fixture.number->text(), QStringLiteral("No open problems"));
}

void tst_ProblemDock::theNumberShowsTheList()
{
    ProblemFixture fixture;
    fixture.dock->hide();
    QTest::mouseClick(fixture.number, Qt::LeftButton);
    QVERIFY(fixture.dock->isVisible());
    // It follows edits hidden as well.
    fixture.dock->hide();
    fixture.manager.addTask(taskOf2027({}));
    QTRY_COMPARE(fixture.number->text(), QStringLiteral("1 open problem"));
}

void tst_ProblemDock::leadsToTheRow()
{
    ProblemFixture fixture;
    fixture.manager.addTask(
        taskOf2027({timePlan(3, "08:00:00", "12:00:00"), timePlan(4, "11:00:00", "13:00:00")}));
    fixture.editor->slotShowTask(1);
    QTRY_VERIFY(fixture.rowOf(QStringLiteral("Plan 4 is in conflict")) >= 0);
    QVERIFY(!fixture.button("goToProblem")->isEnabled());
    fixture.table->setCurrentIndex(
        fixture.table->model()->index(fixture.rowOf(QStringLiteral("Plan 4 is in conflict")), 0));
    QVERIFY(fixture.button("goToProblem")->isEnabled());
    QVERIFY(!fixture.button("splitPlan")->isEnabled());
    fixture.button("goToProblem")->click();
    QTRY_VERIFY(fixture.firstTable()->selectionModel()->isRowSelected(1, {}));

    // The task itself has no row of its own.
    fixture.table->setCurrentIndex(
        fixture.table->model()->index(fixture.rowOf(QStringLiteral("No picture")), 0));
    QTest::keyClick(fixture.table, Qt::Key_Return);
    QTRY_VERIFY(fixture.firstTable()->selectionModel()->isRowSelected(0, {}));
}

void tst_ProblemDock::opensNothingBehindAClosedWindow()
{
    ProblemFixture fixture;
    fixture.clock.setElapsed(2000);
    fixture.manager.addTask(taskOf2027({timePlan(3, "08:00:00", "12:00:00")}));
    QVERIFY(fixture.host.trySave());
    fixture.editor->close();
    QTRY_VERIFY(fixture.rowOf(QStringLiteral("No picture")) >= 0);
    fixture.table->setCurrentIndex(
        fixture.table->model()->index(fixture.rowOf(QStringLiteral("No picture")), 0));
    // Events are handled while the list is read; an operator may close everything then.
    bool wasShown = false;
    QTimer::singleShot(0, &fixture.window, [&] {
        wasShown = fixture.editor->isVisible();
        QVERIFY(fixture.window.close());
    });
    QTest::keyClick(fixture.table, Qt::Key_Return);
    QVERIFY(wasShown);
    QVERIFY(!fixture.editor->isVisible());
}

void tst_ProblemDock::splitsInTwo()
{
    ProblemFixture fixture;
    fixture.manager.addTask(taskOf2027({timePlan(3, "22:00:00", "02:00:00")}));
    fixture.editor->slotShowTask(1);
    QTRY_VERIFY(fixture.rowOf(QStringLiteral("until 02:00:00")) >= 0);
    fixture.table->setCurrentIndex(
        fixture.table->model()->index(fixture.rowOf(QStringLiteral("until 02:00:00")), 0));
    QVERIFY(fixture.button("splitPlan")->isEnabled());
    fixture.button("splitPlan")->click();
    const PlayTask& task = fixture.host.workingSet().at(1);
    QCOMPARE(task.plans.size(), std::size_t(2));
    QCOMPARE(task.plans[0].endTime, std::string("23:59:59"));
    QCOMPARE(task.plans[1].startTime, std::string("00:00:00"));
    QCOMPARE(task.plans[1].endTime, std::string("02:00:00"));
    QCOMPARE(fixture.firstTable()->model()->rowCount(), 2);
    QTRY_COMPARE(fixture.rowOf(QStringLiteral("until 02:00:00")), -1);
}

void tst_ProblemDock::speaksTheLanguageInUse()
{
    ProblemFixture fixture;
    fixture.manager.addTask(taskOf2027({timePlan(3, "08:00:00", "12:00:00", "1,2")}));
    QTRY_VERIFY(fixture.rowOf(QStringLiteral("No picture from 00:00:00 to 24:00:00")) >= 0);
    fixture.languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(fixture.dock->windowTitle(), QStringLiteral("Probleme"));
    QVERIFY(fixture.rowOf(QStringLiteral("Kein Bild von 00:00:00 bis 24:00:00")) >= 0);
    QVERIFY(fixture.number->text().endsWith(QStringLiteral(" offene Probleme")));
    QCOMPARE(fixture.table->accessibleName(), QStringLiteral("Probleme"));
}

TREL_TEST(tst_ProblemDock, QApplication)
#include "tst_ProblemDock.moc"
