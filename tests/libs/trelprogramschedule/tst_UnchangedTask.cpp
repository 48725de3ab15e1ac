#include "StoreFixture.h"
#include "store/ScheduleDatabase.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QtTest>

using namespace trel::mediadispatch;

/// What the service makes of tasks that are put in as they were, as cards do time and again.
class tst_UnchangedTask : public QObject
{
    Q_OBJECT

private slots:
    void isToldToNobody();
    void isNotSaved();
    void anyOtherFieldCounts();
    void aTaskThatIsPutBackIsNoEdit();
};

void tst_UnchangedTask::isToldToNobody()
{
    StoreFixture store;
    store.save(sampleSchedule(3, 2, 2));
    QCoreApplication::processEvents();
    const QSignalSpy told(&store.host, &ScheduleHost::workingSetChanged);
    QVERIFY(told.isValid());

    for (const auto& [id, task] : store.manager.getAllTask()) {
        store.manager.addTask(task);
    }
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 0);
    store.manager.addTask(everyFieldTask(3));
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 1);
}

void tst_UnchangedTask::isNotSaved()
{
    StoreFixture store;
    store.save(sampleSchedule(3, 2, 2));
    ScheduleDatabase other;
    QVERIFY(other.open(store.path, ScheduleHost::OpenMode::MustExist));
    StoreRevision before;
    QVERIFY(other.readRevision(before));

    for (const auto& [id, task] : store.manager.getAllTask()) {
        store.manager.addTask(task);
    }
    QVERIFY(!store.host.hasUnsavedChanges());
    QVERIFY(store.host.trySave());
    StoreRevision after;
    QVERIFY(other.readRevision(after));
    QCOMPARE(after.schedule, before.schedule);
}

void tst_UnchangedTask::anyOtherFieldCounts()
{
    StoreFixture store;
    const PlayTask task = everyFieldTask(1);
    store.save({{1, task}});
    PlayTask other = task;
    other.plans[1].serviceList.push_back(7);
    store.manager.addTask(other);
    QVERIFY(store.manager.getTask(1) == other);
    QVERIFY(store.host.hasUnsavedChanges());
    other.plans[1].isConflict = !other.plans[1].isConflict;
    store.manager.addTask(other);
    QVERIFY(store.manager.getTask(1) == other);
    QVERIFY(store.host.trySave());
    store.restart();
    QVERIFY(store.manager.getTask(1) == other);
}

void tst_UnchangedTask::aTaskThatIsPutBackIsNoEdit()
{
    StoreFixture store;
    const PlayTask task = everyFieldTask(1);
    store.save({{1, task}});
    store.manager.deleteTask(1);
    QVERIFY(store.host.hasUnsavedChanges());
    store.manager.addTask(task);
    QVERIFY(!store.host.hasUnsavedChanges());
    QVERIFY(store.host.trySave());
    store.restart();
    QVERIFY(store.manager.getTask(1) == task);
}

TREL_TEST(tst_UnchangedTask, QCoreApplication)
#include "tst_UnchangedTask.moc"
