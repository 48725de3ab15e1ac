#include "ChooserFixture.h"
#include "support/TestProgram.h"

#include "ScheduleText.h"
#include "trelwidgets/Dialog.h"

#include <QApplication>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

QString joined(const QStringList& lines)
{
    return lines.join(QLatin1Char('|'));
}

std::vector<struProgInfo> abc()
{
    return {entry(1, "A"), entry(2, "B"), entry(3, "C")};
}

void acceptFrame(const ChooserWindow& chooser)
{
    emit qobject_cast<trel::widgets::Dialog*>(chooser.frame())->signalAccept();
}

} // namespace

/// What confirming writes, what the other ways out leave, and what the caller finds.
class tst_ProgramChooseSaving : public QObject
{
    Q_OBJECT

private slots:
    void anExistingPlanIsStored();
    void aPlanThatIsGoneIsNotStored();
    void onlyMinusOneMeansGone();
    void aNewPlanIsOnlyHandedBack();
    void waysOutThatStoreNothing_data();
    void waysOutThatStoreNothing();
    void aPlayCountAloneIsStored();
    void aMoveIsStored();
    void theRestOfThePlanStays();
    void theCallersTaskIsRefreshed();
    void aNullProgramIsStoredUnderItsShownName();
    void aTombstoneSurvives();
    void theBoundOfTheReadBack_data();
    void theBoundOfTheReadBack();
    void programsWithoutLength_data();
    void programsWithoutLength();
    void theFrameAcceptsWithoutConfirming();
    void theFrameAcceptsAnEmptyList();
    void theFrameAcceptsForANewPlan();
    void slotCancelClosesTheFrame();
};

void tst_ProgramChooseSaving::anExistingPlanIsStored()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.checkProgram(4);
        chooser.choose();
        chooser.checkPlan(0);
        chooser.remove();
        fixture.service.clearLog();
        chooser.confirm();
        QVERIFY(!chooser.frame()->isVisible());
        QCOMPARE(joined(fixture.service.log),
                 QStringLiteral("getProgramItemByIndex(2)|getProgramItemByIndex(3)|"
                                "getProgramItemByIndex(5)|getPlan(3, 7, -1)|"
                                "isNoDurationType(2)|isNoDurationType(3)|isNoDurationType(5)|"
                                "addPlan(3, %1)|getTask(3)")
                     .arg(line(fixture.plan())));
    });
    QCOMPARE(outcome.result, 0);
    QCOMPARE(outcome.textBefore, QStringLiteral("A,B,C"));
    QCOMPARE(outcome.text, QStringLiteral("B,C,E"));
    QCOMPARE(line(outcome.programs), QStringLiteral("2 B x1, 3 C x1, 5 E x1"));
    QCOMPARE(line(fixture.plan().programs), QStringLiteral("2 B x1, 3 C x1, 5 E x1"));
}

void tst_ProgramChooseSaving::aPlanThatIsGoneIsNotStored()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const PlayTask before = fixture.task;
    const ChooserOutcome outcome = fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.setCount(0, 2);
        fixture.service.working.clear();
        fixture.service.clearLog();
        chooser.confirm();
        QCOMPARE(fixture.service.edits(), QStringList(QStringLiteral("getPlan(3, 7, -1)")));
    });
    QCOMPARE(outcome.result, 0);
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x2, 2 B x1, 3 C x1"));
    QVERIFY(fixture.task == before);
}

void tst_ProgramChooseSaving::onlyMinusOneMeansGone()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.service.missingPlanIndex = -2;
    fixture.openExisting([&](ChooserWindow& chooser) {
        fixture.service.working.at(ChooserFixture::kTask).plans.clear();
        fixture.service.clearLog();
        chooser.confirm();
    });
    QCOMPARE(fixture.service.addedPlans.size(), std::size_t(1));
    QCOMPARE(line(fixture.service.addedPlans.front().second.programs),
             QStringLiteral("1 A x1, 2 B x1, 3 C x1"));
}

void tst_ProgramChooseSaving::aNewPlanIsOnlyHandedBack()
{
    ChooserFixture fixture;
    const PlayTask before = fixture.task;
    const ChooserOutcome outcome = fixture.openNew([&](ChooserWindow& chooser) {
        chooser.checkPrograms({3, 0});
        chooser.choose();
        chooser.setCount(1, 6);
        fixture.service.clearLog();
        chooser.confirm();
        QCOMPARE(joined(fixture.service.log),
                 QStringLiteral("getProgramItemByIndex(4)|getProgramItemByIndex(1)|"
                                "isNoDurationType(4)|isNoDurationType(1)"));
    });
    QCOMPARE(outcome.result, 0);
    QCOMPARE(outcome.text, QStringLiteral("D,A"));
    QCOMPARE(line(outcome.programs), QStringLiteral("4 D x1, 1 A x6"));
    QVERIFY(fixture.task == before);
    QVERIFY(fixture.service.working.at(ChooserFixture::kTask) == before);
}

void tst_ProgramChooseSaving::waysOutThatStoreNothing_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("cancel button") << QStringLiteral("cancel");
    QTest::newRow("close button of the frame") << QStringLiteral("close");
    QTest::newRow("escape") << QStringLiteral("escape");
}

void tst_ProgramChooseSaving::waysOutThatStoreNothing()
{
    QFETCH(QString, way);
    for (const bool isNew : {false, true}) {
        ChooserFixture fixture;
        fixture.setPrograms(abc());
        const PlayTask before = fixture.task;
        const auto steps = [&](ChooserWindow& chooser) {
            chooser.checkProgram(5);
            chooser.choose();
            fixture.service.clearLog();
            if (way == QLatin1String("cancel")) {
                chooser.cancel();
            } else if (way == QLatin1String("close")) {
                chooser.close();
            } else {
                QTest::keyClick(chooser.chooser(), Qt::Key_Escape);
            }
            QVERIFY(!chooser.frame()->isVisible());
        };
        const ChooserOutcome outcome = isNew ? fixture.openNew(steps) : fixture.openExisting(steps);
        QCOMPARE(outcome.result, 2);
        QVERIFY(!outcome.hasNoDuration);
        QCOMPARE(fixture.service.edits(), QStringList());
        QVERIFY(fixture.task == before);
    }
}

void tst_ProgramChooseSaving::aPlayCountAloneIsStored()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.setCount(1, 12);
        chooser.confirm();
    });
    QCOMPARE(line(fixture.plan().programs), QStringLiteral("1 A x1, 2 B x12, 3 C x1"));
}

void tst_ProgramChooseSaving::aMoveIsStored()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkPlan(2);
        chooser.moveUp();
        chooser.confirm();
    });
    QCOMPARE(line(fixture.plan().programs), QStringLiteral("1 A x1, 3 C x1, 2 B x1"));
    QCOMPARE(outcome.text, QStringLiteral("A,C,B"));
}

void tst_ProgramChooseSaving::theRestOfThePlanStays()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    PlayPlan& plan = fixture.plan();
    plan.mode = FrequencyMode;
    plan.times = 4;
    plan.serviceCount = 9;
    plan.endAction = FreezeCurrentFrame;
    plan.isConflict = true;
    plan.serviceTime = "23:59:59";
    plan.serviceFlagA = true;
    plan.serviceFlagB = true;
    PlayPlan expected = plan;
    expected.serviceList.clear();
    fixture.openExisting([](ChooserWindow& chooser) { chooser.confirm(); });
    QVERIFY(fixture.service.addedPlans.front().second == expected);
    QCOMPARE(fixture.service.addedPlans.front().first, ChooserFixture::kTask);
}

void tst_ProgramChooseSaving::theCallersTaskIsRefreshed()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    // The service has got on since the caller took its copy.
    PlayPlan other;
    other.id = 8;
    fixture.service.working.at(ChooserFixture::kTask).plans.push_back(other);
    fixture.service.working.at(ChooserFixture::kTask).endDate = "2025.06.30";
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.setCount(0, 2);
        chooser.confirm();
    });
    QVERIFY(fixture.task == fixture.service.working.at(ChooserFixture::kTask));
    QCOMPARE(fixture.task.plans.size(), std::size_t(2));
    QCOMPARE(fixture.task.endDate, std::string("2025.06.30"));
}

void tst_ProgramChooseSaving::aNullProgramIsStoredUnderItsShownName()
{
    ChooserFixture fixture;
    fixture.service.programs.at(2).isNull = true;
    fixture.setPrograms(abc());
    const QString suffix = scheduleText("szProgNullStr");
    const ChooserOutcome outcome =
        fixture.openExisting([](ChooserWindow& chooser) { chooser.confirm(); });
    QCOMPARE(line(fixture.plan().programs), QStringLiteral("1 A x1, 2 B%1 x1, 3 C x1").arg(suffix));
    // Shown once all the same, as the name comes from the catalogue.
    QCOMPARE(outcome.text, QStringLiteral("A,B%1,C").arg(suffix));
}

void tst_ProgramChooseSaving::aTombstoneSurvives()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A"), badEntry(2, "Old")});
    const QString name = QLatin1String("Old") + scheduleText("szInvalidStr");
    for (int round = 0; round < 2; ++round) {
        const ChooserOutcome outcome =
            fixture.openExisting([](ChooserWindow& chooser) { chooser.confirm(); });
        QCOMPARE(line(fixture.plan().programs), QStringLiteral("1 A x1, !65536 %1 x1").arg(name));
        QCOMPARE(outcome.text, QLatin1String("A,") + name);
    }
}

void tst_ProgramChooseSaving::theBoundOfTheReadBack_data()
{
    QTest::addColumn<int>("progIndex");
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<bool>("isInvalid");
    QTest::newRow("gone, below") << 65534 << true << false;
    QTest::newRow("gone, at the bound") << 65535 << true << true;
    QTest::newRow("gone, above") << 65536 << true << true;
    QTest::newRow("there, at the bound") << 65535 << false << false;
    QTest::newRow("there, above") << 70000 << false << false;
}

void tst_ProgramChooseSaving::theBoundOfTheReadBack()
{
    QFETCH(int, progIndex);
    QFETCH(bool, isNull);
    ChooserFixture fixture;
    fixture.service.addProgram(progIndex, "Far", 1.0).isNull = isNull;
    // Not bad when the dialog opens.
    fixture.setPrograms({entry(progIndex, "Far")});
    fixture.openExisting([](ChooserWindow& chooser) { chooser.confirm(); });
    QTEST(fixture.plan().programs.front().isInvalid, "isInvalid");
    QCOMPARE(fixture.plan().programs.front().progIndex, progIndex);
}

void tst_ProgramChooseSaving::programsWithoutLength_data()
{
    QTest::addColumn<bool>("isNew");
    QTest::addColumn<int>("noDuration");
    QTest::addColumn<bool>("hasNoDuration");
    QTest::addColumn<int>("asked");
    QTest::newRow("existing, none") << false << 6 << false << 2;
    QTest::newRow("existing, first") << false << 2 << true << 1;
    QTest::newRow("existing, last") << false << 1 << true << 2;
    QTest::newRow("new, none") << true << 6 << false << 2;
    QTest::newRow("new, first") << true << 2 << true << 1;
    QTest::newRow("new, last") << true << 1 << true << 2;
}

void tst_ProgramChooseSaving::programsWithoutLength()
{
    QFETCH(bool, isNew);
    QFETCH(int, noDuration);
    QFETCH(bool, hasNoDuration);
    QFETCH(int, asked);
    ChooserFixture fixture;
    fixture.plan().hasNoDuration = !hasNoDuration;
    fixture.service.noDuration = {noDuration};
    const auto steps = [](ChooserWindow& chooser) {
        chooser.checkPrograms({1, 0});
        chooser.choose();
        chooser.confirm();
    };
    const ChooserOutcome outcome = isNew ? fixture.openNew(steps) : fixture.openExisting(steps);
    QCOMPARE(outcome.hasNoDuration, hasNoDuration);
    QCOMPARE(fixture.service.count(QStringLiteral("isNoDurationType")), asked);
    if (!isNew) {
        QCOMPARE(fixture.plan().hasNoDuration, hasNoDuration);
    }
}

void tst_ProgramChooseSaving::theFrameAcceptsWithoutConfirming()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.setCount(2, 3);
        acceptFrame(chooser);
        // Stored, but open still; only what stood inside has gone.
        QCOMPARE(line(fixture.plan().programs), QStringLiteral("1 A x1, 2 B x1, 3 C x3"));
        QVERIFY(chooser.frame()->isVisible());
        QVERIFY(!chooser.chooser()->isVisible());
        chooser.close();
    });
    QCOMPARE(outcome.result, 2);
    QVERIFY(fixture.task == fixture.service.working.at(ChooserFixture::kTask));
}

void tst_ProgramChooseSaving::theFrameAcceptsAnEmptyList()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkAllPlan();
        chooser.remove();
        chooser.confirm();
        QVERIFY(chooser.chooser()->isVisible());
        acceptFrame(chooser);
        chooser.close();
    });
    QCOMPARE(fixture.service.addedPlans.size(), std::size_t(1));
    QVERIFY(fixture.plan().programs.empty());
}

void tst_ProgramChooseSaving::theFrameAcceptsForANewPlan()
{
    ChooserFixture fixture;
    fixture.service.noDuration = {1};
    const ChooserOutcome outcome = fixture.openNew([](ChooserWindow& chooser) {
        chooser.checkProgram(0);
        chooser.choose();
        acceptFrame(chooser);
        chooser.close();
    });
    QCOMPARE(outcome.result, 2);
    QVERIFY(outcome.hasNoDuration);
    QCOMPARE(fixture.service.edits(), QStringList());
}

void tst_ProgramChooseSaving::slotCancelClosesTheFrame()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        qobject_cast<ProgramChoose*>(chooser.chooser())->slotCancel();
        QVERIFY(!chooser.frame()->isVisible());
    });
    QCOMPARE(outcome.result, 2);
}

TREL_TEST(tst_ProgramChooseSaving, QApplication)

#include "tst_ProgramChooseSaving.moc"
