#include "dispatch/DispatchFixture.h"
#include "support/TestProgram.h"

#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QCoreApplication>
#include <QSignalSpy>

using namespace trel::mediadispatch;

/// The play on screen is skipped in a schedule that was started, and what the screen shows then.
class tst_SkipPlay : public QObject
{
    Q_OBJECT

private slots:
    void theNextPlayBegins_data();
    void theNextPlayBegins();
    void theDayAfterPlaysThePlansOwnList();
    void anotherSkipGoesOn();
    void anInsertionOfOneProgramEnds();
    void anInsertionWithNothingToPlayEnds();
    void whatWaitsBeginsAtOnce();
    void nothingToSkip_data();
    void nothingToSkip();
    void itIsInTheStore();
    void aStoreThatIsOnlyReadRefuses();
};

namespace {

const char* const kPlan = "08:00:00-08:01:00 A*2 B D freeze";

/// The next pictures, one after the other, from this moment on.
QStringList upcoming(const DispatchFixture& fixture, int count)
{
    QStringList lines;
    const Instant now = fixture.clock.msecsSinceEpoch();
    fixture.dispatch.timeline().visitPlays(
        now, kNever, fixture.dispatch.insertions(), [&](const ScreenState& state) {
            const QDateTime since = QDateTime::fromMSecsSinceEpoch(std::max(state.since, now));
            lines.append(since.toString(QStringLiteral("ss ")) +
                         (state.isPlaying() ? letterOf(state.progIndex) : QStringLiteral("-")));
            return lines.size() < count;
        });
    return lines;
}

} // namespace

void tst_SkipPlay::theNextPlayBegins_data()
{
    QTest::addColumn<QString>("plan");
    QTest::addColumn<int>("second");
    QTest::addColumn<QStringList>("then");
    const auto row = [](const char* name, const char* plan, int second,
                        std::initializer_list<const char*> then) {
        QTest::newRow(name) << QString::fromLatin1(plan) << second << lines(then);
    };
    row("the first play of two", kPlan, 3, {"03 A", "13 B", "17 D", "23 A", "33 A", "43 B"});
    row("the second play of two", kPlan, 13, {"13 B", "17 D", "23 A", "33 A", "43 B", "47 D"});
    row("the last entry", kPlan, 27, {"27 A", "37 A", "47 B", "51 D", "57 A", "00 -"});
    row("a picture without a length", "08:00:00-08:01:00 B C freeze", 20, {"20 B", "24 C", "00 -"});
    row("a list of one", "08:00:00-08:01:00 A", 3, {"03 A", "13 A"});
    row("a list that runs twice", "08:00:00 x2 A B freeze", 3,
        {"03 B", "07 A", "17 B", "21 A", "28 -"});
    row("an entry that has gone bad", "08:00:00-08:01:00 A !B D", 3, {"03 D", "09 A"});
}

void tst_SkipPlay::theNextPlayBegins()
{
    QFETCH(QString, plan);
    QFETCH(int, second);
    QFETCH(QStringList, then);
    DispatchFixture fixture("08:00:00");
    fixture.saveAndStart(plan.toLatin1().constData());
    fixture.clock.advance(second * 1000);
    fixture.takeTold();
    QSignalSpy changed(&fixture.host, &ScheduleHost::effectChanged);
    QVERIFY(fixture.host.skipPlay());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(fixture.takeTold().size(), 1);
    QCOMPARE(upcoming(fixture, then.size()), then);
}

void tst_SkipPlay::theDayAfterPlaysThePlansOwnList()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    QVERIFY(fixture.host.skipPlay());
    fixture.clock.set(DispatchFixture::moment("08:00:00", 5));
    QCOMPARE(upcoming(fixture, 4), lines({"00 A", "10 A", "20 B", "24 D"}));
    QVERIFY(!fixture.dispatch.state().isInserted());
}

void tst_SkipPlay::anotherSkipGoesOn()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    QVERIFY(fixture.host.skipPlay());
    fixture.clock.advance(1000);
    QVERIFY(fixture.host.skipPlay());
    QCOMPARE(upcoming(fixture, 3), lines({"04 B", "08 D", "14 A"}));
    QCOMPARE(fixture.dispatch.insertions().size(), 2U);
    // The list as it is in effect, whatever was skipped before.
    const PlayPlan plan = planFromText(QLatin1String(kPlan));
    QVERIFY(fixture.dispatch.insertions().back().original == plan.programs);
}

void tst_SkipPlay::anInsertionOfOneProgramEnds()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insert(fixture.inserted("07:00:00-07:30:00 D", true));
    QCOMPARE(fixture.onScreen(), QStringLiteral("08:00:03 plays D inserted to 08:00:09"));
    fixture.clock.advance(1000);
    QVERIFY(fixture.host.skipPlay());
    QCOMPARE(fixture.onScreen(), QStringLiteral("08:00:04 plays A to 08:00:10"));
    QCOMPARE(upcoming(fixture, 3), lines({"04 A", "10 A", "20 B"}));
}

void tst_SkipPlay::anInsertionWithNothingToPlayEnds()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 !D"));
    QVERIFY(fixture.dispatch.state().reason == ScreenReason::InsertionHasNothing);
    fixture.clock.advance(1000);
    QVERIFY(fixture.host.skipPlay());
    QCOMPARE(fixture.onScreen(), QStringLiteral("08:00:04 plays A to 08:00:10"));
}

void tst_SkipPlay::whatWaitsBeginsAtOnce()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    fixture.insertDelayed(fixture.inserted("08:00:00-08:00:30 D"));
    QVERIFY(fixture.manager.getScheduleState());
    const qint64 number = fixture.dispatch.insertions().back().number;
    fixture.clock.advance(2000);
    QVERIFY(fixture.host.skipPlay());
    QCOMPARE(upcoming(fixture, 2), lines({"05 D", "11 D"}));
    QVERIFY(!fixture.manager.getScheduleState());
    QCOMPARE(fixture.dispatch.insertions().size(), 1U);
    QCOMPARE(fixture.dispatch.insertions().back().number, number);
    QCOMPARE(fixture.dispatch.insertions().back().begins, fixture.clock.msecsSinceEpoch());
}

void tst_SkipPlay::nothingToSkip_data()
{
    QTest::addColumn<QString>("plan");
    QTest::addColumn<bool>("isStarted");
    QTest::newRow("nothing in effect") << QString::fromLatin1(kPlan) << false;
    QTest::newRow("no plan yet") << QStringLiteral("09:00:00-10:00:00 A") << true;
    QTest::newRow("nothing can play") << QStringLiteral("08:00:00-10:00:00 !A") << true;
}

void tst_SkipPlay::nothingToSkip()
{
    QFETCH(QString, plan);
    QFETCH(bool, isStarted);
    DispatchFixture fixture("08:00:03");
    fixture.saveTask(plan.toLatin1().constData());
    if (isStarted) {
        fixture.manager.slotOpen();
    }
    fixture.takeTold();
    QSignalSpy changed(&fixture.host, &ScheduleHost::effectChanged);
    QVERIFY(fixture.host.skipPlay());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(fixture.takeTold(), QStringList());
    QVERIFY(fixture.dispatch.insertions().empty());
}

void tst_SkipPlay::itIsInTheStore()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    QVERIFY(fixture.host.skipPlay());
    const QStringList then = upcoming(fixture, 8);
    fixture.restart();
    QCOMPARE(upcoming(fixture, 8), then);
    QVERIFY(!fixture.dispatch.insertions().back().askedBy.isEmpty());
}

void tst_SkipPlay::aStoreThatIsOnlyReadRefuses()
{
    DispatchFixture fixture("08:00:03");
    fixture.saveAndStart(kPlan);
    const QStringList before = upcoming(fixture, 4);
    fixture.host.close();
    QVERIFY(fixture.host.open(fixture.path, ScheduleHost::OpenMode::ReadOnly));
    QVERIFY(fixture.host.skipPlay().problem == StoreProblem::ReadOnly);
    QCOMPARE(upcoming(fixture, 4), before);
}

TREL_TEST(tst_SkipPlay, QCoreApplication)
#include "tst_SkipPlay.moc"
