#include "DispatchFixture.h"
#include "support/TestProgram.h"

#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QCoreApplication>
using namespace trel::mediadispatch;

namespace {

constexpr int kSecond = 1000;
constexpr int kDay = 24 * 3600 * kSecond;

/// Half a minute of A and B at eight, and again at ten.
const char* const kTwoPlans = "08:00:00-08:00:30 A B freeze / 10:00:00-10:00:20 D";

} // namespace

/// How the schedule in effect is followed: what is told, when, and what is not.
class tst_ScreenDispatch : public QObject
{
    Q_OBJECT

private slots:
    void nothingRunsAtFirst();
    void tellsEveryPictureInItsTime();
    void sleepsFromEventToEvent();
    void aClockThatIsSetWithinAPictureChangesNothing();
    void aClockThatIsSetLeadsToAnotherPicture_data();
    void aClockThatIsSetLeadsToAnotherPicture();
    void theWayGoesOnAfterALeap();
    void anotherZoneIsALeap();
    void startTellsEvenOfTheSame();
    void savingAloneTellsNothing();
    void closingTellsOnce();
    void programsComeAndGo();
    void whatNoPlanUsesIsOfNoAccount();
    void aLengthThatChanges();
    void whatPlaysLaterIsToldToo();
    void anotherProgramThatWaitsIsTold();
    void theTimelineIsBuiltForNewFactsOnly();
    void aProgramChangedUnnoticedIsKnownToAnInsertion();
    void insertionsOutliveANewTimeline();
    void anInsertionEndsWhereItWasToEnd();
    void slotsMayStartAndStop();
    void isSilentWithoutItsClock();
    void followsTheMachinesClock();
    void mayBeStoppedByTheMachinesClock();
};

void tst_ScreenDispatch::nothingRunsAtFirst()
{
    // Before anything is opened, which stops it.
    QVERIFY(!ScheduleHost::instance().dispatch().isRunning());
    DispatchFixture fixture("08:00:10");
    fixture.saveTask(kTwoPlans);
    QVERIFY(!fixture.dispatch.isRunning());
    QCOMPARE(fixture.onScreen(), QStringLiteral("08:00:10 black"));
    QVERIFY(fixture.dispatch.state().reason == ScreenReason::NothingInEffect);
    QVERIFY(fixture.dispatch.tasks().empty());
    QVERIFY(fixture.dispatch.insertions().empty());
    QVERIFY(fixture.dispatch.timeline().at(0).reason == ScreenReason::NoPlanYet);
    fixture.clock.advance(kDay);
    QCOMPARE(fixture.takeTold(), QStringList());
}

void tst_ScreenDispatch::tellsEveryPictureInItsTime()
{
    DispatchFixture fixture("07:59:55");
    fixture.saveAndStart(kTwoPlans);
    QVERIFY(fixture.dispatch.isRunning());
    QCOMPARE(fixture.dispatch.tasks(), fixture.manager.getgTaskMap());
    fixture.clock.advance(kDay);
    QCOMPARE(fixture.takeTold(),
             lines({"07:59:55 black to 08:00:00", "08:00:00 plays A to 08:00:10",
                    "08:00:10 plays B to 08:00:14", "08:00:14 plays A to 08:00:24",
                    "08:00:24 plays B to 08:00:28", "08:00:28 plays A to 08:00:30",
                    "08:00:30 frozen A to 10:00:00", "10:00:00 plays D to 10:00:06",
                    "10:00:06 plays D to 10:00:12", "10:00:12 plays D to 10:00:18",
                    "10:00:18 plays D to 10:00:20", "10:00:20 black to 08:00:00"}));
}

void tst_ScreenDispatch::sleepsFromEventToEvent()
{
    DispatchFixture fixture("07:59:55");
    fixture.saveTask(kTwoPlans);
    fixture.clock.takeLooks();
    fixture.manager.slotOpen();
    QCOMPARE(fixture.clock.takeLooks(), 1); // Builds the timeline.
    for (int second = 0; second < 4; ++second) {
        fixture.clock.advance(kSecond);
    }
    QCOMPARE(fixture.clock.takeLooks(), 0);
    fixture.clock.advance(kDay - 4 * kSecond);
    // As many as there are events.
    QCOMPARE(fixture.clock.takeLooks(), 11);
    // And none in the days when the schedule is over.
    fixture.clock.set(DispatchFixture::moment("12:00:00", 20));
    fixture.clock.takeLooks();
    fixture.takeTold();
    fixture.clock.advance(5LL * kDay);
    QCOMPARE(fixture.clock.takeLooks(), 0);
    QCOMPARE(fixture.takeTold(), QStringList());
}

void tst_ScreenDispatch::aClockThatIsSetWithinAPictureChangesNothing()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.takeTold();
    for (const char* const time : {"08:00:09", "08:00:01", "08:00:00", "08:00:03"}) {
        fixture.clock.set(DispatchFixture::moment(time));
    }
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(fixture.dispatch.state().position, 3000);
    fixture.clock.advance(7 * kSecond);
    QCOMPARE(fixture.takeTold(), lines({"08:00:10 plays B to 08:00:14"}));
}

void tst_ScreenDispatch::aClockThatIsSetLeadsToAnotherPicture_data()
{
    QTest::addColumn<QDateTime>("moment");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const char* time, int day, const char* line) {
        QTest::newRow(name) << DispatchFixture::moment(time, day) << QString::fromLatin1(line);
    };
    row("forwards", "08:00:12", 4, "08:00:12 plays B to 08:00:14");
    row("forwards over some", "10:00:13", 4, "10:00:13 plays D to 10:00:18");
    row("backwards", "07:00:00", 4, "07:00:00 black to 08:00:00");
    row("to another day, same time", "08:00:03", 6, "08:00:03 plays A to 08:00:10");
    row("beyond the schedule", "08:00:03", 20, "08:00:03 black");
}

void tst_ScreenDispatch::aClockThatIsSetLeadsToAnotherPicture()
{
    QFETCH(QDateTime, moment);
    QFETCH(QString, line);
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.takeTold();
    fixture.clock.set(moment);
    QCOMPARE(fixture.takeTold(), QStringList(line));
    QCOMPARE(fixture.onScreen(), line);
}

void tst_ScreenDispatch::theWayGoesOnAfterALeap()
{
    DispatchFixture fixture("12:00:00");
    fixture.saveAndStart(kTwoPlans);
    fixture.clock.set(DispatchFixture::moment("08:00:26"));
    fixture.takeTold();
    fixture.clock.advance(5 * kSecond);
    QCOMPARE(fixture.takeTold(),
             lines({"08:00:28 plays A to 08:00:30", "08:00:30 frozen A to 10:00:00"}));
}

void tst_ScreenDispatch::anotherZoneIsALeap()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.takeTold();
    fixture.clock.takeLooks();
    // There it is two hours later.
    fixture.clock.set(fixture.clock.now().toTimeZone(QTimeZone("Europe/Istanbul")));
    QCOMPARE(fixture.clock.takeLooks(), 2); // Woken, and a timeline for the new zone.
    QCOMPARE(fixture.takeTold().size(), 1);
    QCOMPARE(letterOf(fixture.dispatch.state().progIndex), QStringLiteral("D"));
    QCOMPARE(fixture.dispatch.state().position, 3000);
    QCOMPARE(fixture.dispatch.timeline().local(fixture.clock.msecsSinceEpoch()).time(),
             QTime(10, 0, 3));
}

void tst_ScreenDispatch::startTellsEvenOfTheSame()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.clock.advance(2 * kSecond);
    fixture.manager.slotOpen();
    QCOMPARE(fixture.takeTold(),
             lines({"08:00:03 plays A to 08:00:10", "08:00:05 plays A to 08:00:10"}));
}

void tst_ScreenDispatch::savingAloneTellsNothing()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    const auto started = fixture.dispatch.tasks();
    fixture.takeTold();
    fixture.saveTask("08:00:00-09:00:00 D");
    QVERIFY(fixture.host.reload());
    QCOMPARE(fixture.takeTold(), QStringList());
    QVERIFY(fixture.dispatch.tasks() == started);
    fixture.manager.slotOpen();
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 plays D to 08:00:06"}));
}

void tst_ScreenDispatch::closingTellsOnce()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    fixture.takeTold();
    fixture.host.close();
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 black"}));
    QVERIFY(!fixture.dispatch.isRunning());
    QVERIFY(fixture.dispatch.tasks().empty());
    QVERIFY(fixture.dispatch.insertions().empty());
    fixture.host.close();
    fixture.clock.advance(kDay);
    QCOMPARE(fixture.takeTold(), QStringList());
}

void tst_ScreenDispatch::programsComeAndGo()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.takeTold();
    const QString a = fixture.file(QStringLiteral("A"));
    QVERIFY(QFile::remove(a));
    fixture.manager.getgTaskMap(); // Looks which files are there.
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 plays B to 08:00:04"}));
    fixture.manager.getgTaskMap();
    QCOMPARE(fixture.takeTold(), QStringList());
    fixture.touch(QStringLiteral("A"));
    fixture.manager.getgTaskMap();
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 plays A to 08:00:10"}));
    QVERIFY(fixture.host.removeProgram(programOf(QLatin1Char('A'))));
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 plays B to 08:00:04"}));
    QVERIFY(fixture.host.removeProgram(programOf(QLatin1Char('B'))));
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 black to 08:00:30"}));
}

void tst_ScreenDispatch::whatNoPlanUsesIsOfNoAccount()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.takeTold();
    fixture.clock.takeLooks();
    QVERIFY(QFile::remove(fixture.file(QStringLiteral("C"))));
    fixture.manager.getgTaskMap();
    QVERIFY(fixture.host.removeProgram(programOf(QLatin1Char('C'))));
    // A new name shows nowhere on screen.
    fixture.sources[0].name = QStringLiteral("Another name");
    QVERIFY(fixture.host.addPrograms({fixture.sources[0]}).store);
    fixture.touch(QStringLiteral("E"));
    QVERIFY(fixture.host
                .addPrograms({{QStringLiteral("E"), fixture.file(QStringLiteral("E")), 1000.0,
                               ProgramKind::Video}})
                .store);
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(fixture.clock.takeLooks(), 0);
}

void tst_ScreenDispatch::aLengthThatChanges()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.takeTold();
    fixture.sources[0].durationMs = 5000.0;
    QVERIFY(fixture.host.addPrograms({fixture.sources[0]}).store);
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 plays A to 08:00:05"}));
    fixture.clock.advance(2 * kSecond);
    QCOMPARE(fixture.takeTold(), lines({"08:00:05 plays B to 08:00:09"}));
}

void tst_ScreenDispatch::whatPlaysLaterIsToldToo()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.takeTold();
    const ScreenState before = fixture.dispatch.state();
    QVERIFY(fixture.host.removeProgram(programOf(QLatin1Char('D'))));
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 plays A to 08:00:10"}));
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 B"));
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 plays A to 08:00:10"}));
    QCOMPARE(fixture.dispatch.state().since, before.since);
    // An entry of which nothing more is seen today changes nothing that is to come.
    fixture.insert(fixture.inserted("07:00:00-07:30:00 A"));
    fixture.takeTold();
    fixture.insert(fixture.inserted("07:00:00-07:30:00 A"));
    QCOMPARE(fixture.takeTold(), QStringList());
}

void tst_ScreenDispatch::anotherProgramThatWaitsIsTold()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    const QStringList same = lines({"08:00:03 plays A to 08:00:10"});
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 B"));
    fixture.takeTold();
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 B"));
    QCOMPARE(fixture.takeTold(), QStringList());
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 D"));
    QCOMPARE(fixture.takeTold(), same);
}

void tst_ScreenDispatch::theTimelineIsBuiltForNewFactsOnly()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    const ScreenTimeline* const built = &fixture.dispatch.timeline();
    fixture.clock.advance(kDay);
    fixture.clock.set(DispatchFixture::moment("08:00:03"));
    fixture.insert(fixture.inserted("08:00:00-08:00:30 B"));
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 A"));
    fixture.manager.passOriginalPlanProgInfo({});
    fixture.manager.getgTaskMap();
    QVERIFY(fixture.host.removeProgram(programOf(QLatin1Char('C'))));
    QCOMPARE(&fixture.dispatch.timeline(), built);
    fixture.clock.takeLooks();
    QVERIFY(fixture.host.removeProgram(programOf(QLatin1Char('D'))));
    QVERIFY(&fixture.dispatch.timeline() != built);
    QCOMPARE(fixture.clock.takeLooks(), 1);
}

void tst_ScreenDispatch::aProgramChangedUnnoticedIsKnownToAnInsertion()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart("08:00:00-08:00:30 A");
    fixture.sources[1].durationMs = 2000.0;
    QVERIFY(fixture.host.addPrograms({fixture.sources[1]}).store);
    fixture.takeTold();
    fixture.insert(fixture.inserted("08:00:00-08:00:30 B"));
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 plays B inserted to 08:00:05"}));
    // From now on it is in use.
    fixture.sources[1].durationMs = 7000.0;
    QVERIFY(fixture.host.addPrograms({fixture.sources[1]}).store);
    QCOMPARE(fixture.takeTold(), lines({"08:00:03 plays B inserted to 08:00:10"}));
}

void tst_ScreenDispatch::insertionsOutliveANewTimeline()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 B"));
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 A"));
    fixture.manager.passOriginalPlanProgInfo({{1, false, "A", 1}, {2, false, "B", 1}});
    const ScreenInsertions before = fixture.dispatch.insertions();
    QCOMPARE(before.size(), 2U);
    QVERIFY(fixture.host.removeProgram(programOf(QLatin1Char('D'))));
    const ScreenInsertions& after = fixture.dispatch.insertions();
    QCOMPARE(after.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        QCOMPARE(after[i].requested, before[i].requested);
        QCOMPARE(after[i].begins, before[i].begins);
        QCOMPARE(after[i].ends, before[i].ends);
        QVERIFY(after[i].original == before[i].original);
    }
    QCOMPARE(after[1].original.size(), 2U);
    QVERIFY(after[0].original.empty());
}

void tst_ScreenDispatch::anInsertionEndsWhereItWasToEnd()
{
    DispatchFixture fixture("12:00:00");
    fixture.saveAndStart(kTwoPlans);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 B", true));
    fixture.clock.advance(kSecond);
    fixture.takeTold();
    fixture.sources[1].durationMs = 6000.0;
    QVERIFY(fixture.host.addPrograms({fixture.sources[1]}).store);
    fixture.clock.advance(kDay / 4);
    QCOMPARE(fixture.takeTold(),
             lines({"12:00:01 plays B inserted to 12:00:04", "12:00:04 black to 08:00:00"}));
}

void tst_ScreenDispatch::slotsMayStartAndStop()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kTwoPlans);
    QObject context;
    bool isStopping = true;
    QObject::connect(&fixture.dispatch, &ScreenDispatch::changed, &context, [&] {
        if (std::exchange(isStopping, false)) {
            fixture.host.close();
        }
    });
    fixture.clock.advance(kDay);
    QVERIFY(!fixture.dispatch.isRunning());
    QCOMPARE(fixture.takeTold().last(), QStringLiteral("08:00:10 black"));
}

void tst_ScreenDispatch::isSilentWithoutItsClock()
{
    int told = 0;
    QObject context;
    {
        DispatchFixture fixture("08:00:03");
        fixture.saveAndStart(kTwoPlans);
        QObject::connect(&fixture.dispatch, &ScreenDispatch::changed, &context, [&] { ++told; });
        // It stops with the store, and goes on with it.
        fixture.host.open(fixture.path);
        QCOMPARE(told, 2);
        fixture.host.close();
        QCOMPARE(told, 3);
    }
    QVERIFY(!ScheduleHost::instance().dispatch().isRunning());
    QCOMPARE(told, 3);
    // A clock that goes before its schedule.
    StoreFixture store;
    {
        const TestClock clock(DispatchFixture::moment("08:00:00"));
        store.manager.slotOpen();
    }
    told = 0;
    QCoreApplication::processEvents();
    QCOMPARE(told, 0);
    QVERIFY(store.host.dispatch().state().reason == ScreenReason::NoPlanYet);
}

namespace {

/// A schedule of every day until long from now, in which a short program plays again and again.
void startFlickering(StoreFixture& store)
{
    QFile file(store.folder.filePath(QStringLiteral("short.mp4")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(store.host
                .addPrograms({{QStringLiteral("Short"), file.fileName(), 40.0, ProgramKind::Video}})
                .store);
    store.save(scheduleFromText(QStringLiteral("1 2000.01.01-2999.12.31 / 00:00:00-23:59:59 A")));
    store.manager.slotOpen();
}

} // namespace

void tst_ScreenDispatch::followsTheMachinesClock()
{
    StoreFixture store;
    QSignalSpy told(&store.host.dispatch(), &ScreenDispatch::changed);
    QVERIFY(told.isValid());
    startFlickering(store);
    QTRY_VERIFY(told.count() > 3);
    for (int i = 1; i < told.count(); ++i) {
        const auto state = told.at(i).at(0).value<ScreenState>();
        const auto former = told.at(i - 1).at(0).value<ScreenState>();
        QVERIFY(state.since >= former.until);
    }
}

void tst_ScreenDispatch::mayBeStoppedByTheMachinesClock()
{
    StoreFixture store;
    startFlickering(store);
    QObject context;
    QObject::connect(&store.host.dispatch(), &ScreenDispatch::changed, &context,
                     [&store] { store.host.close(); });
    QTRY_VERIFY(!store.host.dispatch().isRunning());
}

TREL_TEST(tst_ScreenDispatch, QCoreApplication)
#include "tst_ScreenDispatch.moc"
