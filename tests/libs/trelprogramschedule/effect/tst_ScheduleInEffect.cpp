#include "SignalCounts.h"
#include "dispatch/DispatchFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
using namespace trel::mediadispatch;

/// What the start button and an insertion do.
class tst_ScheduleInEffect : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsInEffectAtFirst();
    void startTakesTheStoredSet();
    void editsDoNotReachIt();
    void insertionTakesThePlaceOfThePlan_data();
    void insertionTakesThePlaceOfThePlan();
    void anInsertionGoesBackToThePlan();
    void aDelayedInsertionWaits();
    void aClockSetBackBeforeAnInsertion();
    void insertionsReplaceEachOther_data();
    void insertionsReplaceEachOther();
    void notImmediateIsDelayed();
    void anInsertionStandsForItsPlanOnly();
    void insertionOfAPlanThatIsNotInEffect();
    void theServiceAnnouncesNothing();
    void startDropsAnInsertion();
    void closingLeavesIt();
};

void tst_ScheduleInEffect::nothingIsInEffectAtFirst()
{
    StoreFixture store;
    store.save(sampleSchedule(1, 2, 0));
    QVERIFY(store.manager.getScheduleState());
    int index = -1;
    store.manager.getNowUsePlan(1, 1, index);
    QCOMPARE(index, -1);
}

void tst_ScheduleInEffect::startTakesTheStoredSet()
{
    StoreFixture store;
    const auto tasks = sampleSchedule(2, 2, 0);
    store.save(tasks);
    store.manager.slotOpen();
    QVERIFY(!store.manager.getScheduleState());
    int index = -1;
    QVERIFY(store.manager.getNowUsePlan(2, 2, index) == tasks.at(2).plans[1]);
    QCOMPARE(index, 1);
}

void tst_ScheduleInEffect::editsDoNotReachIt()
{
    StoreFixture store;
    const auto tasks = sampleSchedule(1, 1, 0);
    store.save(tasks);
    store.manager.slotOpen();
    store.manager.addPlan(1, samplePlan(2, 0));
    PlayPlan edited = tasks.at(1).plans[0];
    edited.weeks = "7";
    store.manager.addPlan(1, edited);
    QVERIFY(store.host.trySave());
    int index = -1;
    QVERIFY(store.manager.getNowUsePlan(1, 1, index) == tasks.at(1).plans[0]);
    QCOMPARE(index, 0);
    index = -1;
    store.manager.getNowUsePlan(1, 2, index);
    QCOMPARE(index, -1);
    store.manager.slotOpen();
    store.manager.getNowUsePlan(1, 2, index);
    QCOMPARE(index, 1);
}

void tst_ScheduleInEffect::insertionTakesThePlaceOfThePlan_data()
{
    QTest::addColumn<bool>("isDelayed");
    QTest::newRow("at once") << false;
    QTest::newRow("delayed") << true;
}

void tst_ScheduleInEffect::insertionTakesThePlaceOfThePlan()
{
    QFETCH(bool, isDelayed);
    // Before the plan's own time, when nothing plays that could be waited for.
    const TestClock clock(QDateTime({2024, 1, 1}, {7, 30}));
    StoreFixture store;
    const auto tasks = sampleSchedule(2, 3, 0);
    store.save(tasks);
    store.manager.slotOpen();
    PlayPlan inserted = tasks.at(1).plans[2];
    inserted.programs = {{7, false, "cut in", 1}};
    inserted.serviceFlagA = true;
    if (isDelayed) {
        store.manager.setInsertPlanTaskDelayExcute(1, 3, inserted);
    } else {
        store.manager.setInsertPlanTask(1, 3, inserted, true);
    }
    const std::vector<struProgInfo> original = {{1, false, "before", 2}};
    store.manager.passOriginalPlanProgInfo(original);

    int index = -1;
    QVERIFY(store.manager.getNowUsePlan(1, 3, index) == inserted);
    QCOMPARE(index, 2);
    QVERIFY(store.manager.getNowUsePlan(1, 2, index) == tasks.at(1).plans[1]);
    QVERIFY(store.manager.getNowUsePlan(2, 3, index) == tasks.at(2).plans[2]);
    QVERIFY(store.manager.getgTaskMap() == tasks);
    QVERIFY(store.manager.getAllTask() == tasks);
    QVERIFY(!store.host.hasUnsavedChanges());

    const ScreenInsertions& kept = store.host.dispatch().insertions();
    QCOMPARE(kept.size(), 1U);
    QVERIFY(kept[0].plan == inserted);
    QCOMPARE(kept[0].requested, clock.msecsSinceEpoch());
    QVERIFY(kept[0].original == original);
}

namespace {

/// The programs of the plan in use, as "AB".
QString inUse(DispatchFixture& fixture, int planId = 1)
{
    int index = -1;
    const PlayPlan plan = fixture.manager.getNowUsePlan(1, planId, index);
    QString letters;
    for (const struProgInfo& entry : plan.programs) {
        letters += letterOf(entry.progIndex);
    }
    return index < 0 ? QStringLiteral("none") : letters;
}

} // namespace

void tst_ScheduleInEffect::anInsertionGoesBackToThePlan()
{
    DispatchFixture fixture("08:00:12");
    fixture.saveAndStart("08:00:00-08:00:30 A B");
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    QCOMPARE(inUse(fixture), QStringLiteral("D"));
    QVERIFY(!fixture.manager.getScheduleState());
    fixture.clock.advance(17999);
    QCOMPARE(inUse(fixture), QStringLiteral("D"));
    fixture.clock.advance(1);
    QCOMPARE(inUse(fixture), QStringLiteral("AB"));
    QVERIFY(!fixture.manager.getScheduleState());
}

void tst_ScheduleInEffect::aDelayedInsertionWaits()
{
    DispatchFixture fixture("08:00:12");
    fixture.saveAndStart("08:00:00-08:00:30 A B");
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 D"));
    QVERIFY(fixture.manager.getScheduleState());
    QCOMPARE(inUse(fixture), QStringLiteral("AB"));
    fixture.clock.advance(1999);
    QVERIFY(fixture.manager.getScheduleState());
    QCOMPARE(inUse(fixture), QStringLiteral("AB"));
    fixture.clock.advance(1);
    QVERIFY(!fixture.manager.getScheduleState());
    QCOMPARE(inUse(fixture), QStringLiteral("D"));
}

void tst_ScheduleInEffect::aClockSetBackBeforeAnInsertion()
{
    DispatchFixture fixture("08:00:12");
    fixture.saveAndStart("08:00:00-08:00:30 A B");
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    fixture.clock.set(DispatchFixture::moment("08:00:11"));
    QCOMPARE(inUse(fixture), QStringLiteral("AB"));
    QVERIFY(!fixture.manager.getScheduleState());
    QCOMPARE(fixture.onScreen(), QStringLiteral("08:00:11 plays B to 08:00:12"));
    fixture.clock.advance(1000);
    QCOMPARE(inUse(fixture), QStringLiteral("D"));
}

void tst_ScheduleInEffect::insertionsReplaceEachOther_data()
{
    QTest::addColumn<bool>("isFirstDelayed");
    QTest::addColumn<bool>("isSecondDelayed");
    QTest::addColumn<QString>("shown");
    // At 08:00:12 B plays for two seconds more, and two seconds later D has four to go.
    QTest::newRow("at once behind at once") << false << false << QStringLiteral("B B B B");
    QTest::newRow("delayed behind at once") << false << true << QStringLiteral("D D B B");
    QTest::newRow("at once behind delayed") << true << false << QStringLiteral("B B B B");
    QTest::newRow("delayed behind delayed") << true << true << QStringLiteral("AB B B B");
}

void tst_ScheduleInEffect::insertionsReplaceEachOther()
{
    QFETCH(bool, isFirstDelayed);
    QFETCH(bool, isSecondDelayed);
    QFETCH(QString, shown);
    DispatchFixture fixture("08:00:12");
    fixture.saveAndStart("08:00:00-08:00:30 A B");
    fixture.manager.setInsertPlanTask(1, 1, fixture.inserted("08:00:00-08:00:30 D"),
                                      !isFirstDelayed);
    fixture.manager.setInsertPlanTask(1, 1, fixture.inserted("08:00:00-08:00:30 B"),
                                      !isSecondDelayed);
    QStringList seen;
    for (const int seconds : {0, 3, 3, 8}) {
        fixture.clock.advance(seconds * 1000);
        seen.append(inUse(fixture));
    }
    QCOMPARE(seen.join(QLatin1Char(' ')), shown);
}

void tst_ScheduleInEffect::notImmediateIsDelayed()
{
    DispatchFixture fixture("08:00:12");
    fixture.saveAndStart("08:00:00-08:00:30 A B");
    fixture.manager.setInsertPlanTask(1, 1, fixture.inserted("08:00:00-08:00:30 D"), false);
    QVERIFY(fixture.manager.getScheduleState());
    QCOMPARE(inUse(fixture), QStringLiteral("AB"));
}

void tst_ScheduleInEffect::anInsertionStandsForItsPlanOnly()
{
    DispatchFixture fixture("08:00:12");
    fixture.saveAndStart("08:00:00-08:00:30 A B / 10:00:00-10:00:30 A");
    PlayPlan later = fixture.inserted("10:00:00-10:00:30 D id=2");
    fixture.insert(later);
    QCOMPARE(inUse(fixture, 1), QStringLiteral("AB"));
    QCOMPARE(inUse(fixture, 2), QStringLiteral("D"));
    QCOMPARE(inUse(fixture, 3), QStringLiteral("none"));
}

void tst_ScheduleInEffect::theServiceAnnouncesNothing()
{
    DispatchFixture fixture("08:00:12");
    fixture.saveTask("08:00:00-08:00:30 A B");
    SignalCounts counts;
    QVERIFY(counts.isValid());
    fixture.manager.slotOpen();
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 B"));
    fixture.manager.passOriginalPlanProgInfo({});
    fixture.clock.advance(60000);
    fixture.clock.set(DispatchFixture::moment("07:00:00"));
    QCOMPARE(counts.take(), QString());
    QVERIFY(!fixture.host.hasUnsavedChanges());
}

void tst_ScheduleInEffect::insertionOfAPlanThatIsNotInEffect()
{
    const TestClock clock(QDateTime({2024, 1, 1}, {8, 30}));
    StoreFixture store;
    store.save(sampleSchedule(1, 1, 0));
    store.manager.setInsertPlanTask(1, 1, samplePlan(1, 2), true);
    store.manager.slotOpen();
    store.manager.setInsertPlanTask(1, 2, samplePlan(2, 2), true);
    store.manager.setInsertPlanTaskDelayExcute(5, 1, samplePlan(1, 2));
    store.manager.passOriginalPlanProgInfo({});
    int index = -1;
    QVERIFY(store.manager.getNowUsePlan(1, 1, index) == samplePlan(1, 0));
    index = -1;
    QVERIFY(store.manager.getNowUsePlan(1, 2, index) == PlayPlan());
    QCOMPARE(index, -1);
}

void tst_ScheduleInEffect::startDropsAnInsertion()
{
    const TestClock clock(QDateTime({2024, 1, 1}, {8, 30}));
    StoreFixture store;
    store.save(sampleSchedule(1, 1, 0));
    store.manager.slotOpen();
    store.manager.setInsertPlanTask(1, 1, samplePlan(1, 2), true);
    int index = -1;
    QVERIFY(store.manager.getNowUsePlan(1, 1, index) == samplePlan(1, 2));
    store.manager.slotOpen();
    QVERIFY(store.manager.getNowUsePlan(1, 1, index) == samplePlan(1, 0));
    QVERIFY(store.host.dispatch().insertions().empty());
}

void tst_ScheduleInEffect::closingLeavesIt()
{
    StoreFixture store;
    store.save(sampleSchedule(1, 1, 0));
    store.manager.slotOpen();
    store.host.close();
    QVERIFY(store.manager.getScheduleState());
    QVERIFY(!store.host.started());
    store.open();
    QVERIFY(!store.manager.getScheduleState());
    QVERIFY(store.host.started());
}

TREL_TEST(tst_ScheduleInEffect, QCoreApplication)
#include "tst_ScheduleInEffect.moc"
