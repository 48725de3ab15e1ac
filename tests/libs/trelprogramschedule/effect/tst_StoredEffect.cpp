#include "OtherProgram.h"
#include "SignalCounts.h"
#include "dispatch/DispatchFixture.h"
#include "store/StoreSchema.h"
#include "store/sqlite/SqliteConnection.h"
#include "support/FolderSnapshot.h"
#include "support/TestProgram.h"
#include "json/ScheduleJson.h"

#include <QCoreApplication>
#include <QSignalSpy>

using namespace trel::mediadispatch;

/// The schedule in effect as a thing of the store: what outlasts a program, and what several
/// programs agree on.
class tst_StoredEffect : public QObject
{
    Q_OBJECT

private slots:
    void goesOnAfterARestart();
    void everyFieldIsKept();
    void whoStartedIt();
    void startTakesWhatTheStoreHas();
    void stopIsForEverybody();
    void stopWithNothingInEffectIsNone();
    void tasksThatWereSavedSince();
    void insertionsComeOneAfterTheOther();
    void theOriginalIsKeptWithItsInsertion();
    void theOriginalOfAnInsertionThatHasGone();
    void anInsertionThatWaitsIsTakenBack();
    void anInsertionOnScreenIsEnded();
    void nothingToTakeBackWritesNothing();
    void othersAreFollowed_data();
    void othersAreFollowed();
    void nothingIsFollowedUnasked();
    void refusalsLeaveItAsItWas();
    void aStoreThatIsOnlyReadShowsIt();
    void aRehearsalEndsWithAStart();
    void versionOneIsTakenOver();
    void versionOneIsReadUnchanged();
    void aDamagedVersionOneStaysAsItIs();
    void whatDoesNotFitIsDamage_data();
    void whatDoesNotFitIsDamage();
};

namespace {

const char* const kPlan = "08:00:00-08:00:30 A B freeze";

auto instantsOf(const ScreenInsertion& insertion)
{
    return std::make_tuple(insertion.requested, insertion.begins, insertion.ends);
}

QString versionOne()
{
    return QFINDTESTDATA("../stores/store-1.db");
}

} // namespace

void tst_StoredEffect::goesOnAfterARestart()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 A"));
    const QString before = fixture.onScreen();
    const ScreenInsertions insertions = fixture.dispatch.insertions();
    QCOMPARE(insertions.size(), 2U);

    fixture.host.close();
    QVERIFY(!fixture.dispatch.isRunning());
    fixture.takeTold();
    fixture.open();
    QCOMPARE(fixture.takeTold(), QStringList{before});
    QCOMPARE(fixture.onScreen(), before);
    const ScreenInsertions& after = fixture.dispatch.insertions();
    QCOMPARE(after.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        QCOMPARE(instantsOf(after[i]), instantsOf(insertions[i]));
        QVERIFY(after[i].plan == insertions[i].plan);
        QCOMPARE(after[i].number, insertions[i].number);
    }
    QVERIFY(fixture.manager.getScheduleState());
}

void tst_StoredEffect::everyFieldIsKept()
{
    StoreFixture store;
    const std::map<int, PlayTask> tasks = {{3, everyFieldTask(3)}, {7, everyFieldTask(7)}};
    store.save(tasks);
    store.manager.slotOpen();
    PlayPlan inserted = everyFieldTask(4).plans[0];
    inserted.serviceFlagB = false;
    store.manager.setInsertPlanTask(3, tasks.at(3).plans[0].id, inserted, true);
    const std::vector<struProgInfo> original = everyFieldTask(9).plans[1].programs;
    store.manager.passOriginalPlanProgInfo(original);
    OtherProgram other(store.path);
    const StoredEffect effect = other.effect();
    QVERIFY(effect.tasks == tasks);
    QCOMPARE(effect.insertions.size(), 1U);
    QVERIFY(effect.insertions[0].plan == inserted);
    QVERIFY(effect.insertions[0].original == original);
    QCOMPARE(effect.insertions[0].taskId, 3);
    QCOMPARE(effect.insertions[0].planId, tasks.at(3).plans[0].id);
}

void tst_StoredEffect::whoStartedIt()
{
    const TestClock clock(QDateTime({2024, 1, 1}, {8, 30}));
    StoreFixture store;
    QVERIFY(!store.host.started());
    store.save(sampleSchedule(1, 1, 0));
    store.save(sampleSchedule(2, 1, 0));
    QVERIFY(store.host.startSchedule());
    const auto started = store.host.started();
    QVERIFY(started);
    QCOMPARE(started->since, clock.msecsSinceEpoch());
    QCOMPARE(started->saved, 2);
    QVERIFY(started->by.startsWith(QCoreApplication::applicationName() + QLatin1Char('@')));
    store.restart();
    QVERIFY(store.host.started() == started);
    QVERIFY(store.host.stopSchedule());
    QVERIFY(!store.host.started());
}

void tst_StoredEffect::startTakesWhatTheStoreHas()
{
    StoreFixture store;
    store.save(sampleSchedule(1, 1, 0));
    ScheduleDatabase other;
    QVERIFY(other.open(store.path, StoreOpenMode::MustExist));
    const TaskMap newest = sampleSchedule(3, 1, 0, 1);
    StoreContents contents;
    QVERIFY(other.read(StorePart::Schedule, contents));
    qint64 revision = contents.revision.schedule;
    QVERIFY(other.writeTasks(newest, editsBetween(contents.tasks, newest), revision));
    store.manager.slotOpen();
    QVERIFY(store.host.dispatch().tasks() == newest);
    QCOMPARE(store.host.started()->saved, revision);
}

void tst_StoredEffect::stopIsForEverybody()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    OtherProgram other(fixture.path);
    QVERIFY(other.effect().start);
    QSignalSpy changed(&fixture.host, &ScheduleHost::effectChanged);
    QVERIFY(changed.isValid());
    fixture.takeTold();
    QVERIFY(fixture.host.stopSchedule());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 black"}));
    const StoredEffect effect = other.effect();
    QVERIFY(!effect.start);
    QVERIFY(effect.tasks.empty());
    QVERIFY(effect.insertions.empty());
    fixture.restart();
    QVERIFY(!fixture.dispatch.isRunning());
}

void tst_StoredEffect::stopWithNothingInEffectIsNone()
{
    StoreFixture store;
    store.save(sampleSchedule(1, 1, 0));
    QVERIFY(store.host.stopSchedule());
    QVERIFY(store.manager.getgTaskMap() == sampleSchedule(1, 1, 0));
    QVERIFY(!store.host.started());
}

void tst_StoredEffect::tasksThatWereSavedSince()
{
    StoreFixture store;
    auto tasks = sampleSchedule(4, 1, 0);
    store.save(tasks);
    std::set<int> others = {99};
    QVERIFY(store.host.tasksNotInEffect(others));
    QVERIFY(others.empty());
    store.manager.slotOpen();
    QVERIFY(store.host.tasksNotInEffect(others));
    QVERIFY(others.empty());

    tasks.at(1).plans[0].weeks = "2";
    tasks.at(3).plans[0].isConflict = !tasks.at(3).plans[0].isConflict;
    store.manager.deleteTask(2);
    store.manager.addTask(tasks.at(1));
    store.manager.addTask(tasks.at(3));
    store.manager.addTask(everyFieldTask(9));
    // What is only edited differs from what is saved, and not what is saved from what is in effect.
    QVERIFY(store.host.tasksNotInEffect(others));
    QVERIFY(others.empty());
    QVERIFY(store.host.trySave());
    QVERIFY(store.host.tasksNotInEffect(others));
    QVERIFY(others == std::set<int>({1, 2, 9}));
    store.restart();
    QVERIFY(store.host.tasksNotInEffect(others));
    QVERIFY(others == std::set<int>({1, 2, 9}));
    store.manager.slotOpen();
    QVERIFY(store.host.tasksNotInEffect(others));
    QVERIFY(others.empty());
}

void tst_StoredEffect::insertionsComeOneAfterTheOther()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    OtherProgram other(fixture.path);
    // The other program has cut in while this one still believes that nothing is.
    StoredEffect effect = other.effect();
    ScreenInsertion first;
    first.taskId = 1;
    first.planId = 1;
    first.plan = fixture.inserted("08:00:00-08:00:30 D");
    effect.insertions = fixture.dispatch.timeline().withInsertion(
        {}, first, fixture.clock.msecsSinceEpoch(), false);
    QVERIFY(other.write(effect.insertions, effect.revision));
    // Refused for who has not seen it.
    QVERIFY(other.write({}, effect.revision).problem == StoreProblem::MovedOn);

    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 A"));
    const ScreenInsertions& seen = fixture.dispatch.insertions();
    QCOMPARE(seen.size(), 2U);
    QVERIFY(seen[0].plan == first.plan);
    // It waits for the end of the other's program, and not for that of the plan's.
    QCOMPARE(seen[1].begins, fixture.clock.msecsSinceEpoch() + 6000);
    QCOMPARE(seen[0].ends, seen[1].begins);
    QVERIFY(seen[0].number < seen[1].number);
    const StoredEffect stored = other.effect();
    QCOMPARE(stored.insertions.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        QCOMPARE(instantsOf(stored.insertions[i]), instantsOf(seen[i]));
    }
}

void tst_StoredEffect::theOriginalIsKeptWithItsInsertion()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    OtherProgram other(fixture.path);
    StoredEffect effect = other.effect();
    // The other's insertion waits behind this one, whose list comes only now.
    ScreenInsertion second;
    second.taskId = 1;
    second.planId = 1;
    second.plan = fixture.inserted("08:00:00-08:00:30 A");
    effect.insertions = fixture.dispatch.timeline().withInsertion(
        effect.insertions, second, fixture.clock.msecsSinceEpoch(), true);
    QVERIFY(other.write(effect.insertions, effect.revision));
    const std::vector<struProgInfo> original = {{1, false, "before", 2}};
    fixture.manager.passOriginalPlanProgInfo(original);
    const StoredEffect stored = other.effect();
    QCOMPARE(stored.insertions.size(), 2U);
    QVERIFY(stored.insertions[0].original == original);
    QVERIFY(stored.insertions[1].original.empty());
}

void tst_StoredEffect::theOriginalOfAnInsertionThatHasGone()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    OtherProgram other(fixture.path);
    other.start();
    StoredEffect effect = other.effect();
    ScreenInsertion another;
    another.taskId = 1;
    another.planId = 1;
    another.plan = fixture.inserted("08:00:00-08:00:30 B");
    effect.insertions = fixture.dispatch.timeline().withInsertion(
        {}, another, fixture.clock.msecsSinceEpoch(), false);
    QVERIFY(other.write(effect.insertions, effect.revision));
    fixture.manager.passOriginalPlanProgInfo({{1, false, "before", 2}});
    const StoredEffect stored = other.effect();
    QCOMPARE(stored.insertions.size(), 1U);
    QVERIFY(stored.insertions[0].original.empty());
}

void tst_StoredEffect::anInsertionThatWaitsIsTakenBack()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    const auto alone = instantsOf(fixture.dispatch.insertions()[0]);
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 A"));
    QVERIFY(instantsOf(fixture.dispatch.insertions()[0]) != alone);
    QVERIFY(fixture.host.cancelInsertion());
    QVERIFY(!fixture.manager.getScheduleState());
    QCOMPARE(fixture.dispatch.insertions().size(), 1U);
    QCOMPARE(instantsOf(fixture.dispatch.insertions()[0]), alone);
    fixture.restart();
    QCOMPARE(fixture.dispatch.insertions().size(), 1U);
    QCOMPARE(instantsOf(fixture.dispatch.insertions()[0]), alone);
}

void tst_StoredEffect::anInsertionOnScreenIsEnded()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    fixture.clock.advance(2000);
    fixture.takeTold();
    QVERIFY(fixture.host.cancelInsertion());
    QCOMPARE(fixture.takeTold(), lines({"08:00:05 plays A to 08:00:10"}));
    fixture.restart();
    QCOMPARE(fixture.onScreen(), QStringLiteral("08:00:05 plays A to 08:00:10"));
}

void tst_StoredEffect::nothingToTakeBackWritesNothing()
{
    DispatchFixture fixture("08:00:03");
    QVERIFY(fixture.host.cancelInsertion());
    fixture.saveAndStart(kPlan);
    OtherProgram other(fixture.path);
    const qint64 revision = other.effect().revision;
    QSignalSpy changed(&fixture.host, &ScheduleHost::effectChanged);
    QVERIFY(fixture.host.cancelInsertion());
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    fixture.clock.advance(60000);
    QVERIFY(fixture.host.cancelInsertion());
    QVERIFY(fixture.host.insertPlan(1, 77, fixture.inserted("08:00:00-08:00:30 D"), false));
    QCOMPARE(other.effect().revision, revision + 1);
    QCOMPARE(changed.count(), 1);
}

void tst_StoredEffect::othersAreFollowed_data()
{
    QTest::addColumn<QByteArray>("what");
    for (const char* what : {"start", "stop", "insertion"}) {
        QTest::newRow(what) << QByteArray(what);
    }
}

void tst_StoredEffect::othersAreFollowed()
{
    QFETCH(QByteArray, what);
    DispatchFixture fixture("08:00:03");
    if (what == "start") {
        fixture.saveTask(kPlan);
    } else {
        fixture.saveAndStart(kPlan);
    }
    fixture.host.followStore();
    QSignalSpy changed(&fixture.host, &ScheduleHost::effectChanged);
    QVERIFY(changed.isValid());
    fixture.takeTold();
    OtherProgram other(fixture.path);
    if (what == "start") {
        other.start();
    } else if (what == "stop") {
        other.stop();
    } else {
        StoredEffect effect = other.effect();
        ScreenInsertion cutIn;
        cutIn.taskId = 1;
        cutIn.planId = 1;
        cutIn.plan = fixture.inserted("08:00:00-08:00:30 D");
        QVERIFY(other.write(fixture.dispatch.timeline().withInsertion(
                                {}, cutIn, fixture.clock.msecsSinceEpoch(), false),
                            effect.revision));
    }
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, 5000);
    const QStringList told = what == "start"  ? lines({"08:00:03 plays A to 08:00:10"})
                             : what == "stop" ? lines({"08:00:03 black"})
                                              : lines({"08:00:03 plays D inserted to 08:00:09"});
    QCOMPARE(fixture.takeTold(), told);
    fixture.host.followStore(false);
}

void tst_StoredEffect::nothingIsFollowedUnasked()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveTask(kPlan);
    QSignalSpy changed(&fixture.host, &ScheduleHost::effectChanged);
    fixture.host.followStore();
    fixture.host.followStore(false);
    OtherProgram other(fixture.path);
    other.start();
    QVERIFY(!changed.wait(1500));
    // A refresh of the list takes it over all the same.
    fixture.manager.getgTaskMap();
    QCOMPARE(changed.count(), 1);
}

void tst_StoredEffect::refusalsLeaveItAsItWas()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    const QString before = fixture.onScreen();
    fixture.host.close();
    QVERIFY(fixture.host.open(fixture.path, ScheduleHost::OpenMode::ReadOnly));
    QSignalSpy refused(&fixture.host, &ScheduleHost::effectRefused);
    QVERIFY(refused.isValid());
    fixture.takeTold();
    fixture.manager.slotOpen();
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    QCOMPARE(refused.count(), 2);
    for (const QList<QVariant>& arguments : refused) {
        QVERIFY(arguments.at(0).value<StoreResult>().problem == StoreProblem::ReadOnly);
    }
    QVERIFY(fixture.host.startSchedule().problem == StoreProblem::ReadOnly);
    QVERIFY(fixture.host.stopSchedule().problem == StoreProblem::ReadOnly);
    QCOMPARE(refused.count(), 2);
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(fixture.onScreen(), before);
    QVERIFY(fixture.dispatch.insertions().empty());
}

void tst_StoredEffect::aStoreThatIsOnlyReadShowsIt()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.host.close();
    const FolderSnapshot before(fixture.folder.path());
    QVERIFY(fixture.host.open(fixture.path, ScheduleHost::OpenMode::ReadOnly));
    QCOMPARE(fixture.onScreen(), QStringLiteral("08:00:03 plays A to 08:00:10"));
    fixture.host.close();
    QCOMPARE(before.differences(FolderSnapshot(fixture.folder.path())), QStringList());
}

void tst_StoredEffect::aRehearsalEndsWithAStart()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveTask(kPlan);
    fixture.host.rehearse();
    QCOMPARE(fixture.onScreen(), QStringLiteral("08:00:03 plays A to 08:00:10"));
    QVERIFY(!fixture.host.started());
    OtherProgram other(fixture.path);
    QVERIFY(!other.effect().start);
    // It is this process's own, with what is cut in.
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    QVERIFY(other.effect().insertions.empty());
    QCOMPARE(fixture.dispatch.insertions().size(), 1U);
    other.start();
    QVERIFY(fixture.host.reload());
    QVERIFY(fixture.host.started());
    QVERIFY(fixture.dispatch.insertions().empty());
    const qint64 revision = other.effect().revision;
    fixture.host.rehearse();
    QVERIFY(fixture.host.started());
    QCOMPARE(other.effect().revision, revision);
}

void tst_StoredEffect::versionOneIsTakenOver()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.db"));
    QVERIFY(QFile::copy(versionOne(), path));
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path));
    QFile expected(QFINDTESTDATA("../stores/store-1.json"));
    QVERIFY(expected.open(QIODevice::ReadOnly));
    QCOMPARE(scheduleToJson(host.workingSet()), expected.readAll());
    QCOMPARE(host.catalogue()->size(), 8U);
    QVERIFY(!host.started());
    QVERIFY(host.startSchedule());
    QVERIFY(host.dispatch().tasks() == host.workingSet());
    QVERIFY(host.open(path));
    QCOMPARE(host.started()->saved, 1);
    QVERIFY(host.dispatch().tasks() == host.workingSet());
    host.close();
    const SqliteConnection connection(path, SqliteConnection::Access::ReadWrite);
    QVERIFY(StoreSchema::isNewest(connection));
    StoreSchema::checkElements(connection, path);
}

void tst_StoredEffect::versionOneIsReadUnchanged()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.db"));
    QVERIFY(QFile::copy(versionOne(), path));
    const FolderSnapshot before(folder.path());
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path, ScheduleHost::OpenMode::ReadOnly));
    QCOMPARE(host.workingSet().size(), 3U);
    QVERIFY(!host.started());
    QVERIFY(host.startSchedule().problem == StoreProblem::ReadOnly);
    host.close();
    QCOMPARE(before.differences(FolderSnapshot(folder.path())), QStringList());
}

/// It is refused before it is taken over.
void tst_StoredEffect::aDamagedVersionOneStaysAsItIs()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.db"));
    QVERIFY(QFile::copy(versionOne(), path));
    {
        const SqliteConnection connection(path, SqliteConnection::Access::ReadWrite);
        connection.run(QStringLiteral("UPDATE plan SET position = position + 100"));
    }
    const FolderSnapshot before(folder.path());
    QVERIFY(ScheduleHost::instance().open(path).problem == StoreProblem::Damaged);
    QCOMPARE(before.differences(FolderSnapshot(folder.path())), QStringList());
}

void tst_StoredEffect::whatDoesNotFitIsDamage_data()
{
    QTest::addColumn<QString>("statement");
    const auto row = [](const char* name, const char* statement) {
        QTest::newRow(name) << QString::fromLatin1(statement);
    };
    row("no list before", "DELETE FROM insertion_plan WHERE position = 1");
    row("no plan", "DELETE FROM insertion_plan");
    row("ends before it begins", "UPDATE insertion SET ends_ms = begins_ms - 1");
    row("begins before it was asked for", "UPDATE insertion SET begins_ms = requested_ms - 1");
    row("two at a time", "UPDATE insertion SET ends_ms = (SELECT max(ends_ms) FROM insertion) + 1");
    row("from before all times", "UPDATE insertion SET requested_ms = -9223372036854775807");
    row("plan of no task", "UPDATE effect_plan SET task_id = 77");
    row("a gap", "UPDATE effect_plan SET position = position + 1");
}

void tst_StoredEffect::whatDoesNotFitIsDamage()
{
    QFETCH(QString, statement);
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 A"));
    fixture.host.close();
    {
        connectionTo(fixture.path)->run(statement);
    }
    const FolderSnapshot before(fixture.folder.path());
    QVERIFY(fixture.host.open(fixture.path).problem == StoreProblem::Damaged);
    QVERIFY(!fixture.host.isOpen());
    QCOMPARE(before.differences(FolderSnapshot(fixture.folder.path())), QStringList());
    QVERIFY(!fixture.dispatch.isRunning());
}

TREL_TEST(tst_StoredEffect, QCoreApplication)
#include "tst_StoredEffect.moc"
