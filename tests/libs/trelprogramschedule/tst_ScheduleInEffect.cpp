#include "ScheduleService.h"
#include "StoreFixture.h"

#include <QtTest>

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
    void insertionOfAPlanThatIsNotInEffect();
    void startDropsAnInsertion();
    void closingEndsIt();
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

    const auto& kept = ScheduleService::instance().state().inEffect.insertion();
    QVERIFY(kept.has_value());
    QCOMPARE(kept->isDelayed, isDelayed);
    QVERIFY(kept->original == original);
}

void tst_ScheduleInEffect::insertionOfAPlanThatIsNotInEffect()
{
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
    StoreFixture store;
    store.save(sampleSchedule(1, 1, 0));
    store.manager.slotOpen();
    store.manager.setInsertPlanTask(1, 1, samplePlan(1, 2), true);
    store.manager.slotOpen();
    int index = -1;
    QVERIFY(store.manager.getNowUsePlan(1, 1, index) == samplePlan(1, 0));
}

void tst_ScheduleInEffect::closingEndsIt()
{
    StoreFixture store;
    store.save(sampleSchedule(1, 1, 0));
    store.manager.slotOpen();
    store.restart();
    QVERIFY(store.manager.getScheduleState());
}

QTEST_GUILESS_MAIN(tst_ScheduleInEffect)
#include "tst_ScheduleInEffect.moc"
