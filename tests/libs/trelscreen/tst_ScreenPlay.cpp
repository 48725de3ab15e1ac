#include "ScreenFixture.h"
#include "trelscreen/ScreenPlay.h"

#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace {

ScreenSchedule scheduleOf(const char* plans,
                          const std::map<int, ProgramIten>& programs = ScreenFixture::letters())
{
    ScreenSchedule schedule;
    schedule.timeline = std::make_shared<const ScreenTimeline>(
        scheduleFromText(QStringLiteral("1 2024.03.04-2024.03.10 / ") + QLatin1String(plans)),
        programs, QTimeZone("Europe/Berlin"));
    schedule.catalogue = std::make_shared<const std::map<int, ProgramIten>>(programs);
    return schedule;
}

Instant at(const char* timeOfDay, int day = 4)
{
    return ScreenFixture::moment(timeOfDay, day).toMSecsSinceEpoch();
}

} // namespace

class tst_ScreenPlay : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatDecksAndLogsNeed()
    {
        const ScreenSchedule schedule = scheduleOf("08:00:00-09:00:00 A M");
        const ScreenPlay play = screenPlayAt(schedule, at("08:00:12"));
        QCOMPARE(play.name, QStringLiteral("M"));
        QCOMPARE(play.media, QStringLiteral("M"));
        QCOMPARE(play.kind, ProgramKind::Audio);
        QCOMPARE(play.positionAt(at("08:00:13")), 3000);
        QCOMPARE(play.positionAt(at("08:00:00")), 0);
        QCOMPARE(play.insertion, kNever);
    }

    void isOneAtAllItsMoments()
    {
        const ScreenSchedule schedule = scheduleOf("08:00:00-09:00:00 C*3 A");
        const ScreenPlay play = screenPlayAt(schedule, at("08:00:02.700"));
        for (const char* moment : {"08:00:02.501", "08:00:03.333", "08:00:05"}) {
            QVERIFY(screenPlayAt(schedule, at(moment)).isSamePlay(play));
            QVERIFY(play.isSamePlay(screenPlayAt(schedule, at(moment))));
        }
        for (const char* moment : {"08:00:02.500", "08:00:05.001", "08:00:08", "08:00:20.200"}) {
            QVERIFY(!screenPlayAt(schedule, at(moment)).isSamePlay(play));
        }
    }

    void isAnotherOnAnotherDay()
    {
        const ScreenSchedule schedule = scheduleOf("08:00:00-09:00:00 A");
        const ScreenPlay monday = screenPlayAt(schedule, at("08:00:02"));
        const ScreenPlay tuesday = screenPlayAt(schedule, at("08:00:02", 5));
        QVERIFY(!monday.isSamePlay(tuesday));
        QVERIFY(monday.isOfSamePlay(tuesday));
    }

    void isAnotherWhereItBeginsAtAnotherMoment()
    {
        std::map<int, ProgramIten> longer = ScreenFixture::letters();
        longer[programOf(QLatin1Char('B'))].durationMs = 6000;
        const ScreenPlay play = screenPlayAt(scheduleOf("08:00:00-09:00:00 B A"), at("08:00:07"));
        const ScreenPlay later =
            screenPlayAt(scheduleOf("08:00:00-09:00:00 B A", longer), at("08:00:07"));
        QCOMPARE(later.name, play.name);
        QVERIFY(!play.isSamePlay(later));
        QVERIFY(!later.isSamePlay(play));
        // Seen from a moment before it began, too.
        const ScreenPlay early = screenPlayAt(scheduleOf("08:00:00-09:00:00 B A"), at("08:00:04"));
        QVERIFY(!early.isSamePlay(later));
    }

    void isTheSameWhereItIsMovedByLessThanAFrame()
    {
        for (const int by : {39, 40}) {
            std::map<int, ProgramIten> longer = ScreenFixture::letters();
            longer[programOf(QLatin1Char('B'))].durationMs += by;
            const ScreenPlay play =
                screenPlayAt(scheduleOf("08:00:00-09:00:00 B A"), at("08:00:07"));
            const ScreenPlay moved =
                screenPlayAt(scheduleOf("08:00:00-09:00:00 B A", longer), at("08:00:07"));
            QCOMPARE(play.isSamePlay(moved), by == 39);
        }
    }

    void isTheSameImageWheneverItIsSeen()
    {
        const ScreenSchedule schedule = scheduleOf("08:00:00-09:00:00 I");
        QVERIFY(screenPlayAt(schedule, at("08:00:02"))
                    .isSamePlay(screenPlayAt(schedule, at("08:30:00"))));
        QVERIFY(screenPlayAt(schedule, at("09:30:00"))
                    .isSamePlay(screenPlayAt(schedule, at("07:30:00"))));
    }

    void isFrozenWhereItPlayed()
    {
        const ScreenSchedule schedule = scheduleOf("08:00:00-08:00:07 A freeze");
        const ScreenPlay play = screenPlayAt(schedule, at("08:00:06"));
        const ScreenPlay frozen = screenPlayAt(schedule, at("08:00:08"));
        QVERIFY(frozen.isFrozen());
        QVERIFY(!play.isSamePlay(frozen));
        QVERIFY(play.isOfSamePlay(frozen));
        QVERIFY(frozen.isSamePlay(screenPlayAt(schedule, at("08:10:08"))));
        QCOMPARE(frozen.positionAt(at("09:00:00")), 7000);
    }

    void isAnotherWhereItIsMadeOfAnotherFile()
    {
        std::map<int, ProgramIten> other = ScreenFixture::letters();
        other[programOf(QLatin1Char('A'))].mediaPath = "elsewhere";
        QVERIFY(!screenPlayAt(scheduleOf("08:00:00-09:00:00 A"), at("08:00:02"))
                     .isSamePlay(
                         screenPlayAt(scheduleOf("08:00:00-09:00:00 A", other), at("08:00:02"))));
    }

    void passesOverWhatIsTooShort()
    {
        const ScreenSchedule schedule = scheduleOf("08:00:00-09:00:00 A D D B");
        const ScreenPlay next = screenPlayAt(schedule, at("08:00:10"));
        QCOMPARE(next.name, QStringLiteral("B"));
        QCOMPARE(next.state.since, at("08:00:10.002"));
        // A moment before it begins.
        QCOMPARE(next.positionAt(at("08:00:10")), 0);
        QVERIFY(next.isSamePlay(screenPlayAt(schedule, at("08:00:12"))));
    }

    void findsTheEndOfWhatIsTooShort()
    {
        const ScreenSchedule schedule = scheduleOf("08:00:00-09:00:00 D*100 A");
        QVERIFY(screenPlayAt(schedule, at("08:00:00.010")).isTooShort());
        QCOMPARE(endOfShortPlays(schedule, at("08:00:00.010")), at("08:00:00.100"));
        QCOMPARE(screenPlayAt(schedule, at("08:00:00.070")).name, QStringLiteral("A"));
        QVERIFY(screenPlayAt(schedule, at("08:00:00.010"))
                    .isSamePlay(screenPlayAt(schedule, at("08:00:00.020"))));
        QCOMPARE(endOfShortPlays(scheduleOf("08:00:00-09:00:00 D"), at("08:00:00")),
                 at("08:00:01"));
    }
};

TREL_TEST(tst_ScreenPlay, QCoreApplication)
#include "tst_ScreenPlay.moc"
