#include "ScreenFixture.h"

#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;
using namespace trel::screen;

/// New schedules and insertions while something is on screen.
class tst_ConductorChanges : public QObject
{
    Q_OBJECT

private slots:
    void leavesAloneWhatIsTheSameInANewSchedule()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:03");
        screen.takeCalls();
        screen.log.take();
        screen.followAgain();
        screen.follow("08:00:00-08:30:00 A B / 10:00:00-11:00:00 I");
        screen.advanceTo("08:00:07.999");
        QCOMPARE(screen.takeCalls(), QStringList());
        QCOMPARE(screen.log.take(), lines({"schedule", "schedule"}));
        // What is prepared stays as well.
        screen.advanceTo("08:00:09");
        screen.takeCalls();
        screen.followAgain();
        screen.advanceTo("08:00:10");
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:10 stage: two", "08:00:10 two: play", "08:00:10 one: clear"}));
    }

    void leavesAloneWhatStandsInANewSchedule()
    {
        ScreenFixture frozen("07:59:59");
        frozen.follow("08:00:00-08:00:07 A freeze");
        frozen.advanceTo("08:00:10");
        frozen.takeCalls();
        frozen.followAgain();
        frozen.advance(1000);
        QCOMPARE(frozen.takeCalls(), QStringList());

        ScreenFixture image("08:00:01");
        image.follow("08:00:00-09:00:00 I");
        image.advance(1000);
        image.takeCalls();
        image.followAgain();
        image.follow("08:00:00-10:00:00 I");
        image.advance(1000);
        QCOMPARE(image.takeCalls(), QStringList());
    }

    void endsAtTheMomentAtWhichTheScheduleIsStopped()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A");
        screen.advanceTo("08:00:09");
        screen.takeCalls();
        screen.follow("");
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:09 two: clear", "08:00:09 stage: black", "08:00:09 one: clear"}));
        screen.advance(60'000);
        QCOMPARE(screen.takeCalls(), QStringList());
    }

    void preparesAnotherPlayWhereTheNextIsAnother()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:09");
        screen.takeCalls();
        screen.follow("08:00:00-09:00:00 A I");
        screen.advanceTo("08:00:10");
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:09 two: clear", "08:00:09 two: load I at 0", "08:00:10 stage: two",
                        "08:00:10 two: play", "08:00:10 one: clear"}));
    }

    void keepsTheFormerPictureUntilTheNewOneIsThere()
    {
        ScreenFixture screen("08:00:01", 60);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:03");
        screen.takeCalls();
        screen.insert("08:00:00-08:01:00 A");
        screen.advance(99);
        QCOMPARE(screen.picture(), QStringLiteral("H at 3099"));
        // Its first picture stands until its moment comes.
        screen.advance(1);
        QCOMPARE(screen.picture(), QStringLiteral("A at 250"));
        screen.advance(1000);
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:03 two: load A at 250", "08:00:03.100 stage: two",
                        "08:00:03.100 one: clear", "08:00:03.250 two: play"}));
        QCOMPARE(screen.picture(), QStringLiteral("A at 1100"));
        QCOMPARE(screen.conductor.tally().switches(), 0);
    }

    void keepsItForATenthOfASecondAtMost()
    {
        ScreenFixture screen("08:00:01", 400);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:03");
        screen.takeCalls();
        screen.insert("08:00:00-08:01:00 A");
        screen.advance(400);
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:03 two: load A at 250", "08:00:03.100 stage: stand-by",
                        "08:00:03.100 one: clear", "08:00:03.400 stage: two",
                        "08:00:03.400 two: play", "08:00:03.400 two: speed 1.02"}));
    }

    /// However often it is changed, each time before the new picture is there.
    void keepsItNoLongerWhereChangesFollowEachOther()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:13");
        screen.two.setReadyAfter(300);
        screen.insert("08:00:00-08:01:00 A");
        screen.advance(60);
        screen.insert("08:00:00-08:01:00 B");
        screen.advance(39);
        QCOMPARE(screen.picture(), QStringLiteral("H at 13099"));
        screen.advance(1);
        QCOMPARE(screen.picture(), QStringLiteral("stand-by"));
        screen.advance(260);
        QCOMPARE(screen.picture(), QStringLiteral("B at 250"));
    }

    void waitsForThePlayToEndWhereItIsDelayed()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A");
        screen.advanceTo("08:00:07");
        screen.takeCalls();
        screen.insert("08:00:00-08:01:00 B", true);
        screen.advanceTo("08:00:10");
        QCOMPARE(screen.takeCalls(), lines({"08:00:08 two: load B at 0", "08:00:10 stage: two",
                                            "08:00:10 two: play", "08:00:10 one: clear"}));
        QCOMPARE(screen.conductor.tally().switches(), 1);
    }

    void takesTheOriginalBackWhereItWouldBe()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:03");
        screen.insert("08:00:00-08:00:13 A");
        screen.advanceTo("08:00:10.900");
        screen.takeCalls();
        screen.advanceTo("08:00:13.500");
        QCOMPARE(screen.takeCalls(), lines({
                                         "08:00:11 one: load H at 13000",
                                         "08:00:13 stage: one",
                                         "08:00:13 one: play",
                                         "08:00:13 two: clear",
                                     }));
        QCOMPARE(screen.picture(), QStringLiteral("H at 13500"));
        // An insertion that is over is forgotten with the next: nothing changes on screen by that.
        screen.insert("08:00:00-08:10:00 A", true);
        screen.advance(5000);
        QCOMPARE(screen.takeCalls(), QStringList());
        QCOMPARE(screen.picture(), QStringLiteral("H at 18500"));
    }

    void takesTheOriginalBackAtOnce()
    {
        ScreenFixture screen("08:00:01", 30);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:03");
        screen.insert("08:00:00-08:10:00 A");
        screen.advanceTo("08:00:05");
        screen.takeCalls();
        screen.cancelInsertion();
        screen.advanceTo("08:00:06");
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:05 one: load H at 5250", "08:00:05.100 stage: one",
                        "08:00:05.100 two: clear", "08:00:05.250 one: play"}));
        QCOMPARE(screen.picture(), QStringLiteral("H at 6000"));
    }

    void tellsAnInsertionFromThePlanThatItStandsFor()
    {
        ScreenFixture screen("08:00:00");
        screen.follow("08:00:00-09:00:00 A");
        screen.advance(1);
        screen.insertions = {};
        screen.insert("08:00:00-09:00:00 A");
        screen.advance(1000);
        QVERIFY(screen.conductor.status().play.state.isInserted());
        QCOMPARE(screen.conductor.status().play.insertion,
                 ScreenFixture::moment("08:00:00.001").toMSecsSinceEpoch());
        QCOMPARE(screen.picture(), QStringLiteral("A at 1000"));
    }

    void followsAProgramThatGetsAnotherLength()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:07");
        screen.takeCalls();
        screen.catalogue[programOf(QLatin1Char('A'))].durationMs = 8000;
        screen.followAgain();
        screen.advanceTo("08:00:08.500");
        // The same play, which ends earlier.
        QCOMPARE(screen.takeCalls(), lines({"08:00:07 two: load B at 0", "08:00:08 stage: two",
                                            "08:00:08 two: play", "08:00:08 one: clear"}));
    }

    void followsAProgramThatGoes()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:07");
        screen.takeCalls();
        screen.catalogue.erase(programOf(QLatin1Char('A')));
        screen.followAgain();
        screen.advance(500);
        // Of B alone, this would be the second play.
        QCOMPARE(screen.takeCalls(),
                 lines({"08:00:07 two: load B at 3250", "08:00:07.100 stage: two",
                        "08:00:07.100 one: clear", "08:00:07.100 one: load B at 0",
                        "08:00:07.250 two: play"}));
    }

    void followsAProgramWhoseFileIsAnother()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:07");
        screen.takeCalls();
        screen.catalogue[programOf(QLatin1Char('H'))].mediaPath = "elsewhere";
        screen.followAgain();
        screen.advance(1000);
        QCOMPARE(screen.picture(), QStringLiteral("elsewhere at 8000"));
    }

    /// A change that comes in the very moment of a swap is one.
    void swapsInTimeWhereTheScheduleComesAtTheMoment()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:10");
        screen.followAgain();
        screen.advanceTo("08:00:12");
        QCOMPARE(screen.conductor.tally().switches(), 1);
        QCOMPARE(screen.picture(), QStringLiteral("B at 2000"));
    }

    void fillsTheLogWithTheMomentOfEachSchedule()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 H");
        screen.clock.advance(777);
        screen.log.take();
        screen.followAgain();
        QCOMPARE(screen.log.events.front().kind, ScreenEvent::Kind::ScheduleTaken);
        QCOMPARE(screen.log.events.front().moment,
                 ScreenFixture::moment("08:00:01.777").toMSecsSinceEpoch());
        QCOMPARE(screen.log.events.front().play.name, QStringLiteral("H"));
    }
};

TREL_TEST(tst_ConductorChanges, QCoreApplication)
#include "tst_ConductorChanges.moc"
