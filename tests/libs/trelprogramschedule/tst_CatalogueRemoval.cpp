#include "SignalCounts.h"
#include "StoreFixture.h"
#include "store/ScheduleDatabase.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// The state that a store is in, as another program sees it.
StoreRevision revisionOf(const QString& path)
{
    ScheduleDatabase other;
    StoreRevision revision;
    [&] {
        QVERIFY(other.open(path, ScheduleHost::OpenMode::MustExist));
        QVERIFY(other.readRevision(revision));
    }();
    return revision;
}

} // namespace

/// Programs that are taken out many at a time, and a catalogue that is worked on without its
/// schedule.
class tst_CatalogueRemoval : public QObject
{
    Q_OBJECT

private slots:
    void manyAreOneChange();
    void oneProgramIsASetOfOne();
    void aScheduleThatIsTakenOverIsMarked();
    void nothingToRemoveIsNoChange();
    void besideAnotherEditor();
    void plansAreCountedInTheStore();
    void theScheduleStaysUnread();
    void theScheduleIsReadWhenItIsAskedFor();
};

void tst_CatalogueRemoval::manyAreOneChange()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(200)).store);
    store.save(sampleSchedule(1, 1, 3));
    std::vector<int> indexes = {2, 7777, -1, 2};
    for (int index = 100; index < 200; ++index) {
        indexes.push_back(index);
    }
    SignalCounts counts;
    QVERIFY(counts.isValid());
    const StoreRevision before = revisionOf(store.path);

    QVERIFY(store.host.removePrograms(indexes));

    QCOMPARE(counts.take(), QStringLiteral("programs, ends, catalogue"));
    const StoreRevision after = revisionOf(store.path);
    QCOMPARE(after.catalogue, before.catalogue + 1);
    QCOMPARE(after.schedule, before.schedule);
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(store.manager.getPrograms().size(), std::size_t(99));
        QVERIFY(store.manager.getProgramItemByIndex(2).isNull);
        QCOMPARE(store.manager.getProgramNameByProgIndex(150), std::string("program 150"));
        const PlayTask task = store.manager.getgTaskMap().at(1);
        QVERIFY(!task.plans[0].programs[0].isInvalid);
        QVERIFY(task.plans[0].programs[1].isInvalid);
        store.restart();
    }
}

/// A card that works out ends works out collisions too, so that no second signal comes for these.
void tst_CatalogueRemoval::oneProgramIsASetOfOne()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    SignalCounts counts;
    QVERIFY(counts.isValid());

    QVERIFY(store.host.removePrograms({2}));
    QCOMPARE(counts.take(), QStringLiteral("programs, ends, catalogue"));
    QVERIFY(store.host.removeProgram(1));
    QCOMPARE(counts.take(), QStringLiteral("programs, ends, catalogue"));
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(1));
}

void tst_CatalogueRemoval::aScheduleThatIsTakenOverIsMarked()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(1)).store);
    TaskMap tasks = sampleSchedule(1, 1, 2);
    tasks[1].plans[0].programs[0].progIndex = 1;
    tasks[1].plans[0].programs[1].progIndex = 2;
    QVERIFY(store.host.replaceSchedule(tasks));
    const PlayTask task = store.manager.getgTaskMap().at(1);
    QVERIFY(!task.plans[0].programs[0].isInvalid);
    QVERIFY(task.plans[0].programs[1].isInvalid);
}

void tst_CatalogueRemoval::nothingToRemoveIsNoChange()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(1)).store);
    SignalCounts counts;
    QVERIFY(counts.isValid());
    const StoreRevision before = revisionOf(store.path);

    QVERIFY(store.host.removePrograms({}));
    QVERIFY(store.host.removePrograms({2, 3, -5}));
    QCOMPARE(counts.take(), QString());
    QCOMPARE(revisionOf(store.path).catalogue, before.catalogue);
    store.host.close();
    QCOMPARE(store.host.removePrograms({1}).problem, StoreProblem::NotOpen);
}

void tst_CatalogueRemoval::besideAnotherEditor()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(6)).store);
    ScheduleDatabase other;
    StoreRevision revision;
    QVERIFY(other.open(store.path, ScheduleHost::OpenMode::MustExist));
    QVERIFY(other.removePrograms({1, 2}, revision));
    SignalCounts counts;
    QVERIFY(counts.isValid());

    QVERIFY(store.host.removePrograms({2, 3, 4}));
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(2));
    QCOMPARE(counts.take(), QStringLiteral("programs, ends, catalogue"));
}

void tst_CatalogueRemoval::plansAreCountedInTheStore()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(4)).store);
    // Two tasks of three plans with the programs 1 to 3 each.
    store.save(sampleSchedule(2, 3, 3));
    QCOMPARE(store.host.plansWith({}), 0);
    QCOMPARE(store.host.plansWith({4, 99}), 0);
    QCOMPARE(store.host.plansWith({2}), 6);
    QCOMPARE(store.host.plansWith({1, 2, 3, 4}), 6);

    PlayTask task = store.manager.getTask(1);
    task.plans[0].programs[0].isInvalid = true;
    task.plans[1].programs.clear();
    store.manager.addTask(task);
    QCOMPARE(store.host.plansWith({1}), 6);
    QVERIFY(store.host.trySave());
    QCOMPARE(store.host.plansWith({1}), 4);
    QCOMPARE(store.host.plansWith({1, 2}), 5);
    store.host.close();
    QCOMPARE(store.host.plansWith({1}), 0);
}

/// A schedule that could not be read is in no one's way.
void tst_CatalogueRemoval::theScheduleStaysUnread()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    store.save(sampleSchedule(2, 2, 2));
    store.host.close();
    {
        const auto connection = connectionTo(store.path);
        connection->run(QStringLiteral("UPDATE plan_value SET position = position + 1000"));
        connection->run(QStringLiteral("UPDATE entry SET position = position + 1000"));
    }
    QCOMPARE(store.host.open(store.path).problem, StoreProblem::Damaged);

    QVERIFY(store.host.openCatalogue(store.path));
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(3));
    QCOMPARE(store.host.plansWith({1}), 4);
    QVERIFY(store.host.removePrograms({1, 3}));
    QVERIFY(store.host.addPrograms(samplePrograms(1, 9)).store);
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(2));
    QVERIFY(store.manager.getAllTask().empty());
}

void tst_CatalogueRemoval::theScheduleIsReadWhenItIsAskedFor()
{
    StoreFixture store;
    const std::map<int, PlayTask> schedule = sampleSchedule(2, 2, 2);
    QVERIFY(store.host.addPrograms(samplePrograms(2)).store);
    store.save(schedule);
    store.host.close();

    QVERIFY(store.host.openCatalogue(store.path));
    QVERIFY(!store.host.hasUnsavedChanges());
    // What was not read cannot be overwritten.
    QCOMPARE(store.host.trySave().problem, StoreProblem::MovedOn);
    store.manager.addTask(everyFieldTask(9));
    QCOMPARE(store.host.trySave().problem, StoreProblem::MovedOn);
    QCOMPARE(store.host.replaceSchedule({}).problem, StoreProblem::MovedOn);

    QVERIFY(store.manager.getgTaskMap() == schedule);
    store.manager.updateUItask();
    QVERIFY(store.manager.getAllTask() == schedule);
    QVERIFY(store.host.trySave());
    store.restart();
    QVERIFY(store.manager.getgTaskMap() == schedule);

    QVERIFY(store.host.openCatalogue(store.folder.filePath(QStringLiteral("new.db"))));
    QVERIFY(store.manager.getgTaskMap().empty());
    QCOMPARE(store.host
                 .openCatalogue(store.folder.filePath(QStringLiteral("none.db")),
                                ScheduleHost::OpenMode::MustExist)
                 .problem,
             StoreProblem::FileMissing);
}

TREL_TEST(tst_CatalogueRemoval, QCoreApplication)
#include "tst_CatalogueRemoval.moc"
