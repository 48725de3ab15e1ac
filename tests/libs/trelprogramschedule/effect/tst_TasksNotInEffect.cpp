#include "OtherProgram.h"
#include "StoreFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QSignalSpy>

using namespace trel::mediadispatch;

/// When the service compares what is saved with what is in effect, and when it tells that another
/// program has saved.
class tst_TasksNotInEffect : public QObject
{
    Q_OBJECT

private slots:
    void bothAreReadOnlyWhenOneIsAnother();
    void anotherStoreIsComparedAgain();
    void savesOfOthersAreTold();
    void ownSavesAreNotToldAsThoseOfOthers();

private:
    static std::set<int> differing(const StoreFixture& store)
    {
        std::set<int> taskIds;
        [&] { QVERIFY(store.host.tasksNotInEffect(taskIds)); }();
        return taskIds;
    }
    static void edit(StoreFixture& store, int taskId, const char* weeks)
    {
        PlayTask task = store.manager.getTask(taskId);
        task.plans[0].weeks = weeks;
        store.manager.addTask(task);
        QVERIFY(store.host.trySave());
    }
    /// A change that no revision tells of.
    static void run(const StoreFixture& store, const char* statement)
    {
        const auto connection = connectionTo(store.path);
        connection->run(QString::fromLatin1(statement));
    }
};

void tst_TasksNotInEffect::bothAreReadOnlyWhenOneIsAnother()
{
    StoreFixture store;
    store.save(sampleSchedule(3, 1, 0));
    store.manager.slotOpen();
    edit(store, 2, "2");
    QVERIFY(differing(store) == std::set<int>{2});
    run(store, "UPDATE effect_task SET start_date = '2001.01.01' WHERE id = 3");
    QVERIFY(differing(store) == std::set<int>{2});
    // An insertion is another revision of what is in effect, and none of its tasks.
    QVERIFY(store.host.insertPlan(1, store.manager.getTask(1).plans[0].id,
                                  store.manager.getTask(1).plans[0], false));
    QVERIFY(differing(store) == std::set<int>{2});
    edit(store, 1, "3");
    QVERIFY(differing(store) == std::set<int>({1, 2, 3}));
    store.manager.slotOpen();
    QVERIFY(differing(store).empty());
}

void tst_TasksNotInEffect::anotherStoreIsComparedAgain()
{
    StoreFixture store;
    store.save(sampleSchedule(3, 1, 0));
    store.manager.slotOpen();
    edit(store, 2, "2");
    QVERIFY(differing(store) == std::set<int>{2});
    const StoreResult opened = store.host.open(store.folder.filePath(QStringLiteral("second.db")));
    QVERIFY(opened);
    store.save(sampleSchedule(3, 1, 0));
    store.manager.slotOpen();
    edit(store, 3, "2");
    QVERIFY(differing(store) == std::set<int>{3});
}

void tst_TasksNotInEffect::savesOfOthersAreTold()
{
    StoreFixture store;
    store.save(sampleSchedule(3, 1, 0));
    store.host.followStore();
    QSignalSpy saved(&store.host, &ScheduleHost::savedElsewhere);
    QVERIFY(saved.isValid());
    OtherProgram other(store.path);
    other.save(sampleSchedule(2, 1, 0));
    QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, 5000);
    other.start();
    other.stop();
    QVERIFY(!saved.wait(1200));
    // A refresh of the list reads it, and tells nobody.
    other.save(sampleSchedule(1, 1, 0));
    QCOMPARE(store.manager.getgTaskMap().size(), 1U);
    QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 2, 5000);
    store.host.followStore(false);
}

void tst_TasksNotInEffect::ownSavesAreNotToldAsThoseOfOthers()
{
    StoreFixture store;
    store.save(sampleSchedule(3, 1, 0));
    store.host.followStore();
    QSignalSpy saved(&store.host, &ScheduleHost::savedElsewhere);
    store.restart();
    QVERIFY(!saved.wait(1200));
    edit(store, 2, "2");
    QVERIFY(!saved.wait(1200));
    QVERIFY(store.host.replaceSchedule(sampleSchedule(1, 1, 0)));
    QVERIFY(!saved.wait(1200));
    store.host.followStore(false);
}

TREL_TEST(tst_TasksNotInEffect, QCoreApplication)
#include "tst_TasksNotInEffect.moc"
