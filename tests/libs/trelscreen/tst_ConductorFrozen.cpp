#include "ScreenFixture.h"

#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;
using namespace trel::screen;

/// Pictures that stand after a play is over.
class tst_ConductorFrozen : public QObject
{
    Q_OBJECT

private slots:
    void keepsThePictureThatIsThere()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-08:00:07 A freeze");
        screen.advanceTo("08:00:00.500");
        screen.takeCalls();
        screen.advanceTo("12:00:00");
        // Nothing is loaded, sought or shown.
        QCOMPARE(screen.takeCalls(), lines({"08:00:07 one: pause"}));
        QCOMPARE(screen.picture(), QStringLiteral("A at 7000"));
        QVERIFY(screen.conductor.status().isOnTimeline);
        QCOMPARE(screen.log.take(), lines({"schedule", "shown black +0", "switch A +0", "left A",
                                           "switch A frozen +0"}));
    }

    void keepsItWhereTheFileIsABitShort()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-08:00:30 mode=1 times=1 B A freeze");
        screen.advanceTo("08:00:13.600");
        screen.takeCalls();
        screen.two.tellEnded();
        screen.advanceTo("09:00:00");
        QCOMPARE(screen.takeCalls(), lines({"08:00:14 two: pause"}));
        QCOMPARE(screen.conductor.status().play.state.reason, ScreenReason::PlanEnded);
    }

    void goesBlackWhereItDoesNotFreeze()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-08:00:07 A");
        screen.advanceTo("08:00:06.999");
        QCOMPARE(screen.picture(), QStringLiteral("A at 6999"));
        screen.takeCalls();
        screen.advance(1);
        QCOMPARE(screen.takeCalls(), lines({"08:00:07 stage: black", "08:00:07 one: clear"}));
        QVERIFY(screen.conductor.status().isOnTimeline);
    }

    void loadsWhatWasFrozenBefore()
    {
        ScreenFixture screen("10:00:00", 30);
        screen.follow("08:00:00-08:00:07 A freeze");
        screen.advanceTo("11:00:00");
        QCOMPARE(screen.takeCalls(),
                 lines({"10:00:00 one: load A at 7000 standing", "10:00:00.030 stage: one"}));
        QCOMPARE(screen.picture(), QStringLiteral("A at 7000"));
    }

    void standsAtTheEndOfAListThatRanOut()
    {
        ScreenFixture screen("08:00:20");
        screen.follow("08:00:00-08:00:30 mode=1 times=1 A freeze");
        screen.advance(100);
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:20 one: load A at 10000 standing", "08:00:20.001 stage: one"}));
    }

    void preparesAFrozenPictureThatIsNotThere()
    {
        ScreenFixture screen("08:00:00");
        screen.follow("07:00:00-07:00:03 A freeze / 08:00:00-08:00:10 B id=2 freeze");
        screen.advance(500);
        screen.insert("08:00:00-08:00:05 A");
        screen.advance(500);
        screen.takeCalls();
        screen.advanceTo("08:00:05.100");
        QCOMPARE(screen.takeCalls(), lines({"08:00:03 one: load B at 1000", "08:00:05 stage: one",
                                            "08:00:05 one: play", "08:00:05 two: clear"}));
    }

    void preparesTheFrozenPictureBehindAnInsertion()
    {
        ScreenFixture screen("08:00:06");
        screen.follow("08:00:00-08:00:05 A freeze");
        screen.advance(500);
        screen.insert("08:00:00-08:00:12 B");
        screen.advance(500);
        screen.takeCalls();
        screen.advanceTo("08:00:13");
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:08.500 one: load B at 0", "08:00:10.500 stage: one",
                        "08:00:10.500 one: play", "08:00:10.500 two: clear",
                        "08:00:10.500 two: load A at 5000 standing", "08:00:12 stage: two",
                        "08:00:12 one: clear"}));
    }

    void freezesAnImageAndAStream()
    {
        ScreenFixture image("07:59:59");
        image.follow("08:00:00-08:00:07 I freeze");
        image.advanceTo("08:00:10");
        QCOMPARE(image.picture(), QStringLiteral("I"));
        QVERIFY(image.takeCalls().endsWith(QStringLiteral("08:00:07 one: pause")));

        ScreenFixture stream("07:59:59");
        stream.follow("08:00:00-08:00:07 L freeze");
        stream.advanceTo("08:00:10");
        QCOMPARE(stream.picture(), QStringLiteral("L"));
        QVERIFY(stream.takeCalls().endsWith(QStringLiteral("08:00:07 one: pause")));
    }

    void keepsTheNameOfASoundThatIsOver()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-08:00:03 M freeze");
        screen.advanceTo("08:00:10");
        QCOMPARE(screen.picture(), QStringLiteral("stand-by M"));
        QVERIFY(!screen.one.isPlaying());
    }

    /// One that hangs behind by more than half a second does not show where the play has stopped.
    void loadsThePictureWhereTheDeckIsElsewhere()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-08:00:07 A freeze");
        screen.advanceTo("08:00:06.800");
        screen.one.drift(-700);
        screen.takeCalls();
        screen.advanceTo("08:00:08");
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:07 one: pause", "08:00:07 two: load A at 7000 standing",
                        "08:00:07.001 stage: two", "08:00:07.001 one: clear"}));
    }

    /// The last good picture of the play stands until the one where it stopped is there.
    void freezesAPlayThatBroke()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-08:00:07 A freeze");
        screen.advanceTo("08:00:03");
        screen.one.setReadyAfter(std::nullopt);
        screen.two.setReadyAfter(std::nullopt);
        screen.one.tellFailed(DeckTrouble::Unreadable);
        screen.advanceTo("08:00:08");
        QCOMPARE(screen.picture(), QStringLiteral("A at 3000"));
        QCOMPARE(screen.two.loaded().position, 7000);
        QVERIFY(screen.two.loaded().stands);
        QVERIFY(!screen.conductor.status().isOnTimeline);
        screen.two.tellReady();
        QCOMPARE(screen.picture(), QStringLiteral("A at 7000"));
        QVERIFY(screen.conductor.status().isOnTimeline);
    }
};

TREL_TEST(tst_ConductorFrozen, QCoreApplication)
#include "tst_ConductorFrozen.moc"
