#include "trelscreen/ScreenTally.h"

#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::screen;

namespace {

using Kind = ScreenEvent::Kind;

ScreenEvent shown(qint64 lateness, bool isSwitch = true)
{
    ScreenEvent event;
    event.kind = Kind::Shown;
    event.isSwitch = isSwitch;
    event.amount = lateness;
    return event;
}

ScreenEvent fault(DeckTrouble trouble)
{
    ScreenEvent event;
    event.kind = Kind::Fault;
    event.fault.trouble = trouble;
    return event;
}

ScreenEvent of(Kind kind)
{
    ScreenEvent event;
    event.kind = kind;
    return event;
}

} // namespace

class tst_ScreenTally : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtFirst()
    {
        const ScreenTally tally;
        QCOMPARE(tally.switches(), 0);
        QCOMPARE(tally.lateness(50), 0);
        QCOMPARE(tally.worstLateness(), 0);
        QCOMPARE(tally.faults(), 0);
        QCOMPARE(tally.longestOff(1000), 0);
    }

    void ranksTheLatenessOfSwitches()
    {
        ScreenTally tally;
        for (int i = 1; i <= 100; ++i) {
            tally.note(shown(i));
        }
        tally.note(shown(5000, false));
        QCOMPARE(tally.switches(), 100);
        QCOMPARE(tally.lateness(50), 50);
        QCOMPARE(tally.lateness(99), 99);
        QCOMPARE(tally.lateness(100), 100);
        QCOMPARE(tally.worstLateness(), 100);
    }

    void isExactBelowASecondAndNearAbove()
    {
        ScreenTally tally;
        tally.note(shown(999));
        QCOMPARE(tally.lateness(50), 999);
        tally.note(shown(1000));
        tally.note(shown(1999));
        tally.note(shown(123'456'789));
        QCOMPARE(tally.lateness(50), 1999);
        QCOMPARE(tally.lateness(75), 1999);
        QCOMPARE(tally.lateness(100), 123'456'789);
        tally.note(shown(2000));
        tally.note(shown(3999));
        tally.note(shown(200'000'000));
        QCOMPARE(tally.lateness(70), 3999);
        QCOMPARE(tally.worstLateness(), 200'000'000);
    }

    void takesTheLatestOfAll()
    {
        ScreenTally tally;
        tally.note(shown(std::numeric_limits<qint64>::max()));
        tally.note(shown(-3));
        QCOMPARE(tally.switches(), 2);
        QCOMPARE(tally.lateness(50), 0);
        QCOMPARE(tally.worstLateness(), std::numeric_limits<qint64>::max());
        QCOMPARE(tally.lateness(100), (qint64(2000) << 31) - 1);
    }

    void countsEachKind()
    {
        ScreenTally tally;
        tally.note(of(Kind::CorrectedBySpeed));
        tally.note(of(Kind::Sought));
        tally.note(of(Kind::Sought));
        for (int i = 0; i < 3; ++i) {
            tally.note(of(Kind::ClockLeapt));
        }
        for (int i = 0; i < 4; ++i) {
            tally.note(of(Kind::Late));
        }
        tally.note(of(Kind::Left));
        tally.note(of(Kind::Recovered));
        tally.note(of(Kind::ScheduleTaken));
        tally.note(fault(DeckTrouble::Missing));
        tally.note(fault(DeckTrouble::Missing));
        tally.note(fault(DeckTrouble::Stalled));
        QCOMPARE(tally.speedCorrections(), 1);
        QCOMPARE(tally.seeks(), 2);
        QCOMPARE(tally.leaps(), 3);
        QCOMPARE(tally.lates(), 4);
        QCOMPARE(tally.faults(DeckTrouble::Missing), 2);
        QCOMPARE(tally.faults(DeckTrouble::Stalled), 1);
        QCOMPARE(tally.faults(DeckTrouble::BrokeOff), 0);
        QCOMPARE(tally.faults(), 3);
        QCOMPARE(tally.switches(), 0);
    }

    void keepsTheLongestTimeOff()
    {
        ScreenTally tally;
        tally.setOnTimeline(true, 100);
        QCOMPARE(tally.longestOff(900), 0);
        tally.setOnTimeline(false, 1000);
        tally.setOnTimeline(false, 1200);
        QCOMPARE(tally.longestOff(1300), 300);
        tally.setOnTimeline(true, 1500);
        QCOMPARE(tally.longestOff(9000), 500);
        tally.setOnTimeline(false, 9000);
        tally.setOnTimeline(true, 9100);
        QCOMPARE(tally.longestOff(9200), 500);
    }
};

TREL_TEST(tst_ScreenTally, trel::tests::NoApplication)
#include "tst_ScreenTally.moc"
