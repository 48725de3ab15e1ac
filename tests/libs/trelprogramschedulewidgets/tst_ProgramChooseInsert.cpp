#include "ChooserFixture.h"

#include "ScheduleText.h"

#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// The lines of the menu, from the top.
enum MenuLine { CutLine, DelayLine, UpLine, DownLine };

QStringList menuTexts()
{
    return {scheduleText("zhCutCurrentProg"), scheduleText("zhDelayInsert"),
            scheduleText("zhProgMoveUp"), scheduleText("zhProgMoveDown")};
}

QStringList greyed()
{
    QStringList texts;
    for (const QString& text : menuTexts()) {
        texts.append(QLatin1Char('(') + text + QLatin1Char(')'));
    }
    return texts;
}

QString refusal()
{
    return QLatin1String("tip: ") + scheduleText("zhCutProgWarnning");
}

QString joined(const QStringList& rows)
{
    return rows.join(QLatin1Char('|'));
}

QString names(const std::vector<struProgInfo>& programs)
{
    QString text;
    for (const struProgInfo& program : programs) {
        text += QString::fromStdString(program.progName);
    }
    return text;
}

/// A plan of A, B and C that is in use as it stands.
class InUseFixture : public ChooserFixture
{
public:
    explicit InUseFixture(std::vector<struProgInfo> programs = {entry(1, "A"), entry(2, "B"),
                                                                entry(3, "C")})
    {
        setPrograms(programs);
        service.planInUse = plan();
    }

    /// Opens the chooser, clicks on a line of a row's menu and cancels.
    ChooserOutcome trigger(int row, MenuLine menuLine)
    {
        return openExisting([this, row, menuLine](ChooserWindow& chooser) {
            service.clearLog();
            QCOMPARE(chooser.contextMenu(row, menuLine), menuTexts());
            message = chooser.message();
            chooser.cancel();
        });
    }

    /// The list that the one insertion handed over.
    QString inserted() const
    {
        return service.insertions.size() == 1 ? names(service.insertions.front().plan.programs)
                                              : QStringLiteral("not one insertion");
    }

    QString message;
};

} // namespace

/// The menu of a row of the plan, and the insertions into the plan in use.
class tst_ProgramChooseInsert : public QObject
{
    Q_OBJECT

private slots:
    void theMenuOfAGoodRow();
    void aBusyServiceGreysTheMenu();
    void theEmptySpaceGreysTheMenu();
    void aNewRowGreysTheMenu();
    void aPlanNotInUseGreysTheMenu();
    void aProgramThatIsGoneGreysTheMenu();
    void theLastEntryInUseDecides_data();
    void theLastEntryInUseDecides();
    void openingTheMenuReadsTheTableBack();
    void aGreyedMenuDoesNothing();
    void movingByTheMenu_data();
    void movingByTheMenu();
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

void tst_ProgramChooseInsert::theMenuOfAGoodRow()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        fixture.service.clearLog();
        QCOMPARE(chooser.contextMenu(1), menuTexts());
        QCOMPARE(fixture.service.log, (QStringList{QStringLiteral("getScheduleState()"),
                                                   QStringLiteral("getProgramItemByIndex(1)"),
                                                   QStringLiteral("getProgramItemByIndex(2)"),
                                                   QStringLiteral("getProgramItemByIndex(3)"),
                                                   QStringLiteral("getNowUsePlan(3, 7, -1)"),
                                                   QStringLiteral("getProgramItemByIndex(2)")}));
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::aBusyServiceGreysTheMenu()
{
    InUseFixture fixture;
    fixture.service.scheduleState = true;
    fixture.openExisting([&](ChooserWindow& chooser) {
        fixture.service.clearLog();
        QCOMPARE(chooser.contextMenu(1), greyed());
        // Nothing else is asked then.
        QCOMPARE(fixture.service.log, QStringList(QStringLiteral("getScheduleState()")));
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::theEmptySpaceGreysTheMenu()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        QCOMPARE(chooser.contextMenu(1), menuTexts());
        fixture.service.clearLog();
        QCOMPARE(chooser.contextMenu(3), greyed());
        QCOMPARE(fixture.service.edits(), QStringList(QStringLiteral("getScheduleState()")));
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::aNewRowGreysTheMenu()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.checkProgram(0);
        chooser.choose();
        QCOMPARE(chooser.contextMenu(3), greyed());
        QCOMPARE(chooser.contextMenu(0), menuTexts());
        // The mark travels with its row.
        chooser.checkPlan(3);
        chooser.moveUp();
        QCOMPARE(chooser.contextMenu(2), greyed());
        QCOMPARE(chooser.contextMenu(3), menuTexts());
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::aPlanNotInUseGreysTheMenu()
{
    InUseFixture fixture;
    fixture.service.planInUse.reset();
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.contextMenu(0), greyed());
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::aProgramThatIsGoneGreysTheMenu()
{
    InUseFixture fixture;
    fixture.service.programs.at(2).isNull = true;
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.contextMenu(1), greyed());
        QCOMPARE(chooser.contextMenu(0), menuTexts());
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::theLastEntryInUseDecides_data()
{
    QTest::addColumn<bool>("firstIsBad");
    QTest::addColumn<bool>("lastIsBad");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("both good") << false << false << true;
    QTest::newRow("first bad") << true << false << true;
    QTest::newRow("last bad") << false << true << false;
    QTest::newRow("both bad") << true << true << false;
}

void tst_ProgramChooseInsert::theLastEntryInUseDecides()
{
    QFETCH(bool, firstIsBad);
    QFETCH(bool, lastIsBad);
    QFETCH(bool, enabled);
    InUseFixture fixture;
    std::vector<struProgInfo>& inUse = fixture.service.planInUse->programs;
    inUse = {entry(2, "B"), badEntry(1, "A"), entry(2, "B"), badEntry(3, "C")};
    inUse[0].isInvalid = firstIsBad;
    inUse[2].isInvalid = lastIsBad;
    fixture.openExisting([&](ChooserWindow& chooser) {
        QCOMPARE(chooser.contextMenu(1), enabled ? menuTexts() : greyed());
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::openingTheMenuReadsTheTableBack()
{
    InUseFixture fixture;
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        chooser.setCount(0, 4);
        chooser.checkPlan(2);
        chooser.moveUp();
        chooser.contextMenu(3);
        chooser.cancel();
    });
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x4, 3 C x1, 2 B x1"));
}

void tst_ProgramChooseInsert::aGreyedMenuDoesNothing()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.contextMenu(1);
        fixture.service.scheduleState = true;
        const QStringList before = chooser.planRows();
        for (const int menuLine : {CutLine, DelayLine, UpLine, DownLine}) {
            fixture.service.clearLog();
            chooser.contextMenu(1, menuLine);
            QCOMPARE(fixture.service.log, QStringList(QStringLiteral("getScheduleState()")));
            QCOMPARE(chooser.planRows(), before);
        }
        // Nor by the actions themselves: nobody listens.
        chooser.withContextMenu(1, [](QMenu& menu) {
            for (QAction* action : menu.actions()) {
                action->trigger();
            }
        });
        QCOMPARE(chooser.planRows(), before);
        QVERIFY(fixture.service.insertions.empty());
        chooser.cancel();
    });
}

void tst_ProgramChooseInsert::movingByTheMenu_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("menuLine");
    QTest::addColumn<QString>("rows");
    QTest::newRow("up") << 1 << int(UpLine) << QStringLiteral("[ ]01 B x1|[ ]02 A x1|[x]03 C x1");
    QTest::newRow("down") << 1 << int(DownLine)
                          << QStringLiteral("[ ]01 A x1|[x]02 C x1|[ ]03 B x1");
    QTest::newRow("up from the top")
        << 0 << int(UpLine) << QStringLiteral("[ ]01 A x1|[ ]02 B x1|[x]03 C x1");
    QTest::newRow("down from the bottom")
        << 2 << int(DownLine) << QStringLiteral("[ ]01 A x1|[ ]02 B x1|[x]03 C x1");
}

void tst_ProgramChooseInsert::movingByTheMenu()
{
    QFETCH(int, row);
    QFETCH(int, menuLine);
    QFETCH(QString, rows);
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        // The row under the pointer moves, whichever is checked.
        chooser.checkPlan(2);
        fixture.service.clearLog();
        QCOMPARE(chooser.contextMenu(row, menuLine), menuTexts());
        QCOMPARE(joined(chooser.planRows()), rows);
        QCOMPARE(fixture.service.calls({QStringLiteral("getPlan"), QStringLiteral("getTask")}),
                 QStringList());
        chooser.cancel();
    });
}

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
    QCOMPARE(names(fixture.service.originals.front()), QStringLiteral("ABC"));
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
    QCOMPARE(names(fixture.service.insertions.back().plan.programs), QStringLiteral("CAB"));
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

QTEST_MAIN(tst_ProgramChooseInsert)

#include "tst_ProgramChooseInsert.moc"
