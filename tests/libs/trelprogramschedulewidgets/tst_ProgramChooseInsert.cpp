#include "InUseFixture.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QMenu>

using namespace trel::mediadispatch;

namespace {

QString refusal()
{
    return QLatin1String("tip: ") + scheduleText("zhCutProgWarnning");
}

QString joined(const QStringList& rows)
{
    return rows.join(QLatin1Char('|'));
}

} // namespace

/// Insertions into the plan in use.
class tst_ProgramChooseInsert : public QObject
{
    Q_OBJECT

private slots:
    void decisions_data();
    void decisions();
    void theListStartsAtTheRow_data();
    void theListStartsAtTheRow();
    void anotherCountIsNotRotated();
    void theSameProgramTwiceGoesByTheRow();
    void unsavedEditsAreHandedOver();
    void aLoneProgramPlaysOnce();
    void theLoneProgramKeepsThePlansFlag();
    void programsWithoutLengthAreMarked();
    void thePlanItselfStaysAsItIs();
    void aRefusalTakesThePlaceOfTheWarning();
    void anInsertionTakesTheTipAway();
    void aPlanThatIsNotFoundIsPassedOver();
    void anActionWithAnotherTextInsertsAtOnce();
    void withoutAnActionNothingHappens();
};

void tst_ProgramChooseInsert::decisions_data()
{
    QTest::addColumn<int>("lastDay");
    QTest::addColumn<bool>("endPassed");
    QTest::addColumn<QString>("inserted");
    QTest::newRow("over, before the end") << int(DateBeforeToday) << false << QString();
    QTest::newRow("over, after the end") << int(DateBeforeToday) << true << QString();
    QTest::newRow("last day, after the end") << int(DateIsToday) << true << QString();
    QTest::newRow("last day, before the end")
        << int(DateIsToday) << false << QStringLiteral("2x1,3x1,1x1");
    QTest::newRow("more days, after the end")
        << int(DateAfterToday) << true << QStringLiteral("2x1");
    QTest::newRow("more days, before the end")
        << int(DateAfterToday) << false << QStringLiteral("2x1,3x1,1x1");
    QTest::newRow("another answer, after the end") << 3 << true << QStringLiteral("2x1,3x1,1x1");
    QTest::newRow("another answer, before the end") << 3 << false << QStringLiteral("2x1,3x1,1x1");
}

void tst_ProgramChooseInsert::decisions()
{
    QFETCH(int, lastDay);
    QFETCH(bool, endPassed);
    QFETCH(QString, inserted);
    for (const bool delayed : {false, true}) {
        InUseFixture fixture;
        fixture.service.dateResult = static_cast<DataCompareType>(lastDay);
        fixture.service.timePassed = endPassed;
        fixture.trigger(1, delayed ? DelayLine : CutLine);

        QStringList expected = {QStringLiteral("getScheduleState()"),
                                QStringLiteral("getNowUsePlan(3, 7, -1)"),
                                QStringLiteral("getPlan(3, 7, -1)"),
                                QStringLiteral("getTask(3)"),
                                QStringLiteral("comparisionDate(\"2024.12.31\")"),
                                QStringLiteral("comparisonTime(\"09:00:00\")")};
        if (inserted.isEmpty()) {
            QCOMPARE(fixture.message, refusal());
        } else {
            const QString plan =
                QStringLiteral("id 7 time 08:00:00-09:00:00 x1 days 1,2 end 1 <%1>").arg(inserted);
            expected.append(delayed
                                ? QStringLiteral("setInsertPlanTaskDelayExcute(3, 7, %1)").arg(plan)
                                : QStringLiteral("setInsertPlanTask(3, 7, %1, 1)").arg(plan));
            expected.append(QStringLiteral("passOriginalPlanProgInfo(<1x1,2x1,3x1>)"));
            QCOMPARE(fixture.message, QString());
        }
        QCOMPARE(joined(fixture.service.edits()), joined(expected));
        if (!inserted.isEmpty()) {
            const RecordingService::Insertion& insertion = fixture.service.insertions.front();
            QCOMPARE(insertion.immediate, delayed ? std::nullopt : std::optional<bool>(true));
            QVERIFY(insertion.plan.serviceList.empty());
            QVERIFY(insertion.plan.serviceFlagA);
            QCOMPARE(insertion.plan.serviceFlagB, lastDay == DateAfterToday && endPassed);
        }
    }
}

void tst_ProgramChooseInsert::theListStartsAtTheRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("inserted");
    QTest::newRow("first") << 0 << QStringLiteral("ABC");
    QTest::newRow("second") << 1 << QStringLiteral("BCA");
    QTest::newRow("last") << 2 << QStringLiteral("CAB");
}

void tst_ProgramChooseInsert::theListStartsAtTheRow()
{
    QFETCH(int, row);
    InUseFixture fixture;
    fixture.trigger(row, CutLine);
    QTEST(fixture.inserted(), "inserted");
    // The original goes out as it stands in the table.
    QCOMPARE(namesOf(fixture.service.originals.front()), QStringLiteral("ABC"));
}

void tst_ProgramChooseInsert::anotherCountIsNotRotated()
{
    InUseFixture fixture({entry(1, "A"), entry(2, "B", 3), entry(3, "C")});
    fixture.trigger(1, CutLine);
    QCOMPARE(line(fixture.service.insertions.front().plan.programs),
             QStringLiteral("1 A x1, 2 B x3, 3 C x1"));
}

void tst_ProgramChooseInsert::theSameProgramTwiceGoesByTheRow()
{
    InUseFixture fixture({entry(1, "A"), entry(2, "B"), entry(1, "A", 4), entry(3, "C")});
    fixture.trigger(2, CutLine);
    // What matches is the first row, what the list starts at the one that was clicked.
    QCOMPARE(line(fixture.service.insertions.front().plan.programs),
             QStringLiteral("1 A x4, 3 C x1, 1 A x1, 2 B x1"));
}

void tst_ProgramChooseInsert::unsavedEditsAreHandedOver()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.checkProgram(4);
        chooser.choose();
        chooser.setCount(0, 2);
        fixture.service.clearLog();
        chooser.contextMenu(1, CutLine);
        QCOMPARE(line(fixture.service.insertions.front().plan.programs),
                 QStringLiteral("2 B x1, 3 C x1, 5 E x1, 1 A x2"));
        QCOMPARE(line(fixture.service.originals.front()),
                 QStringLiteral("1 A x2, 2 B x1, 3 C x1, 5 E x1"));
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::aLoneProgramPlaysOnce()
{
    InUseFixture fixture({entry(1, "A"), entry(2, "B", 9)});
    fixture.service.dateResult = DateAfterToday;
    fixture.service.timePassed = true;
    fixture.trigger(1, DelayLine);
    QCOMPARE(line(fixture.service.insertions.front().plan.programs), QStringLiteral("2 B x1"));
    QCOMPARE(line(fixture.service.originals.front()), QStringLiteral("1 A x1, 2 B x9"));
}

void tst_ProgramChooseInsert::theLoneProgramKeepsThePlansFlag()
{
    for (const bool flag : {false, true}) {
        InUseFixture fixture;
        fixture.plan().hasNoDuration = flag;
        fixture.service.noDuration = {1, 2, 3};
        fixture.service.dateResult = DateAfterToday;
        fixture.service.timePassed = true;
        const ChooserOutcome outcome = fixture.trigger(1, CutLine);
        QCOMPARE(fixture.service.insertions.front().plan.hasNoDuration, flag);
        QVERIFY(!outcome.hasNoDuration);
        QCOMPARE(fixture.service.count(QStringLiteral("isNoDurationType")), 0);
    }
}

void tst_ProgramChooseInsert::programsWithoutLengthAreMarked()
{
    InUseFixture fixture;
    fixture.service.noDuration = {3, 1};
    const ChooserOutcome outcome = fixture.trigger(1, CutLine);
    QVERIFY(fixture.service.insertions.front().plan.hasNoDuration);
    QVERIFY(outcome.hasNoDuration);
    // In the order in which they will play, up to the first.
    QCOMPARE(fixture.service.calls({QStringLiteral("isNoDurationType")}),
             (QStringList{QStringLiteral("isNoDurationType(2)"),
                          QStringLiteral("isNoDurationType(3)")}));

    InUseFixture without;
    without.plan().hasNoDuration = true;
    QVERIFY(!without.trigger(1, CutLine).hasNoDuration);
    QVERIFY(!without.service.insertions.front().plan.hasNoDuration);
}

void tst_ProgramChooseInsert::thePlanItselfStaysAsItIs()
{
    InUseFixture fixture;
    const PlayTask before = fixture.service.working.at(ChooserFixture::kTask);
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        const QStringList rows = chooser.planRows();
        chooser.contextMenu(1, CutLine);
        chooser.contextMenu(2, DelayLine);
        QCOMPARE(chooser.planRows(), rows);
        QVERIFY(chooser.frame()->isVisible());
        chooser.cancel();
    });
    QCOMPARE(outcome.result, 2);
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x1, 2 B x1, 3 C x1"));
    QVERIFY(fixture.service.working.at(ChooserFixture::kTask) == before);
    QVERIFY(fixture.task == before);
    QCOMPARE(fixture.service.insertions.size(), std::size_t(2));
    QCOMPARE(namesOf(fixture.service.insertions.back().plan.programs), QStringLiteral("CAB"));
}

void tst_ProgramChooseInsert::aRefusalTakesThePlaceOfTheWarning()
{
    InUseFixture fixture;
    fixture.service.durations[1] = 1e9;
    fixture.service.dateResult = DateBeforeToday;
    fixture.openExisting([&](ChooserWindow& chooser) {
        const QString over = QLatin1String("over: ") + scheduleText("zhOverTimeTips");
        QCOMPARE(chooser.message(), over);
        chooser.contextMenu(1, CutLine);
        QCOMPARE(chooser.message(), refusal());
        // Until the total is next worked out.
        chooser.choose();
        QCOMPARE(chooser.message(), over);
        chooser.cancel();
    });
    QVERIFY(fixture.service.insertions.empty());
    QVERIFY(fixture.service.originals.empty());
}

void tst_ProgramChooseInsert::anInsertionTakesTheTipAway()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        fixture.service.dateResult = DateBeforeToday;
        chooser.contextMenu(1, CutLine);
        QCOMPARE(chooser.message(), refusal());
        // Moving by the menu leaves it.
        chooser.contextMenu(1, UpLine);
        QCOMPARE(chooser.message(), refusal());
        fixture.service.dateResult = DateIsToday;
        chooser.contextMenu(1, CutLine);
        QCOMPARE(chooser.message(), QString());
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::aPlanThatIsNotFoundIsPassedOver()
{
    for (const int missing : {-1, -2}) {
        InUseFixture fixture;
        fixture.service.missingPlanIndex = missing;
        fixture.openExisting([&](ChooserWindow& chooser) {
            fixture.service.working.clear();
            fixture.service.clearLog();
            chooser.contextMenu(1, CutLine);
            QCOMPARE(fixture.service.edits().last(), QStringLiteral("getPlan(3, 7, -1)"));
            QCOMPARE(chooser.message(), QString());
            chooser.cancel();
        });
    }
}

void tst_ProgramChooseInsert::anActionWithAnotherTextInsertsAtOnce()
{
    InUseFixture fixture;
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.withContextMenu(1, [](QMenu& menu) {
            menu.actions().at(DownLine)->setText(QStringLiteral("In another language"));
            menu.actions().at(DownLine)->trigger();
        });
        chooser.cancel();
    });
    QCOMPARE(fixture.inserted(), QStringLiteral("BCA"));
    QCOMPARE(fixture.service.insertions.front().immediate, std::optional<bool>(true));
}

void tst_ProgramChooseInsert::withoutAnActionNothingHappens()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        fixture.service.clearLog();
        qobject_cast<ProgramChoose*>(chooser.chooser())->onActionInsertProgramTriggered();
        QCOMPARE(fixture.service.log, QStringList());
        chooser.cancel();
    });
}

TREL_TEST(tst_ProgramChooseInsert, QApplication)

#include "tst_ProgramChooseInsert.moc"
