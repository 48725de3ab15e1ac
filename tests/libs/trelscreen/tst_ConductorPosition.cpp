#include "ScreenFixture.h"

#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::screen;

/// Plays held where the timeline has them.
class tst_ConductorPosition : public QObject
{
    Q_OBJECT

private slots:
    void leavesAPlayAloneThatIsRight()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 H");
        screen.advance(1000);
        screen.takeCalls();
        screen.one.drift(40);
        screen.advance(60'000);
        QCOMPARE(screen.takeCalls(), QStringList());
        QCOMPARE(screen.conductor.tally().speedCorrections(), 0);
    }

    void leavesAFilmOfFewPicturesAlone()
    {
        ScreenFixture screen("08:00:01");
        screen.one.setPictureLength(100);
        screen.follow("08:00:00-09:00:00 H");
        screen.advance(1000);
        screen.takeCalls();
        screen.one.drift(-90);
        screen.advance(10'000);
        QCOMPARE(screen.takeCalls(), QStringList());
        screen.one.drift(-20);
        screen.advance(1000);
        QVERIFY(screen.takeCalls().first().endsWith(QStringLiteral("one: speed 1.02")));
    }

    void bringsItBackByABreathOfSpeed()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 H");
        screen.advance(1000);
        screen.takeCalls();
        screen.log.take();
        screen.one.drift(-100);
        screen.advance(10'000);
        const QStringList calls = screen.takeCalls();
        QCOMPARE(calls.size(), 2);
        QVERIFY(calls.first().endsWith(QStringLiteral("one: speed 1.02")));
        QVERIFY(calls.last().endsWith(QStringLiteral("one: speed 1")));
        QVERIFY(std::abs(*screen.one.position() - 12'000) <= PositionHold::kGoodEnough);
        QCOMPARE(screen.conductor.tally().speedCorrections(), 1);
        QCOMPARE(screen.conductor.tally().seeks(), 0);

        screen.one.drift(100);
        screen.advance(10'000);
        QVERIFY(screen.takeCalls().first().endsWith(QStringLiteral("one: speed 0.98")));
        QCOMPARE(screen.conductor.tally().speedCorrections(), 2);
    }

    void seeksWhatIsFarOff()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 H");
        screen.one.setSeekTakes(100);
        screen.advance(1000);
        screen.takeCalls();
        screen.log.take();
        screen.one.drift(-5000);
        screen.advance(3000);
        const QStringList calls = screen.takeCalls();
        QCOMPARE(calls.size(), 1);
        QVERIFY(calls.first().contains(QStringLiteral("one: seek")));
        QCOMPARE(screen.picture(), QStringLiteral("H at 5000"));
        QCOMPARE(screen.conductor.tally().seeks(), 1);
        QCOMPARE(screen.log.take(), lines({"sought H -5000"}));
    }

    void seeksNothingRightBeforeTheEnd()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A");
        screen.advanceTo("08:00:09.600");
        screen.takeCalls();
        screen.one.drift(-900);
        screen.advanceTo("08:00:10");
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:10 stage: two", "08:00:10 two: play", "08:00:10 one: clear"}));
    }

    void beginsThePlayAfterACorrectionAtItsOwnSpeed()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:07");
        screen.one.drift(-300);
        screen.advanceTo("08:00:09.990");
        QCOMPARE(screen.one.speed(), 1.02);
        screen.advanceTo("08:00:13");
        QCOMPARE(screen.one.speed(), 1.0);
        QCOMPARE(screen.one.loaded().media, QStringLiteral("A"));
    }

    void letsASeekTakeItsTimeButNotForever()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 H");
        screen.advance(1000);
        screen.one.setSeekTakes(100'000);
        screen.one.drift(5000);
        screen.advance(4000);
        QVERIFY(screen.conductor.status().isOnTimeline);
        QCOMPARE(screen.conductor.tally().seeks(), 1);
        screen.advance(2500);
        QCOMPARE(screen.conductor.tally().faults(DeckTrouble::Stalled), 1);
    }
};

TREL_TEST(tst_ConductorPosition, QCoreApplication)
#include "tst_ConductorPosition.moc"
