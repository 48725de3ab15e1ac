#include "StoreFixture.h"
#include "support/PlanRecords.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
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
    void changedTasksAreNamed();
    void theWorkingSetIsSeenWithoutACopy();
    void programsAreSharedUntilTheyChange();
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

void tst_WorkingSetNotice::changedTasksAreNamed()
{
    StoreFixture store;
    for (int id = 1; id <= 4; ++id) {
        store.manager.addTask(makeTask(id, "2026.01.01", "2026.12.31"));
    }
    QVERIFY(store.host.trySave());
    QCoreApplication::processEvents();
    QStringList told;
    QObject context;
    const auto tell = [&told](const std::set<int>& ids) {
        QStringList numbers;
        for (const int id : ids) {
            numbers.append(QString::number(id));
        }
        told.append(numbers.join(QLatin1Char(' ')));
    };
    QObject::connect(&store.host, &ScheduleHost::workingTasksChanged, &context, tell);
    QObject::connect(&store.host, &ScheduleHost::workingSetChanged, &context,
                     [&told] { told.append(QStringLiteral("set")); });
    const auto takeTold = [&told] {
        QCoreApplication::processEvents();
        return std::exchange(told, {}).join(QStringLiteral(", "));
    };

    store.manager.addTask(makeTask(2, "2026.01.01", "2026.06.30"));
    store.manager.addTask(makeTask(3, "2026.01.01", "2026.12.31"));
    store.manager.addPlan(4, timePlan(1, "08:00:00", "09:00:00"));
    QCOMPARE(takeTold(), QStringLiteral("2 4, set"));
    store.manager.deleteTask(1);
    store.manager.deleteTask(7);
    QCOMPARE(takeTold(), QStringLiteral("1, set"));
    store.manager.updateUItask();
    QCOMPARE(takeTold(), QStringLiteral("1 2 4, set"));
    store.manager.updateUItask();
    QCOMPARE(takeTold(), QStringLiteral(", set"));
    store.host.close();
    QCOMPARE(takeTold(), QStringLiteral("1 2 3 4, set"));
}

void tst_WorkingSetNotice::theWorkingSetIsSeenWithoutACopy()
{
    const StoreFixture store;
    const auto& tasks = store.host.workingSet();
    QVERIFY(tasks.empty());
    store.manager.addTask(makeTask(2, "2026.01.01", "2026.12.31"));
    QVERIFY(&store.host.workingSet() == &tasks);
    QVERIFY(tasks == store.manager.getAllTask());
}

void tst_WorkingSetNotice::programsAreSharedUntilTheyChange()
{
    const StoreFixture store;
    const auto none = store.host.catalogue();
    QVERIFY(none != nullptr && none->empty());
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    const auto three = store.host.catalogue();
    QCOMPARE(three->size(), std::size_t{3});
    store.manager.getgTaskMap();
    QVERIFY(store.host.catalogue() == three);
    QVERIFY(store.host.removeProgram(2));
    QCOMPARE(store.host.catalogue()->size(), std::size_t{2});
    QCOMPARE(three->size(), std::size_t{3});
    QVERIFY(none->empty());
    store.host.close();
    QVERIFY(store.host.catalogue()->empty());
}

TREL_TEST(tst_WorkingSetNotice, QCoreApplication)
#include "tst_WorkingSetNotice.moc"
