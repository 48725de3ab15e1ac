#include "StoreFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

using TaskMap = std::map<int, PlayTask>;

} // namespace

/// What is saved is found again.
class tst_ScheduleStore : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldSurvives();
    void aNewStoreIsEmpty();
    void everySaveReplacesTheSet();
    void catalogueSurvives();
};

void tst_ScheduleStore::everyFieldSurvives()
{
    StoreFixture store;
    const TaskMap tasks = {{-1, everyFieldTask(-1)},
                           {0, everyFieldTask(0)},
                           {7, everyFieldTask(7)},
                           {2147483647, everyFieldTask(2147483647)}};
    store.save(tasks);
    QVERIFY(store.manager.getgTaskMap() == tasks);
    store.restart();
    QVERIFY(store.manager.getgTaskMap() == tasks);
    QVERIFY(store.manager.getAllTask() == tasks);
}

void tst_ScheduleStore::aNewStoreIsEmpty()
{
    StoreFixture store;
    QVERIFY(store.manager.getgTaskMap().empty());
    QVERIFY(store.manager.getAllTask().empty());
    QVERIFY(store.manager.getPrograms().empty());
    QVERIFY(!store.host.hasUnsavedChanges());
}

void tst_ScheduleStore::everySaveReplacesTheSet()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    TaskMap tasks = sampleSchedule(4, 2, 3);
    store.save(tasks);

    // One task goes, one changes, one comes, one keeps its place with its plans the other way
    // round.
    store.manager.deleteTask(2);
    tasks.erase(2);
    tasks[3].plans.erase(tasks[3].plans.begin());
    tasks[9] = everyFieldTask(9);
    std::swap(tasks[4].plans[0], tasks[4].plans[1]);
    std::swap(tasks[4].plans[0].programs[0], tasks[4].plans[0].programs[2]);
    store.save(tasks);
    store.restart();
    QVERIFY(store.manager.getgTaskMap() == tasks);
}

void tst_ScheduleStore::catalogueSurvives()
{
    StoreFixture store;
    const std::vector<MediaSource> sources = {
        {QStringLiteral("节目 one"), QStringLiteral("rtsp://camera/节目"), 0.0, ProgramKind::Live},
        {QStringLiteral("two"), QStringLiteral("/no/such/file.mp4"), 1234.5678, ProgramKind::Video},
        {QStringLiteral("three"), QStringLiteral("/no/such/three"), -1.0, ProgramKind::Other}};
    const ImportResult result = store.host.addPrograms(sources);
    QVERIFY(result.store);
    QCOMPARE(result.added, (std::vector<int>{1, 2, 3}));
    store.restart();

    const std::map<int, ProgramIten> programs = store.manager.getPrograms();
    QCOMPARE(programs.size(), std::size_t(3));
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const ProgramIten& program = programs.at(static_cast<int>(i) + 1);
        QCOMPARE(program.progIndex, static_cast<int>(i) + 1);
        QCOMPARE(QString::fromStdString(program.progName), sources[i].name);
        QCOMPARE(QString::fromStdString(program.mediaPath), sources[i].path);
        QVERIFY(program.durationMs == sources[i].durationMs);
        QVERIFY(program.kind == sources[i].kind);
    }
    QVERIFY(!programs.at(1).isNull);
    QVERIFY(programs.at(2).isNull);
}

TREL_TEST(tst_ScheduleStore, QCoreApplication)
#include "tst_ScheduleStore.moc"
