#include "ScreenFixture.h"

#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace {

using Kind = ScreenEvent::Kind;

/// A program that cannot be loaded for now.
class Broken
{
public:
    Broken(ScreenFixture& screen, const char* media, DeckTrouble trouble)
        : m_media(QLatin1String(media))
        , m_trouble(trouble)
    {
        for (RecordedDeck* deck : {&screen.one, &screen.two}) {
            deck->setTrouble([this](const QString& asked) {
                ++m_tries;
                return asked == m_media ? m_trouble : DeckTrouble::None;
            });
        }
    }

    void mend() { m_trouble = DeckTrouble::None; }
    void set(DeckTrouble trouble) { m_trouble = trouble; }
    int takeTries() { return std::exchange(m_tries, 0); }

private:
    QString m_media;
    DeckTrouble m_trouble;
    int m_tries = 0;
};

/// Whether the last picture that was told of came back after a fault.
bool isShownAgain(const RecordedLog& log)
{
    const auto shown =
        std::find_if(log.events.rbegin(), log.events.rend(),
                     [](const ScreenEvent& event) { return event.kind == Kind::Shown; });
    return shown != log.events.rend() && shown->isAgain;
}

} // namespace

/// What cannot be shown, and comes back.
class tst_ConductorFaults : public QObject
{
    Q_OBJECT

private slots:
    void standsByForWhatIsNotReady()
    {
        ScreenFixture screen("07:59:59");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:07");
        screen.two.setReadyAfter(std::nullopt);
        screen.log.take();
        screen.takeCalls();
        screen.advanceTo("08:00:10.700");
        // Not a moment longer than A has.
        QCOMPARE(screen.takeCalls(), lines({"08:00:08 two: load B at 0", "08:00:10 stage: stand-by",
                                            "08:00:10 one: clear"}));
        screen.two.tellReady();
        QCOMPARE(screen.takeCalls(), lines({"08:00:10.700 stage: two", "08:00:10.700 two: play",
                                            "08:00:10.700 two: seek 800"}));
        QCOMPARE(screen.log.take(), lines({"left A", "late B", "switch B +700", "sought B -700"}));
        QCOMPARE(screen.conductor.tally().lates(), 1);
        QCOMPARE(screen.conductor.tally().worstLateness(), 700);
        QCOMPARE(screen.conductor.longestOff(), 700);
    }

    void triesAgainWithPausesAndJoins()
    {
        ScreenFixture screen("07:59:59", 10);
        Broken broken(screen, "H", DeckTrouble::Missing);
        screen.follow("07:00:00-08:00:00 B / 08:00:00-09:00:00 H");
        screen.advanceTo("08:00:10");
        const QStringList calls = screen.takeCalls();
        // From the moment at which it was first loaded: 0.25 s after its failure, then 0.5, 1, 1,
        // ... s after the last try, and from its beginning on with the position that it would have.
        const QStringList loads = calls.filter(QStringLiteral("load H"));
        QCOMPARE(loads.mid(0, 5),
                 lines({"07:59:59 two: load H at 0", "07:59:59.260 two: load H at 0",
                        "07:59:59.760 two: load H at 0", "08:00:00.760 one: load H at 1010",
                        "08:00:01.760 one: load H at 2010"}));
        QCOMPARE(screen.picture(), QStringLiteral("stand-by"));
        QCOMPARE(screen.log.take(Kind::Fault), lines({"fault H missing"}));
        QCOMPARE(screen.conductor.tally().faults(DeckTrouble::Missing), 1);
        QCOMPARE(screen.conductor.status().fault.trouble, DeckTrouble::Missing);

        broken.mend();
        screen.advance(2000);
        QCOMPARE(screen.picture(), QStringLiteral("H at 12000"));
        QVERIFY(screen.conductor.status().isOnTimeline);
        QCOMPARE(screen.conductor.status().fault.trouble, DeckTrouble::None);
        screen.advance(1000);
        const QStringList told = screen.log.take();
        // It did not come at its time.
        QCOMPARE(told.filter(QStringLiteral("shown H")).size(), 1);
        QCOMPARE(told.filter(QStringLiteral("switch H")).size(), 0);
        const QStringList recovered = told.filter(QStringLiteral("recovered"));
        QCOMPARE(recovered.size(), 1);
        QVERIFY(recovered.first().startsWith(QStringLiteral("recovered H missing")));
    }

    void isBackWithinTwoSecondsOfRecovery_data()
    {
        QTest::addColumn<int>("after");
        for (const int after : {1, 100, 333, 777, 1500, 2222, 5001, 9876, 60'000}) {
            QTest::addRow("%d ms", after) << after;
        }
    }
    void isBackWithinTwoSecondsOfRecovery()
    {
        QFETCH(int, after);
        ScreenFixture screen("08:00:10", 200);
        Broken broken(screen, "H", DeckTrouble::Unreadable);
        screen.follow("08:00:00-09:00:00 H");
        screen.advance(after);
        QCOMPARE(screen.picture(), QStringLiteral("stand-by"));
        broken.mend();
        screen.advance(2000);
        QVERIFY(screen.conductor.status().isOnTimeline);
        QCOMPARE(screen.picture(), QStringLiteral("H at %1").arg(10'000 + after + 2000));
    }

    void keepsTheLastGoodPictureOfThePlay()
    {
        ScreenFixture screen("08:00:01");
        Broken broken(screen, "H", DeckTrouble::None);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:05");
        screen.takeCalls();
        broken.set(DeckTrouble::Unreadable);
        screen.one.tellFailed(DeckTrouble::Unreadable);
        screen.advance(10'000);
        QCOMPARE(screen.picture(), QStringLiteral("H at 5000"));
        QVERIFY(!screen.conductor.status().isOnTimeline);
        QVERIFY(screen.takeCalls().filter(QStringLiteral("stage")).isEmpty());
        broken.mend();
        screen.advance(2000);
        QCOMPARE(screen.picture(), QStringLiteral("H at 17000"));
        QCOMPARE(screen.stage.deck(), &screen.two);
        screen.advance(1000);
        QVERIFY(screen.log.take().contains(QStringLiteral("fault H unreadable")));
        QVERIFY(screen.conductor.longestOff() > 10'000);
    }

    void endsTheSoundOfWhatBroke()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 M");
        screen.advanceTo("08:00:03");
        QCOMPARE(screen.picture(), QStringLiteral("stand-by M"));
        screen.one.setReadyAfter(std::nullopt);
        screen.one.tellFailed(DeckTrouble::Unreadable);
        QCOMPARE(screen.picture(), QStringLiteral("stand-by"));
        QVERIFY(screen.one.loaded().media.isEmpty());
    }

    void takesAnEarlyEndForABreak()
    {
        ScreenFixture screen("08:00:01");
        Broken broken(screen, "H", DeckTrouble::None);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:05");
        broken.set(DeckTrouble::Refused);
        screen.one.tellEnded();
        screen.advance(3000);
        QCOMPARE(screen.picture(), QStringLiteral("H at 5000"));
        QCOMPARE(screen.log.take(Kind::Fault), lines({"fault H broke off", "fault H refused"}));
    }

    void takesAnEndInTheLastHalfSecondForTheEnd()
    {
        for (const qint64 early : {500, 501}) {
            ScreenFixture screen("08:00:01");
            screen.follow("08:00:00-09:00:00 A");
            screen.advanceTo("08:00:09");
            screen.advance(1000 - early);
            screen.one.tellEnded();
            screen.advanceTo("08:00:10");
            QCOMPARE(screen.conductor.tally().faults(DeckTrouble::BrokeOff), early - 500);
        }
    }

    void noticesThatAPlayStandsStill()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:05");
        screen.one.setStalled(true);
        screen.advance(900);
        QCOMPARE(screen.conductor.tally().faults(), 0);
        screen.advance(600);
        QCOMPARE(screen.conductor.tally().faults(DeckTrouble::Stalled), 1);
        // The other deck has taken over.
        screen.advance(1500);
        QCOMPARE(screen.picture(), QStringLiteral("H at 8000"));
        QCOMPARE(screen.stage.deck(), &screen.two);
    }

    void noticesThatAStreamStandsStill()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 L");
        screen.advanceTo("08:00:05");
        screen.one.setStalled(true);
        screen.advance(4000);
        QCOMPARE(screen.conductor.tally().faults(DeckTrouble::Stalled), 1);
        QCOMPARE(screen.stage.deck(), &screen.two);
        QVERIFY(screen.conductor.status().isOnTimeline);
    }

    /// A stream takes seconds to be given up; all that time was a pause as well.
    void triesAgainSoonAfterWhatTookLongToFail()
    {
        ScreenFixture screen("08:00:10", 5000);
        Broken broken(screen, "L", DeckTrouble::Unreachable);
        screen.follow("08:00:00-09:00:00 L");
        screen.advance(16'000);
        QCOMPARE(screen.takeCalls().filter(QStringLiteral("load L")),
                 lines({"08:00:10 one: load L at 0", "08:00:15.250 one: load L at 0",
                        "08:00:20.500 one: load L at 0", "08:00:25.750 one: load L at 0"}));
    }

    void tellsTheDeckHowOftenItHasFailed()
    {
        ScreenFixture screen("08:00:10", 10);
        Broken broken(screen, "L", DeckTrouble::Unreachable);
        screen.follow("08:00:00-09:00:00 L");
        QCOMPARE(screen.one.loaded().failures, 0);
        screen.advance(260);
        QCOMPARE(screen.one.loaded().failures, 1);
        screen.advance(500);
        QCOMPARE(screen.one.loaded().failures, 2);
        broken.mend();
        screen.advance(3000);
        QVERIFY(screen.conductor.status().isOnTimeline);
        (screen.stage.deck() == &screen.one ? screen.one : screen.two).tellEnded();
        screen.advance(250);
        QVERIFY(screen.one.loaded().failures == 1 || screen.two.loaded().failures == 1);
    }

    void givesUpALoadThatNeverEnds_data()
    {
        QTest::addColumn<char>("program");
        QTest::addColumn<qint64>("deadline");
        QTest::newRow("stream") << 'L' << qint64(20'000);
        QTest::newRow("file") << 'H' << qint64(10'000);
    }
    void givesUpALoadThatNeverEnds()
    {
        QFETCH(char, program);
        QFETCH(qint64, deadline);
        ScreenFixture screen("08:00:01", std::nullopt);
        screen.follow((std::string("08:00:00-09:00:00 ") + program).c_str());
        screen.advance(deadline - 1);
        QCOMPARE(screen.conductor.tally().faults(), 0);
        screen.advance(1);
        QCOMPARE(screen.conductor.tally().faults(DeckTrouble::Stalled), 1);
        screen.one.setReadyAfter(10);
        screen.two.setReadyAfter(10);
        screen.advance(1000);
        QVERIFY(screen.conductor.status().isOnTimeline);
    }

    void connectsAgainToAStreamThatEnds()
    {
        ScreenFixture screen("08:00:01", 300);
        screen.follow("08:00:00-09:00:00 L");
        screen.advanceTo("08:00:05");
        screen.takeCalls();
        screen.one.tellEnded();
        screen.advance(2000);
        QCOMPARE(screen.takeCalls(), lines({"08:00:05 one: pause", "08:00:05.250 two: load L at 0",
                                            "08:00:05.550 stage: two", "08:00:05.550 two: play",
                                            "08:00:05.550 one: clear"}));
        QCOMPARE(screen.log.take(Kind::Recovered), lines({"recovered L broke off +550 tries 1"}));
    }

    /// Two decks: the next play has one, and the last picture of what broke the other.
    void givesWayToWhatIsNext()
    {
        ScreenFixture screen("08:00:01");
        Broken broken(screen, "A", DeckTrouble::None);
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:05");
        broken.set(DeckTrouble::Missing);
        screen.one.tellFailed(DeckTrouble::Missing);
        screen.advanceTo("08:00:07.999");
        screen.takeCalls();
        screen.advanceTo("08:00:10.500");
        QCOMPARE(screen.takeCalls(), lines({"08:00:08 two: load B at 0", "08:00:10 stage: two",
                                            "08:00:10 two: play", "08:00:10 one: clear"}));
    }

    void givesWayLaterWhereItIsJustComingBack()
    {
        for (const qint64 left : {1700, 1200, 900}) {
            ScreenFixture screen("08:00:01");
            screen.follow("08:00:00-09:00:00 A B");
            screen.advanceTo("08:00:05");
            screen.two.setSeekTakes(100);
            screen.two.setReadyAfter(4750 - left);
            screen.one.tellFailed(DeckTrouble::Missing);
            screen.advanceTo("08:00:08.500");
            QCOMPARE(screen.picture(),
                     left == 1700 ? QStringLiteral("A at 8500") : QStringLiteral("A at 5000"));
            screen.one.setReadyAfter(900);
            screen.two.setReadyAfter(900);
            screen.advanceTo("08:00:10");
            QCOMPARE(screen.picture(), QStringLiteral("B at 0"));
        }
    }

    void hearsNothingOfAnotherLoad()
    {
        ScreenFixture screen("08:00:01", std::nullopt);
        screen.follow("08:00:00-09:00:00 H");
        screen.advance(1000);
        emit screen.one.ready(99);
        emit screen.one.failed(99, {DeckTrouble::Missing, {}});
        emit screen.one.ended(99);
        emit screen.two.ready(0);
        emit screen.two.failed(0, {DeckTrouble::Missing, {}});
        screen.advance(1000);
        QCOMPARE(screen.picture(), QStringLiteral("stand-by"));
        QCOMPARE(screen.conductor.tally().faults(), 0);
        screen.one.tellReady();
        QCOMPARE(screen.stage.deck(), &screen.one);
    }

    void announcesAFaultOnceForEachPlay()
    {
        ScreenFixture screen("08:00:01");
        Broken broken(screen, "A", DeckTrouble::Missing);
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:10.500");
        QCOMPARE(screen.picture(), QStringLiteral("B at 500"));
        QCOMPARE(screen.conductor.status().fault.trouble, DeckTrouble::None);
        // A is announced each time that it is to be on.
        screen.advanceTo("08:00:30");
        QCOMPARE(screen.log.take(Kind::Fault),
                 lines({"fault A missing", "fault A missing", "fault A missing"}));
    }

    void countsAsOneFaultWhatBreaksAgainAtOnce()
    {
        ScreenFixture screen("08:00:01", 10);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:05");
        screen.log.take();
        for (int i = 0; i < 10; ++i) {
            (screen.stage.deck() == &screen.one ? screen.one : screen.two).tellEnded();
            screen.advance(1300);
        }
        const QStringList told = screen.log.take();
        QCOMPARE(told.count(QStringLiteral("fault H broke off")), 1);
        QVERIFY(told.filter(QStringLiteral("recovered")).isEmpty());
    }

    /// What breaks again and again is off the schedule all the time.
    void isBackOnlyOnceItLasts()
    {
        ScreenFixture screen("08:00:01", 10);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:05");
        const auto breakOff = [&screen] {
            (screen.stage.deck() == &screen.one ? screen.one : screen.two).tellEnded();
        };
        breakOff();
        screen.log.take();
        qint64 off = 0;
        // After a pause and a quarter of a second to load it is back, and breaks within a second.
        for (const qint64 away : {500, 750, 1250, 1250, 1250}) {
            screen.advance(away);
            QVERIFY(screen.conductor.status().isOnTimeline);
            QVERIFY(isShownAgain(screen.log));
            screen.advance(900);
            off += away + 900;
            breakOff();
            QCOMPARE(screen.conductor.longestOff(), off);
        }
        QVERIFY(screen.log.take(Kind::Recovered).isEmpty());
        screen.advance(1250 + 999);
        QVERIFY(screen.log.take(Kind::Recovered).isEmpty());
        screen.advance(1);
        QCOMPARE(screen.log.take(Kind::Recovered), lines({"recovered H broke off +10750 tries 6"}));
        // What was good in the end does not count.
        QCOMPARE(screen.conductor.longestOff(), off + 1250);
    }

    void hasRecoveredWhereItLastedToItsEnd()
    {
        ScreenFixture screen("08:00:01", 10);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:05");
        screen.one.tellEnded();
        screen.advance(1000);
        QVERIFY(screen.conductor.status().isOnTimeline);
        screen.log.take();
        screen.follow("08:00:00-09:00:00 B");
        const QStringList told = screen.log.take();
        const int recovered = told.indexOf(QStringLiteral("recovered H broke off +500 tries 1"));
        QVERIFY(recovered > 0);
        QVERIFY(told.indexOf(QStringLiteral("left H")) > recovered);
        QCOMPARE(screen.conductor.longestOff(), 500);
    }

    void tellsAStillPictureFromNone()
    {
        ScreenFixture screen("08:00:01");
        Broken broken(screen, "H", DeckTrouble::None);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:05");
        QVERIFY(!screen.conductor.status().keepsLastPicture);
        broken.set(DeckTrouble::Unreadable);
        screen.one.tellFailed(DeckTrouble::Unreadable);
        screen.advance(3000);
        QVERIFY(!screen.conductor.status().isOnTimeline);
        QVERIFY(screen.conductor.status().keepsLastPicture);
        broken.mend();
        screen.advance(2000);
        QVERIFY(screen.conductor.status().isOnTimeline);
        QVERIFY(!screen.conductor.status().keepsLastPicture);

        ScreenFixture dark("08:00:01");
        Broken never(dark, "H", DeckTrouble::Missing);
        dark.follow("08:00:00-09:00:00 H");
        dark.advance(3000);
        QVERIFY(!dark.conductor.status().isOnTimeline);
        QVERIFY(!dark.conductor.status().keepsLastPicture);
    }

    /// What is left of the file ends before the place that the schedule has come to: it is not put
    /// on the stage to be over at once, again and again.
    void leavesOutWhatHasBeenCutShort()
    {
        ScreenFixture screen("08:10:00", 10);
        screen.one.setMediaLength(60'000);
        screen.two.setMediaLength(60'000);
        screen.follow("08:00:00-09:00:00 H");
        screen.advance(20'000);
        QCOMPARE(screen.conductor.tally().faults(DeckTrouble::BrokeOff), 1);
        QVERIFY(screen.log.take().filter(QStringLiteral("shown")).isEmpty());
        QVERIFY(screen.takeCalls().filter(QStringLiteral("play")).isEmpty());
        QCOMPARE(screen.picture(), QStringLiteral("stand-by"));
        QVERIFY(screen.conductor.longestOff() >= 20'000);
        screen.one.setMediaLength(3'600'000);
        screen.two.setMediaLength(3'600'000);
        screen.advance(2000);
        QVERIFY(screen.conductor.status().isOnTimeline);
    }

    void isInTimeWhereItWasMendedBefore()
    {
        ScreenFixture screen("08:00:01", 10);
        Broken broken(screen, "B", DeckTrouble::Missing);
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:08.100");
        broken.mend();
        screen.advanceTo("08:00:10");
        QCOMPARE(screen.picture(), QStringLiteral("B at 0"));
        QVERIFY(screen.log.take().contains(QStringLiteral("switch B +0")));
    }
};

TREL_TEST(tst_ConductorFaults, QCoreApplication)
#include "tst_ConductorFaults.moc"
