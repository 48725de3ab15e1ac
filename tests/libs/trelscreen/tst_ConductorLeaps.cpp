#include "ScreenFixture.h"

#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace {

/// Sets the clock, and lets a second pass.
void leap(ScreenFixture& screen, const QDateTime& to)
{
    screen.clock.set(to);
    screen.advance(1000);
}

} // namespace

/// Clocks that are set, and those that go with the season.
class tst_ConductorLeaps : public QObject
{
    Q_OBJECT

private slots:
    void seeksWithinThePlay()
    {
        ScreenFixture screen("08:00:01");
        screen.one.setSeekTakes(100);
        screen.follow("08:00:00-09:00:00 H");
        screen.advanceTo("08:00:10");
        screen.takeCalls();
        screen.log.take();
        leap(screen, ScreenFixture::moment("08:30:00"));
        const QStringList calls = screen.takeCalls();
        QCOMPARE(calls.size(), 1);
        QVERIFY(calls.first().contains(QStringLiteral("one: seek 1800")));
        QVERIFY(screen.conductor.status().isOnTimeline);
        QCOMPARE(screen.conductor.tally().leaps(), 1);
        QVERIFY(screen.log.take().first().startsWith(QStringLiteral("leapt +1790000")));

        leap(screen, ScreenFixture::moment("08:10:00"));
        QVERIFY(screen.takeCalls().first().contains(QStringLiteral("one: seek 600")));
        QCOMPARE(screen.conductor.tally().leaps(), 2);
        QCOMPARE(screen.conductor.tally().switches(), 0);
    }

    void goesToAnotherPlay_data()
    {
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QString>("picture");
        QTest::newRow("the next one") << QByteArray("08:00:11") << "B at 2000";
        QTest::newRow("one far ahead") << QByteArray("08:29:34") << "B at 1000";
        QTest::newRow("one before") << QByteArray("08:00:02") << "A at 3000";
        QTest::newRow("the end") << QByteArray("09:30:00") << "black";
        QTest::newRow("the time before") << QByteArray("07:30:00") << "black";
    }
    void goesToAnotherPlay()
    {
        QFETCH(QByteArray, to);
        QFETCH(QString, picture);
        ScreenFixture screen("08:00:15", 50);
        screen.follow("08:00:00-09:00:00 A B");
        screen.advance(3000);
        leap(screen, ScreenFixture::moment(to.constData()));
        QCOMPARE(screen.picture(), picture);
        QVERIFY(screen.conductor.status().isOnTimeline);
        QCOMPARE(screen.conductor.tally().switches(), 0);
    }

    void forgetsWhatWasPreparedForAnotherTime()
    {
        ScreenFixture screen("08:00:01");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:09");
        screen.takeCalls();
        leap(screen, ScreenFixture::moment("08:00:03"));
        QVERIFY(screen.takeCalls().contains(QStringLiteral("08:00:03 two: clear")));
        screen.advanceTo("08:00:10.100");
        QCOMPARE(screen.picture(), QStringLiteral("B at 100"));
    }

    void joinsAgainWhereItWasJoiningStill()
    {
        ScreenFixture screen("08:00:30", 100);
        screen.follow("08:00:00-09:00:00 H");
        screen.advance(110);
        leap(screen, ScreenFixture::moment("08:00:10"));
        QCOMPARE(screen.picture(), QStringLiteral("H at 11000"));
    }

    void waitsForNoRetryOfAnotherTime()
    {
        ScreenFixture screen("08:00:30", 10);
        screen.one.setTrouble([](const QString&) { return DeckTrouble::Missing; });
        screen.two.setTrouble([](const QString&) { return DeckTrouble::Missing; });
        screen.follow("08:00:00-09:00:00 H");
        screen.advance(5000);
        screen.one.setTrouble({});
        screen.two.setTrouble({});
        screen.clock.set(ScreenFixture::moment("08:00:00"));
        screen.advance(2000);
        QCOMPARE(screen.picture(), QStringLiteral("H at 2000"));
    }

    void loadsTheStandingPictureOfAnotherMoment()
    {
        ScreenFixture screen("08:00:05");
        screen.follow("08:00:00-08:00:10 A freeze");
        screen.advance(1000);
        leap(screen, ScreenFixture::moment("12:00:00"));
        QCOMPARE(screen.picture(), QStringLiteral("A at 10000"));
    }

    void takesASmallStepForNothing()
    {
        ScreenFixture screen("08:00:09");
        screen.follow("08:00:00-09:00:00 A B");
        screen.advanceTo("08:00:10");
        screen.takeCalls();
        // Back into the play that is just over, and out of it again.
        screen.clock.set(ScreenFixture::moment("08:00:09.950"));
        screen.advance(1050);
        QCOMPARE(screen.conductor.tally().leaps(), 0);
        QVERIFY(screen.takeCalls().filter(QStringLiteral("stage")).isEmpty());
        screen.advance(2000);
        QVERIFY(std::abs(*screen.stage.deck()->position() - 3000) <= PositionHold::kGoodEnough);
    }

    void followsBothNightsOfTheClockChange_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<int>("hour"); ///< Of UTC, before the change.
        QTest::newRow("Berlin, left out") << QByteArray("Europe/Berlin") << QDate(2024, 3, 31) << 0;
        QTest::newRow("Berlin, twice") << QByteArray("Europe/Berlin") << QDate(2024, 10, 27) << 0;
        QTest::newRow("New York, left out")
            << QByteArray("America/New_York") << QDate(2024, 3, 10) << 6;
        QTest::newRow("New York, twice")
            << QByteArray("America/New_York") << QDate(2024, 11, 3) << 5;
        QTest::newRow("Lord Howe, half an hour")
            << QByteArray("Australia/Lord_Howe") << QDate(2024, 10, 5) << 14;
    }
    void followsBothNightsOfTheClockChange()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QDate, date);
        QFETCH(int, hour);
        const QTimeZone there(zone);
        ScreenFixture screen(
            QDateTime(date, QTime(hour, 0), Qt::UTC).addSecs(55 * 60).toTimeZone(there));
        screen.tasks = scheduleFromText(QStringLiteral(
            "1 2024.01.01-2024.12.31 / 00:30:00-01:59:55 A B freeze / 02:00:07-02:40:00 K A / "
            "02:40:00-03:10:00 H / 03:10:00-04:00:00 B A"));
        screen.followAgain();
        screen.advance(2000);
        const Instant begin = screen.clock.msecsSinceEpoch();
        int switches = 0;
        screen.timeline->visitPlays(begin, begin + 80 * 60'000, {}, [&](const ScreenState& state) {
            for (const Instant moment : {state.since + 5, state.until - 5}) {
                if (moment <= screen.clock.msecsSinceEpoch()) {
                    continue;
                }
                screen.clock.advance(moment - screen.clock.msecsSinceEpoch());
                const ScreenState now = screen.timeline->at(moment);
                const QString expected =
                    now.picture == ScreenPicture::Black
                        ? QStringLiteral("black")
                        : QStringLiteral("%1 at %2").arg(letterOf(now.progIndex)).arg(now.position);
                if (screen.picture() != expected) {
                    const QString text = screen.clock.now().toString() + QLatin1Char(' ') +
                                         screen.picture() + QStringLiteral(", not ") + expected;
                    QTest::qFail(qPrintable(text), __FILE__, __LINE__);
                    return false;
                }
            }
            ++switches;
            return true;
        });
        QVERIFY(switches > 100);
        // No change of the season is a leap of the clock.
        QCOMPARE(screen.conductor.tally().leaps(), 0);
        QCOMPARE(screen.conductor.tally().lates(), 0);
        QCOMPARE(screen.conductor.tally().seeks(), 0);
        QCOMPARE(screen.conductor.tally().worstLateness(), 0);
        QVERIFY(screen.conductor.longestOff() <= 250);
    }
};

TREL_TEST(tst_ConductorLeaps, QCoreApplication)
#include "tst_ConductorLeaps.moc"
