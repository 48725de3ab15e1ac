#include "ChooserFixture.h"
#include "support/TestProgram.h"

#include "ScheduleText.h"

#include <QApplication>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

QString joined(const QStringList& rows)
{
    return rows.join(QLatin1Char('|'));
}

QString onlyOne()
{
    return QLatin1String("tip: ") + scheduleText("zhOnlyOne");
}

std::vector<struProgInfo> abc()
{
    return {entry(1, "A"), entry(2, "B"), entry(3, "C")};
}

} // namespace

/// What moves programs into, out of and within the plan.
class tst_ProgramChooseMoves : public QObject
{
    Q_OBJECT

private slots:
    void choosingNothingChangesNothing();
    void choosingTwiceCopiesTwice();
    void rowsThatWereAdded();
    void deletingAllDisablesConfirming();
    void deletingTakesTheCheckedRows();
    void deletingLeavesTheHeaderAlone();
    void movingByTheButtons_data();
    void movingByTheButtons();
    void aMovedRowKeepsItsCells();
    void movingNeedsExactlyOneRow();
    void movingAgainstTheEndHidesTheTip();
    void anotherSenderMovesNothing();
    void nothingReachesTheService();
};

void tst_ProgramChooseMoves::choosingNothingChangesNothing()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        const QStringList before = chooser.planRows();
        chooser.choose();
        QCOMPARE(chooser.planRows(), before);
        QVERIFY(chooser.canConfirm());
        chooser.cancel();
    });
    fixture.openNew([](ChooserWindow& chooser) {
        chooser.choose();
        QCOMPARE(chooser.planRows(), QStringList());
        QVERIFY(!chooser.canConfirm());
        chooser.cancel();
    });
}

void tst_ProgramChooseMoves::choosingTwiceCopiesTwice()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        chooser.checkPrograms({1, 0});
        chooser.choose();
        chooser.choose();
        QCOMPARE(joined(chooser.planRows()),
                 QStringLiteral("[ ]01 B x1|[ ]02 A x1|[ ]03 B x1|[ ]04 A x1"));
        QCOMPARE(joined(chooser.programRows()),
                 QStringLiteral("[x]02 A|[x]01 B|[ ] C|[ ] D|[ ] E|[ ] F"));
        chooser.cancel();
    });
}

void tst_ProgramChooseMoves::rowsThatWereAdded()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A")});
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkAllPlan();
        chooser.checkProgram(3);
        chooser.choose();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[x]01 A x1|[ ]02 D x1"));
        const QAbstractItemModel* model = chooser.planTable()->model();
        QStringList texts;
        for (int column = 0; column < model->columnCount(); ++column) {
            texts.append(model->index(1, column).data().toString());
        }
        QCOMPARE(joined(texts), QStringLiteral("|02|D|1|4|1"));
        QVERIFY(!model->index(1, 2).data(Qt::ToolTipRole).isValid());
        QVERIFY(!model->index(1, 2).data(Qt::ForegroundRole).isValid());
        QCOMPARE(model->index(1, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignCenter));
        QCOMPARE(model->index(1, 2).flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        QVERIFY(model->index(1, 3).flags().testFlag(Qt::ItemIsEditable));
        chooser.cancel();
    });
}

void tst_ProgramChooseMoves::deletingAllDisablesConfirming()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkAllPlan();
        chooser.remove();
        QCOMPARE(chooser.planRows(), QStringList());
        QVERIFY(!chooser.canConfirm());
        QCOMPARE(chooser.total(), QStringLiteral("00:00:00.000"));
        chooser.checkProgram(0);
        chooser.choose();
        QVERIFY(chooser.canConfirm());
        chooser.cancel();
    });
}

void tst_ProgramChooseMoves::deletingTakesTheCheckedRows()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A"), entry(2, "B"), entry(3, "C"), entry(4, "D"), entry(5, "E"),
                         entry(1, "A"), entry(6, "F")});
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        for (const int row : {5, 0, 2, 3}) {
            chooser.checkPlan(row);
        }
        chooser.remove();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 B x1|[ ]02 E x1|[ ]03 F x1"));
        QCOMPARE(chooser.total(), QStringLiteral("00:30:00.000"));
        // With nothing checked nothing goes.
        chooser.remove();
        QCOMPARE(chooser.planRows().size(), 3);
        chooser.cancel();
    });
    // The records have lost the same rows.
    QCOMPARE(line(outcome.programs), QStringLiteral("2 B x1, 5 E x1, 6 F x1"));
}

void tst_ProgramChooseMoves::deletingLeavesTheHeaderAlone()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkAllPlan();
        chooser.remove();
        chooser.checkProgram(0);
        chooser.choose();
        // Still set after all rows have gone: the next press clears it.
        chooser.checkAllPlan();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x1"));
        chooser.checkAllPlan();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[x]01 A x1"));
        chooser.cancel();
    });
}

void tst_ProgramChooseMoves::movingByTheButtons_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("up");
    QTest::addColumn<QString>("rows");
    QTest::newRow("up from the middle")
        << 1 << true << QStringLiteral("[x]01 B x1|[ ]02 A x1|[ ]03 C x1");
    QTest::newRow("down from the middle")
        << 1 << false << QStringLiteral("[ ]01 A x1|[ ]02 C x1|[x]03 B x1");
    QTest::newRow("up from the top")
        << 0 << true << QStringLiteral("[x]01 A x1|[ ]02 B x1|[ ]03 C x1");
    QTest::newRow("down from the top")
        << 0 << false << QStringLiteral("[ ]01 B x1|[x]02 A x1|[ ]03 C x1");
    QTest::newRow("up from the bottom")
        << 2 << true << QStringLiteral("[ ]01 A x1|[x]02 C x1|[ ]03 B x1");
    QTest::newRow("down from the bottom")
        << 2 << false << QStringLiteral("[ ]01 A x1|[ ]02 B x1|[x]03 C x1");
}

void tst_ProgramChooseMoves::movingByTheButtons()
{
    QFETCH(int, row);
    QFETCH(bool, up);
    QFETCH(QString, rows);
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.checkPlan(row);
        if (up) {
            chooser.moveUp();
        } else {
            chooser.moveDown();
        }
        QCOMPARE(joined(chooser.planRows()), rows);
        chooser.cancel();
    });
    // The records are not moved before they are needed.
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x1, 2 B x1, 3 C x1"));
}

void tst_ProgramChooseMoves::aMovedRowKeepsItsCells()
{
    ChooserFixture fixture;
    fixture.service.programs.at(2).isNull = true;
    fixture.setPrograms({entry(1, "A"), entry(2, "B", 8), entry(3, "C")});
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkPlan(1);
        chooser.moveUp();
        const QTableView* table = chooser.planTable();
        const QString name = QLatin1Char('B') + scheduleText("szProgNullStr");
        const QModelIndex nameCell = table->model()->index(0, 2);
        QCOMPARE(nameCell.data().toString(), name);
        QCOMPARE(nameCell.data(Qt::ToolTipRole).toString(), name);
        QCOMPARE(nameCell.data(Qt::ForegroundRole).value<QBrush>(), QBrush(Qt::yellow));
        QCOMPARE(nameCell.siblingAtColumn(0).data(Qt::UserRole).toBool(), true);
        QCOMPARE(nameCell.siblingAtColumn(3).data().toString(), QStringLiteral("8"));
        QCOMPARE(nameCell.siblingAtColumn(4).data().toString(), QStringLiteral("2"));
        QCOMPARE(nameCell.siblingAtColumn(5).data().toString(), QStringLiteral("0"));
        QVERIFY(table->isColumnHidden(4) && table->isColumnHidden(5));
        chooser.cancel();
    });
}

void tst_ProgramChooseMoves::movingNeedsExactlyOneRow()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        const QStringList before = chooser.planRows();
        chooser.moveUp();
        QCOMPARE(chooser.message(), QString());
        QCOMPARE(chooser.planRows(), before);

        chooser.checkPlan(1);
        chooser.checkPlan(2);
        chooser.moveUp();
        QCOMPARE(chooser.message(), onlyOne());
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x1|[x]02 B x1|[x]03 C x1"));

        // With no row checked what is shown stays.
        chooser.checkPlan(1);
        chooser.checkPlan(2);
        chooser.moveDown();
        QCOMPARE(chooser.message(), onlyOne());

        chooser.checkPlan(1);
        chooser.moveDown();
        QCOMPARE(chooser.message(), QString());
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x1|[ ]02 C x1|[x]03 B x1"));
        chooser.cancel();
    });
}

void tst_ProgramChooseMoves::movingAgainstTheEndHidesTheTip()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkPlan(0);
        chooser.checkPlan(1);
        chooser.moveUp();
        QCOMPARE(chooser.message(), onlyOne());
        chooser.checkPlan(1);
        chooser.moveUp();
        QCOMPARE(chooser.message(), QString());
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[x]01 A x1|[ ]02 B x1|[ ]03 C x1"));

        chooser.checkPlan(2);
        chooser.moveDown();
        QCOMPARE(chooser.message(), onlyOne());
        chooser.checkPlan(0);
        chooser.moveDown();
        QCOMPARE(chooser.message(), QString());
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x1|[ ]02 B x1|[x]03 C x1"));
        chooser.cancel();
    });
}

void tst_ProgramChooseMoves::anotherSenderMovesNothing()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkPlan(1);
        chooser.checkPlan(2);
        chooser.moveUp();
        chooser.checkPlan(2);
        auto* dialog = qobject_cast<ProgramChoose*>(chooser.chooser());
        dialog->slotClicked();
        QCOMPARE(chooser.message(), QString());
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x1|[x]02 B x1|[ ]03 C x1"));
        chooser.cancel();
    });
}

void tst_ProgramChooseMoves::nothingReachesTheService()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([&](ChooserWindow& chooser) {
        fixture.service.clearLog();
        chooser.checkAllPrograms();
        chooser.choose();
        chooser.checkPlan(0);
        chooser.moveDown();
        chooser.remove();
        chooser.setCount(0, 4);
        QCOMPARE(fixture.service.edits(), QStringList());
        // Lengths are all that is asked for.
        QCOMPARE(fixture.service.log.size(),
                 fixture.service.count(QStringLiteral("getDurationByIndex")));
        chooser.cancel();
    });
}

TREL_TEST(tst_ProgramChooseMoves, QApplication)

#include "tst_ProgramChooseMoves.moc"
