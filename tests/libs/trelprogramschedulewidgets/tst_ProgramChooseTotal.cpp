#include "ChooserFixture.h"
#include "support/TestProgram.h"

#include "ScheduleText.h"

#include <QApplication>
#include <QSpinBox>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

/// Play counts, the running total and the messages below the tables.
class tst_ProgramChooseTotal : public QObject
{
    Q_OBJECT

private slots:
    void totals_data();
    void totals();
    void aStepIsCountedBeforeItIsCommitted();
    void theBoxKeepsItsBounds();
    void aRowBeingEditedWithoutACountIsLeftOut();
    void eachRowIsAskedForOnEachUpdate();
    void onlyThePlayCountOpensAnEditor();
    void theWarningTakesThePlaceOfTheTip();
    void theTipTakesThePlaceOfTheWarning();
    void theWarningStopsNothing();
};

namespace {

constexpr double kHour = 3600000.0;

QString overTime()
{
    return QLatin1String("over: ") + scheduleText("zhOverTimeTips");
}

QString onlyOne()
{
    return QLatin1String("tip: ") + scheduleText("zhOnlyOne");
}

} // namespace

void tst_ProgramChooseTotal::totals_data()
{
    QTest::addColumn<double>("lengthOfA");
    QTest::addColumn<int>("countOfA");
    QTest::addColumn<double>("lengthOfB");
    QTest::addColumn<QString>("total");
    QTest::addColumn<bool>("warned");
    QTest::newRow("all units") << 3723004.0 << 1 << 0.0 << QStringLiteral("01:02:03.004") << false;
    QTest::newRow("counts multiply")
        << 1000.0 << 61 << 4.0 << QStringLiteral("00:01:01.004") << false;
    QTest::newRow("a day exactly") << kHour << 24 << 0.0 << QString() << false;
    QTest::newRow("just over a day") << kHour << 24 << 1.0 << QString() << true;
    QTest::newRow("just under a day")
        << kHour << 24 << -1.0 << QStringLiteral("23:59:59.999") << false;
    QTest::newRow("weeks") << kHour << 999 << 0.0 << QString() << true;
    QTest::newRow("a negative length lowers the total")
        << kHour << 1 << -60000.0 << QStringLiteral("00:59:00.000") << false;
    QTest::newRow("below nothing") << 1000.0 << 1 << -2000.0 << QString() << false;
}

void tst_ProgramChooseTotal::totals()
{
    QFETCH(double, lengthOfA);
    QFETCH(int, countOfA);
    QFETCH(double, lengthOfB);
    QFETCH(QString, total);
    QFETCH(bool, warned);
    ChooserFixture fixture;
    fixture.service.durations = {{1, lengthOfA}, {2, lengthOfB}};
    fixture.setPrograms({entry(1, "A", countOfA), entry(2, "B")});
    fixture.openExisting([&](ChooserWindow& chooser) {
        QCOMPARE(chooser.total(), total);
        QCOMPARE(chooser.message(), warned ? overTime() : QString());
        chooser.cancel();
    });
}

void tst_ProgramChooseTotal::aStepIsCountedBeforeItIsCommitted()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A", 2), entry(2, "B")});
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.total(), QStringLiteral("00:30:00.000"));
        QSpinBox* box = chooser.openCount(0);
        QVERIFY(box != nullptr);
        QCOMPARE(box->value(), 2);
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(chooser.total(), QStringLiteral("00:40:00.000"));
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(chooser.total(), QStringLiteral("00:50:00.000"));
        // The table learns it only now.
        QCOMPARE(chooser.planRows().first(), QStringLiteral("[ ]01 A x2"));
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_COMPARE(chooser.planRows().first(), QStringLiteral("[ ]01 A x4"));
        QVERIFY(chooser.frame()->isVisible());
        QCOMPARE(chooser.total(), QStringLiteral("00:50:00.000"));
        chooser.cancel();
    });
    // The records follow when they are needed.
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x2, 2 B x1"));
}

void tst_ProgramChooseTotal::theBoxKeepsItsBounds()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A", 999), entry(2, "B", 1)});
    fixture.openExisting([](ChooserWindow& chooser) {
        QTest::keyClick(chooser.openCount(0), Qt::Key_Up);
        QCOMPARE(chooser.planTable()->findChild<QSpinBox*>()->value(), 999);
        chooser.setCount(0, 998);
        QTRY_VERIFY(chooser.planTable()->findChildren<QSpinBox*>().isEmpty());
        QTest::keyClick(chooser.openCount(1), Qt::Key_Down);
        QCOMPARE(chooser.planTable()->findChild<QSpinBox*>()->value(), 1);
        chooser.cancel();
    });
}

void tst_ProgramChooseTotal::aRowBeingEditedWithoutACountIsLeftOut()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A", 2), entry(2, "B")});
    fixture.openExisting([](ChooserWindow& chooser) {
        auto* dialog = qobject_cast<ProgramChoose*>(chooser.chooser());
        const QModelIndex count = chooser.planTable()->model()->index(0, 3);
        dialog->onSpinBoxValueChanged(count, 0);
        QCOMPARE(chooser.total(), QStringLiteral("00:10:00.000"));
        dialog->onSpinBoxValueChanged(count, -3);
        QCOMPARE(chooser.total(), QStringLiteral("00:10:00.000"));
        dialog->onSpinBoxValueChanged(count, 1);
        QCOMPARE(chooser.total(), QStringLiteral("00:20:00.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseTotal::eachRowIsAskedForOnEachUpdate()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A", 2), entry(2, "B"), entry(1, "A")});
    fixture.openExisting([&](ChooserWindow& chooser) {
        const QStringList lengths = {QStringLiteral("getDurationByIndex")};
        QSpinBox* box = chooser.openCount(1);
        fixture.service.clearLog();
        QTest::keyClick(box, Qt::Key_Up);
        // The row being edited comes last.
        QCOMPARE(fixture.service.log, (QStringList{QStringLiteral("getDurationByIndex(1)"),
                                                   QStringLiteral("getDurationByIndex(1)"),
                                                   QStringLiteral("getDurationByIndex(2)")}));
        // Lengths are not kept.
        fixture.service.durations[1] = 60000.0;
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(chooser.total(), QStringLiteral("00:33:00.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseTotal::onlyThePlayCountOpensAnEditor()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A", 2)});
    fixture.openExisting([](ChooserWindow& chooser) {
        for (QTableView* table : {chooser.planTable(), chooser.programTable()}) {
            for (int column = 0; column < 3; ++column) {
                const QPoint cell = table->visualRect(table->model()->index(0, column)).center();
                QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
                QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
            }
            QVERIFY(table->viewport()->findChildren<QWidget*>().isEmpty());
        }
        chooser.cancel();
    });
}

void tst_ProgramChooseTotal::theWarningTakesThePlaceOfTheTip()
{
    ChooserFixture fixture;
    fixture.service.durations[1] = kHour;
    fixture.setPrograms({entry(1, "A", 24), entry(2, "B")});
    fixture.service.durations[2] = 0.0;
    fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.checkAllPlan();
        chooser.moveUp();
        QCOMPARE(chooser.message(), onlyOne());
        // A total within the day leaves the tip.
        chooser.choose();
        QCOMPARE(chooser.message(), onlyOne());
        fixture.service.durations[2] = 1.0;
        chooser.choose();
        QCOMPARE(chooser.message(), overTime());
        // Gone again with the length, and the tip does not come back.
        fixture.service.durations[2] = 0.0;
        chooser.choose();
        QCOMPARE(chooser.message(), QString());
        chooser.cancel();
    });
}

void tst_ProgramChooseTotal::theTipTakesThePlaceOfTheWarning()
{
    ChooserFixture fixture;
    fixture.service.durations[1] = kHour;
    fixture.setPrograms({entry(1, "A", 25), entry(2, "B")});
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.message(), overTime());
        chooser.checkAllPlan();
        chooser.moveDown();
        QCOMPARE(chooser.message(), onlyOne());
        // Moving one row brings the warning back.
        chooser.checkPlan(1);
        chooser.moveUp();
        QCOMPARE(chooser.message(), overTime());
        chooser.cancel();
    });
}

void tst_ProgramChooseTotal::theWarningStopsNothing()
{
    ChooserFixture fixture;
    fixture.service.durations[1] = kHour;
    fixture.setPrograms({entry(1, "A", 25)});
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        QVERIFY(chooser.canConfirm());
        chooser.confirm();
    });
    QCOMPARE(outcome.result, 0);
    QCOMPARE(fixture.service.count(QStringLiteral("addPlan")), 1);
}

TREL_TEST(tst_ProgramChooseTotal, QApplication)

#include "tst_ProgramChooseTotal.moc"
