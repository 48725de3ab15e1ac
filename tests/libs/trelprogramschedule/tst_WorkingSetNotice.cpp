#include "StoreFixture.h"
#include "support/PlanRecords.h"
#include "support/TaskRecords.h"

#include <QSignalSpy>

using namespace trel::mediadispatch;

namespace {

using Edit = void (*)(StoreFixture&);

} // namespace

Q_DECLARE_METATYPE(Edit)

/// The notice that hosts follow the working set by.
class tst_WorkingSetNotice : public QObject
{
    Q_OBJECT

private slots:
    void everyWayInIsTold_data();
    void everyWayInIsTold();
    void manyEditsAreToldOnce();
    void anEditWhileItIsToldIsToldAgain();
    void readingTellsNothing();
};

void tst_WorkingSetNotice::everyWayInIsTold_data()
{
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char* name, Edit edit) { QTest::newRow(name) << edit; };

    row("a task is put in", [](StoreFixture& store) {
        store.manager.addTask(makeTask(2, "2026.01.01", "2026.02.01"));
    });
    row("a task is taken out", [](StoreFixture& store) { store.manager.deleteTask(1); });
    row("a plan is put in",
        [](StoreFixture& store) { store.manager.addPlan(1, timePlan(1, "08:00:00", "09:00:00")); });
    row("the stored set is taken over", [](StoreFixture& store) { store.manager.updateUItask(); });
    row("editing begins afresh", [](StoreFixture& store) { store.manager.resetUiTask(); });
    row("another schedule", [](StoreFixture& store) { QVERIFY(store.host.replaceSchedule({})); });
    row("another store", [](StoreFixture& store) { store.restart(); });
    row("no store", [](StoreFixture& store) { store.host.close(); });
}

void tst_WorkingSetNotice::everyWayInIsTold()
{
    QFETCH(const Edit, edit);
    StoreFixture store;
    store.save({{1, makeTask(1, "2026.01.01", "2026.12.31")}});
    QCoreApplication::processEvents();
    const QSignalSpy told(&store.host, &ScheduleHost::workingSetChanged);
    QVERIFY(told.isValid());

    edit(store);
    QCOMPARE(told.count(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 1);
}

void tst_WorkingSetNotice::manyEditsAreToldOnce()
{
    const StoreFixture store;
    QCoreApplication::processEvents();
    const QSignalSpy told(&store.host, &ScheduleHost::workingSetChanged);
    QVERIFY(told.isValid());

    for (int id = 1; id <= 1000; ++id) {
        store.manager.addTask(makeTask(id, "2026.01.01", "2026.12.31"));
    }
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 1);
}

void tst_WorkingSetNotice::anEditWhileItIsToldIsToldAgain()
{
    const StoreFixture store;
    QCoreApplication::processEvents();
    int told = 0;
    const auto editOnce = [&] {
        if (++told == 1) {
            store.manager.addTask(makeTask(2, "2026.01.01", "2026.12.31"));
        }
    };
    QObject context;
    QObject::connect(&store.host, &ScheduleHost::workingSetChanged, &context, editOnce);

    store.manager.deleteTask(1);
    QTRY_COMPARE(told, 2);
    QCoreApplication::processEvents();
    QCOMPARE(told, 2);
}

void tst_WorkingSetNotice::readingTellsNothing()
{
    const StoreFixture store;
    QCoreApplication::processEvents();
    const QSignalSpy told(&store.host, &ScheduleHost::workingSetChanged);
    QVERIFY(told.isValid());

    store.manager.getAllTask();
    store.manager.getgTaskMap();
    store.manager.save();
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 0);
}

QTEST_GUILESS_MAIN(tst_WorkingSetNotice)
#include "tst_WorkingSetNotice.moc"
