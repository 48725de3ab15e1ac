#include "StoreFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <functional>
#include <utility>
#include <vector>

using namespace trel::mediadispatch;

namespace {

using TaskMap = std::map<int, PlayTask>;
using Edit = std::function<void(PlayTask&)>;

/// One edit for each field that a task or a plan holds by itself.
std::vector<std::pair<const char*, Edit>> fieldEdits()
{
    const auto plan = [](auto field, auto value) {
        return [field, value](PlayTask& task) { task.plans.at(1).*field = value; };
    };
    return {{"first day", [](PlayTask& task) { task.startDate = "2025.01.01"; }},
            {"last day", [](PlayTask& task) { task.endDate.clear(); }},
            {"id", plan(&PlayPlan::id, 12)},
            {"mode", plan(&PlayPlan::mode, 1)},
            {"start", plan(&PlayPlan::startTime, "00:00:01")},
            {"end", plan(&PlayPlan::endTime, "")},
            {"times", plan(&PlayPlan::times, -4)},
            {"service count", plan(&PlayPlan::serviceCount, 5)},
            {"end action", plan(&PlayPlan::endAction, 6)},
            {"conflict", plan(&PlayPlan::isConflict, true)},
            {"weeks", plan(&PlayPlan::weeks, "1,2")},
            {"service time", plan(&PlayPlan::serviceTime, "?")},
            {"no duration", plan(&PlayPlan::hasNoDuration, false)},
            {"first flag", plan(&PlayPlan::serviceFlagA, false)},
            {"second flag", plan(&PlayPlan::serviceFlagB, true)},
            {"several", [](PlayTask& task) {
                 task.endDate = "2025.12.31";
                 task.plans.at(0).times = 1;
                 task.plans.at(2).weeks = "3";
             }}};
}

} // namespace

/// What is saved is found again.
class tst_ScheduleStore : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldSurvives();
    void aNewStoreIsEmpty();
    void everySaveReplacesTheSet();
    void editsOfSingleFieldsAreSaved_data();
    void editsOfSingleFieldsAreSaved();
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

void tst_ScheduleStore::editsOfSingleFieldsAreSaved_data()
{
    QTest::addColumn<int>("edit");
    int number = 0;
    for (const auto& [name, edit] : fieldEdits()) {
        QTest::newRow(name) << number++;
    }
}

void tst_ScheduleStore::editsOfSingleFieldsAreSaved()
{
    QFETCH(const int, edit);
    StoreFixture store;
    TaskMap tasks = {{1, everyFieldTask(1)}, {2, everyFieldTask(2)}, {3, everyFieldTask(3)}};
    store.save(tasks);
    fieldEdits().at(static_cast<std::size_t>(edit)).second(tasks.at(2));
    QVERIFY(store.manager.getgTaskMap() != tasks);
    store.save(tasks);
    QVERIFY(store.manager.getgTaskMap() == tasks);
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
