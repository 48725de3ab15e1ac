#include "InUseFixture.h"
#include "support/TestProgram.h"

#include "chooser/RowCursor.h"

#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTimer>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

QString joined(const QStringList& rows)
{
    return rows.join(QLatin1Char('|'));
}

std::vector<struProgInfo> abc()
{
    return {entry(1, "A", 2), entry(2, "B"), entry(3, "C")};
}

ProgramChoose* dialog(const ChooserWindow& chooser)
{
    return qobject_cast<ProgramChoose*>(chooser.chooser());
}

/// Asks for the menu of a row, without the press that would make another cell the current one, and
/// leaves it.
void openMenu(const ChooserWindow& chooser, int row)
{
    const QTableView* const table = chooser.planTable();
    QTimer::singleShot(0, table, [] { QApplication::activePopupWidget()->close(); });
    dialog(chooser)->onCustomContextMenuRequested(
        table->visualRect(table->model()->index(row, 2)).center());
}

/// Does what a line of the menu does.
void trigger(const ChooserWindow& chooser, MenuLine menuLine)
{
    QAction action(menuTexts().at(menuLine));
    QObject::connect(&action, &QAction::triggered, dialog(chooser),
                     &ProgramChoose::onActionInsertProgramTriggered);
    action.trigger();
}

} // namespace

/// A play count that is being edited while something happens to the table, and the total that goes
/// with it. The buttons are pressed without taking the focus, which would close the editor.
class tst_ProgramChooseCounts : public QObject
{
    Q_OBJECT

private slots:
    void aMoveTakesTheCountAlong();
    void theMenuMovesTheCountAlong();
    void deletingLeavesAnEditorOfAnotherRowOpen();
    void deletingTheRowOfAnEditor();
    void choosingTakesTheCountOver();
    void anInsertionHandsTheCountOver();
    void confirmingTakesTheCountOver();
    void aStepIsCountedWhereTheRowStandsNow();
    void leavingTheEditorBringsTheTotalBack();
    void leavingAfterATakeOverKeepsTheCount();
    void theWarningGoesWithTheCount();
    void cancellingTakesNothingOver();
    void aMoveByKeyLeavesTheRowOfTheMenu();
    void theMenuOfARowThatHasGoneMovesNothing();
};

void tst_ProgramChooseCounts::aMoveTakesTheCountAlong()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkPlan(1);
        chooser.openCount(1)->setValue(5);
        chooser.button("UpBtn")->click();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[x]01 B x5|[ ]02 A x2|[ ]03 C x1"));
        QCOMPARE(chooser.total(), QStringLiteral("01:20:00.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseCounts::theMenuMovesTheCountAlong()
{
    InUseFixture fixture(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.contextMenu(1);
        chooser.openCount(1)->setValue(5);
        trigger(chooser, DownLine);
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x2|[ ]02 C x1|[ ]03 B x5"));
        QCOMPARE(chooser.total(), QStringLiteral("01:20:00.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseCounts::deletingLeavesAnEditorOfAnotherRowOpen()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkPlan(0);
        const QPointer<QSpinBox> box = chooser.openCount(2);
        box->setValue(4);
        dialog(chooser)->slotDelete();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 B x1|[ ]02 C x4"));
        QCOMPARE(chooser.total(), QStringLiteral("00:50:00.000"));
        const QTableView* const table = chooser.planTable();
        QVERIFY(box && box->isVisible());
        QCOMPARE(table->indexWidget(table->model()->index(1, 3)), box.data());
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(chooser.total(), QStringLiteral("01:00:00.000"));
        chooser.confirm();
    });
    QCOMPARE(line(outcome.programs), QStringLiteral("2 B x1, 3 C x5"));
}

void tst_ProgramChooseCounts::deletingTheRowOfAnEditor()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkPlan(1);
        chooser.openCount(1)->setValue(9);
        dialog(chooser)->slotDelete();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x2|[ ]02 C x1"));
        QCOMPARE(chooser.total(), QStringLiteral("00:30:00.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseCounts::choosingTakesTheCountOver()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkProgram(3);
        chooser.openCount(0)->setValue(6);
        chooser.button("pushButtonChonse")->click();
        QCOMPARE(joined(chooser.planRows()),
                 QStringLiteral("[ ]01 A x6|[ ]02 B x1|[ ]03 C x1|[ ]04 D x1"));
        QCOMPARE(chooser.total(), QStringLiteral("01:30:00.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseCounts::anInsertionHandsTheCountOver()
{
    InUseFixture fixture(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.openCount(0)->setValue(6);
        openMenu(chooser, 1);
        trigger(chooser, CutLine);
        QCOMPARE(chooser.total(), QStringLiteral("01:20:00.000"));
        chooser.cancel();
    });
    QCOMPARE(line(fixture.service.insertions.at(0).plan.programs),
             QStringLiteral("2 B x1, 3 C x1, 1 A x6"));
}

void tst_ProgramChooseCounts::confirmingTakesTheCountOver()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        chooser.openCount(2)->setValue(8);
        chooser.button("comfirmBtn")->click();
    });
    QCOMPARE(outcome.result, 0);
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x2, 2 B x1, 3 C x8"));
    QCOMPARE(line(fixture.plan().programs), line(outcome.programs));
}

void tst_ProgramChooseCounts::aStepIsCountedWhereTheRowStandsNow()
{
    ChooserFixture fixture;
    fixture.service.durations[1] = 1000.0;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkPlan(0);
        QSpinBox* const box = chooser.openCount(1);
        // B moves to the top, as A goes past it.
        chooser.button("DownBtn")->click();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 B x1|[x]02 A x2|[ ]03 C x1"));
        QVERIFY(box->isVisible());
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(chooser.total(), QStringLiteral("00:30:02.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseCounts::leavingTheEditorBringsTheTotalBack()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        QSpinBox* const box = chooser.openCount(0);
        box->setValue(7);
        QCOMPARE(chooser.total(), QStringLiteral("01:30:00.000"));
        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(chooser.frame()->isVisible());
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x2|[ ]02 B x1|[ ]03 C x1"));
        QCOMPARE(chooser.total(), QStringLiteral("00:40:00.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseCounts::leavingAfterATakeOverKeepsTheCount()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        QSpinBox* const box = chooser.openCount(0);
        box->setValue(7);
        dialog(chooser)->slotDelete();
        box->setValue(9);
        QCOMPARE(chooser.total(), QStringLiteral("01:50:00.000"));
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(chooser.planRows().first(), QStringLiteral("[ ]01 A x7"));
        QCOMPARE(chooser.total(), QStringLiteral("01:30:00.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseCounts::theWarningGoesWithTheCount()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        QSpinBox* const box = chooser.openCount(0);
        box->setValue(999);
        QCOMPARE(chooser.message(), QLatin1String("over: ") + scheduleText("zhOverTimeTips"));
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(chooser.message(), QString());
        chooser.cancel();
    });
}

void tst_ProgramChooseCounts::cancellingTakesNothingOver()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        chooser.openCount(0)->setValue(7);
        chooser.button("cancelBtn")->click();
    });
    QCOMPARE(outcome.result, 2);
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x2, 2 B x1, 3 C x1"));
    QCOMPARE(fixture.service.count(QStringLiteral("addPlan")), 0);
}

void tst_ProgramChooseCounts::aMoveByKeyLeavesTheRowOfTheMenu()
{
    InUseFixture fixture(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        openMenu(chooser, 2);
        QTest::keyClick(RowCursor::of(*chooser.planTable()), Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 B x1|[ ]02 A x2|[ ]03 C x1"));
        trigger(chooser, UpLine);
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 B x1|[ ]02 C x1|[ ]03 A x2"));
        chooser.cancel();
    });
}

void tst_ProgramChooseCounts::theMenuOfARowThatHasGoneMovesNothing()
{
    InUseFixture fixture(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        openMenu(chooser, 2);
        chooser.checkPlan(2);
        chooser.remove();
        for (const MenuLine menuLine : {UpLine, DownLine}) {
            trigger(chooser, menuLine);
            QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x2|[ ]02 B x1"));
        }
        chooser.checkAllPlan();
        chooser.remove();
        trigger(chooser, DownLine);
        QCOMPARE(chooser.planRows(), QStringList());
        chooser.cancel();
    });
}

TREL_TEST(tst_ProgramChooseCounts, QApplication)

#include "tst_ProgramChooseCounts.moc"
