#include "ScreenFixture.h"

#include "support/TestProgram.h"

#include <QSignalSpy>
#include <QtTest>

using namespace trel::mediadispatch;
using namespace trel::screen;

/// What follows by the schedule, with decks that do as they are told.
class tst_ConductorSwaps : public QObject
{
    Q_OBJECT

private slots:
    void standsByUntilItIsToldASchedule()
    {
        ScreenFixture screen("08:00:00");
        QCOMPARE(screen.picture(), QStringLiteral("stand-by"));
        screen.advance(1000);
        QCOMPARE(screen.takeCalls(), QStringList());
        QVERIFY(!screen.conductor.status().isOnTimeline);
    }

    void isBlackWhileNothingIsInEffect()
    {
        ScreenFixture screen("08:00:00");
        screen.follow("");
        QCOMPARE(screen.takeCalls(), lines({"08:00:00 stage: black"}));
        screen.advance(5000);
        QCOMPARE(screen.takeCalls(), QStringList());
        QVERIFY(screen.conductor.status().isOnTimeline);
        QCOMPARE(screen.conductor.longestOff(), 0);
    }

    void preparesTwoSecondsAheadAndSwapsAtTheMoment()
    {
        ScreenFixture screen("07:59:00");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("07:59:57.990");
        QCOMPARE(screen.takeCalls(), lines({"07:59:00 stage: black"}));

        screen.advanceTo("08:00:14.100");
        QCOMPARE(screen.takeCalls(), lines({
                                         "07:59:58 one: load A at 0",
                                         "08:00:00 stage: one",
                                         "08:00:00 one: play",
                                         "08:00:08 two: load B at 0",
                                         "08:00:10 stage: two",
                                         "08:00:10 two: play",
                                         "08:00:10 one: clear",
                                         "08:00:12 one: load A at 0",
                                         "08:00:14 stage: one",
                                         "08:00:14 one: play",
                                         "08:00:14 two: clear",
                                     }));
        QCOMPARE(screen.log.take(), lines({"schedule", "shown black +0", "switch A +0", "left A",
                                           "switch B +0", "left B", "switch A +0"}));
        QCOMPARE(screen.conductor.tally().switches(), 3);
        QCOMPARE(screen.conductor.tally().worstLateness(), 0);
        QCOMPARE(screen.conductor.longestOff(), 0);
    }

    void tellsHowLateItIs()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:09.900");
        // A program that was held up; less than a clock that was set.
        screen.clock.set(ScreenFixture::moment("08:00:10.070"));
        QCOMPARE(screen.picture(), QStringLiteral("B at 0"));
        QVERIFY(screen.log.take().contains(QStringLiteral("switch B +70")));
        QCOMPARE(screen.conductor.tally().worstLateness(), 70);
    }

    void swapsBetweenThePlaysOfOneEntryToo()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-09:00:00 B*2 A");
        screen.advanceTo("08:00:04.010");
        QCOMPARE(screen.picture(), QStringLiteral("B at 10"));
        QCOMPARE(screen.stage.deck(), &screen.two);
        QCOMPARE(screen.conductor.status().play.state.play, 1);
    }

    void joinsInTheMiddleToTheFrame()
    {
        ScreenFixture screen("08:00:03", 100);
        screen.follow("08:00:00-09:00:00 A");
        screen.advance(249);
        QCOMPARE(screen.picture(), QStringLiteral("stand-by"));
        screen.advance(1);
        QCOMPARE(screen.takeCalls(), lines({"08:00:03 one: load A at 3250",
                                            "08:00:03.250 stage: one", "08:00:03.250 one: play"}));
        screen.advance(1000);
        QCOMPARE(screen.picture(), QStringLiteral("A at 4250"));
        QCOMPARE(screen.takeCalls(), QStringList());
        QCOMPARE(screen.log.take(), lines({"schedule", "shown A +250"}));
        QCOMPARE(screen.conductor.tally().switches(), 0);
        QCOMPARE(screen.conductor.longestOff(), 250);
    }

    void joinsAtOnceWhereItIsLateForThat()
    {
        ScreenFixture screen("08:00:03", 300);
        screen.follow("08:00:00-09:00:00 A");
        screen.advance(299);
        QCOMPARE(screen.picture(), QStringLiteral("stand-by"));
        screen.advance(1);
        QCOMPARE(screen.picture(), QStringLiteral("A at 3250"));
        // Brought back to its position by and by.
        QCOMPARE(screen.one.speed(), 1.02);
        screen.advance(3000);
        QCOMPARE(screen.one.speed(), 1.0);
        QVERIFY(std::abs(*screen.one.position() - 6300) <= 10);
    }

    void preparesWhatFollowsRightAfterAJoin()
    {
        ScreenFixture screen("08:00:09.700");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advance(1);
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:09.700 one: load A at 9700", "08:00:09.700 two: load B at 0",
                        "08:00:09.701 stage: one", "08:00:09.701 one: play"}));
        screen.advanceTo("08:00:10");
        QCOMPARE(screen.picture(), QStringLiteral("B at 0"));
    }

    void followsPlaysShorterThanTwoSeconds()
    {
        ScreenFixture screen("07:59:59", 50);
        screen.follow("08:00:00-09:00:00 K");
        screen.advanceTo("08:00:03.100");
        QCOMPARE(screen.takeCalls(), lines({
                                         "07:59:59 stage: black",
                                         "07:59:59 one: load K at 0",
                                         "08:00:00 stage: one",
                                         "08:00:00 one: play",
                                         "08:00:00 two: load K at 0",
                                         "08:00:01.500 stage: two",
                                         "08:00:01.500 two: play",
                                         "08:00:01.500 one: clear",
                                         "08:00:01.500 one: load K at 0",
                                         "08:00:03 stage: one",
                                         "08:00:03 one: play",
                                         "08:00:03 two: clear",
                                         "08:00:03 two: load K at 0",
                                     }));
    }

    void passesOverWhatNobodyCouldSee()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-09:00:00 A D A");
        screen.advanceTo("08:00:10.100");
        QCOMPARE(screen.picture(), QStringLiteral("A at 99"));
        QCOMPARE(screen.conductor.status().play.state.entry, 2);
        QVERIFY(!screen.takeCalls().join(QLatin1Char('\n')).contains(QStringLiteral("load D")));
        QCOMPARE(screen.conductor.longestOff(), 0);
    }

    void restsWhereNothingElsePlays()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-08:01:00 D");
        screen.advanceTo("08:00:30");
        QCOMPARE(screen.takeCalls(), lines({"07:59:59 stage: black", "08:00:00 stage: stand-by"}));
        screen.advanceTo("08:01:00");
        QCOMPARE(screen.picture(), QStringLiteral("black"));
    }

    void letsAnImageStand()
    {
        ScreenFixture screen("08:10:00");
        screen.follow("08:00:00-09:00:00 I");
        screen.advance(10);
        QCOMPARE(screen.takeCalls(), lines({"08:10:00 one: load I at 0", "08:10:00.001 stage: one",
                                            "08:10:00.001 one: play"}));
        screen.advanceTo("08:59:50");
        QCOMPARE(screen.takeCalls(), QStringList());
        // Nor is it looked at, so that the machine may rest.
        QCOMPARE(screen.one.looks(), 0);
        screen.advanceTo("09:00:00");
        QCOMPARE(screen.takeCalls(), lines({"09:00:00 stage: black", "09:00:00 one: clear"}));
    }

    void showsTheNameOfASound()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-09:00:00 M B");
        screen.advanceTo("08:00:05.010");
        QCOMPARE(screen.takeCalls(), lines({
                                         "07:59:59 stage: black",
                                         "07:59:59 one: load M at 0",
                                         "08:00:00 stage: stand-by M",
                                         "08:00:00 one: play",
                                         "08:00:03 two: load B at 0",
                                         "08:00:05 stage: two",
                                         "08:00:05 two: play",
                                         "08:00:05 one: clear",
                                     }));
    }

    void asksAStreamForNoPosition()
    {
        ScreenFixture screen("08:30:00", 400);
        screen.follow("08:00:00-09:00:00 L");
        screen.advance(400);
        QCOMPARE(screen.takeCalls(), lines({"08:30:00 one: load L at 0", "08:30:00.400 stage: one",
                                            "08:30:00.400 one: play"}));
        screen.one.drift(9000);
        screen.advance(10'000);
        QCOMPARE(screen.takeCalls(), QStringList());
        QCOMPARE(screen.picture(), QStringLiteral("L"));
    }

    void tellsWhatIsShown()
    {
        ScreenFixture screen("07:59:59");
        QSignalSpy changed(&screen.conductor, &Conductor::changed);
        QVERIFY(changed.isValid());
        screen.follow("08:00:00-09:00:00 A");
        QCOMPARE(changed.count(), 1);
        screen.advanceTo("08:00:00.500");
        QCOMPARE(changed.count(), 2);
        const ScreenStatus status = screen.conductor.status();
        QCOMPARE(status.play.name, QStringLiteral("A"));
        QCOMPARE(status.picture, StagePicture::Kind::Deck);
        QVERIFY(status.isOnTimeline);
        QCOMPARE(status.onScreenSince, ScreenFixture::moment("08:00:00").toMSecsSinceEpoch());
        // Time alone is nothing new.
        screen.advanceTo("08:00:09.990");
        QCOMPARE(changed.count(), 2);
    }

    void logsWhatAnAsRunListNeeds()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("07:00:00-07:10:00 B / 08:00:00-08:01:00 B A*2");
        screen.advanceTo("08:00:14.100");
        const ScreenEvent event = screen.log.events.back();
        QCOMPARE(event.kind, ScreenEvent::Kind::Shown);
        QCOMPARE(event.play.state.taskId, 1);
        QCOMPARE(event.play.state.planId, 2);
        QCOMPARE(event.play.state.entry, 1);
        QCOMPARE(event.play.state.play, 1);
        QCOMPARE(event.play.state.run, 0);
        QCOMPARE(event.play.state.progIndex, programOf(QLatin1Char('A')));
        QCOMPARE(event.play.name, QStringLiteral("A"));
        const Instant begin = ScreenFixture::moment("08:00:14").toMSecsSinceEpoch();
        QCOMPARE(event.play.state.since, begin);
        QCOMPARE(event.play.state.until, begin + 10'000);
        QCOMPARE(event.onScreenSince, begin);
        QCOMPARE(event.moment, begin);
    }
};

TREL_TEST(tst_ConductorSwaps, QCoreApplication)
#include "tst_ConductorSwaps.moc"
