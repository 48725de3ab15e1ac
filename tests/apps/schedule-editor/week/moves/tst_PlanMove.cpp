#include "../WeekFixture.h"
#include "support/TestProgram.h"
#include "week/moves/PlanMove.h"

using namespace trel::desktop::week;
using namespace trel::mediadispatch;

namespace {

constexpr int kHour = 3600;

QString outcome(const PlayPlan& plan, const PlanMove& move)
{
    const Programs programs = weekfixture::catalogue();
    const MovedPlan moved = movedPlan(plan, move, programs, noDurationIn(programs));
    if (moved.refusal != MoveRefusal::None) {
        return QStringLiteral("refused %1").arg(int(moved.refusal));
    }
    return QString::fromStdString(moved.plan.startTime + ' ' + moved.plan.endTime + ' ' +
                                  moved.plan.weeks);
}

QString refused(MoveRefusal refusal)
{
    return QStringLiteral("refused %1").arg(int(refusal));
}

PlanMove toTime(PlanMove::Part part, int second)
{
    PlanMove move;
    move.part = part;
    move.second = second;
    return move;
}

PlanMove toDay(int from, int to)
{
    PlanMove move;
    move.fromDay = from;
    move.toDay = to;
    return move;
}

} // namespace

/// What single moves of a block come to, and to which quarters they lead.
class tst_PlanMove : public QObject
{
    Q_OBJECT

private slots:
    void dragsSnap_data();
    void dragsSnap();
    void stepsSnap_data();
    void stepsSnap();
    void wholeKeepsItsLength();
    void midnightIsTheLastEnd();
    void edgesStayApart();
    void runsDecideTheEnd();
    void daysTakeEachOthersPlace();
    void timeAndDayAtOnce();
};

void tst_PlanMove::dragsSnap_data()
{
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("by");
    QTest::addColumn<int>("expected"); // -1: stays.
    QTest::newRow("hardly") << 8 * kHour << 449 << -1;
    QTest::newRow("half a quarter") << 8 * kHour << 450 << 8 * kHour + 900;
    QTest::newRow("back") << 8 * kHour << -451 << 8 * kHour - 900;
    QTest::newRow("crooked stays") << 8 * kHour + 7 * 60 << 0 << -1;
    QTest::newRow("crooked snaps") << 8 * kHour + 7 * 60 << 600 << 8 * kHour + 900;
    QTest::newRow("above midnight") << 0 << -3600 << -3600;
    QTest::newRow("just above midnight") << 300 << -700 << 0;
}

void tst_PlanMove::dragsSnap()
{
    QFETCH(int, second);
    QFETCH(int, by);
    QTEST(draggedTo(second, by).value_or(-1), "expected");
}

void tst_PlanMove::stepsSnap_data()
{
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("quarters");
    QTest::addColumn<int>("expected");
    QTest::newRow("later") << 3600 << 1 << 4500;
    QTest::newRow("earlier") << 3600 << -1 << 2700;
    QTest::newRow("crooked later") << 3600 + 60 << 1 << 4500;
    QTest::newRow("crooked earlier") << 3600 + 60 << -1 << 3600;
    QTest::newRow("crooked much earlier") << 3600 + 60 << -2 << 2700;
    QTest::newRow("from midnight") << kMidnight << -1 << kMidnight - 900;
    QTest::newRow("behind midnight") << kMidnight << 1 << kMidnight + 900;
}

void tst_PlanMove::stepsSnap()
{
    QFETCH(int, second);
    QFETCH(int, quarters);
    QTEST(steppedTo(second, quarters), "expected");
}

void tst_PlanMove::wholeKeepsItsLength()
{
    const PlayPlan plan = timePlan(1, "08:07:00", "09:12:30", "3");
    QCOMPARE(outcome(plan, toTime(PlanMove::Whole, 10 * kHour)),
             QStringLiteral("10:00:00 11:05:30 3"));
    QCOMPARE(outcome(plan, toTime(PlanMove::Whole, 8 * kHour + 420)),
             refused(MoveRefusal::Nowhere));
    QCOMPARE(outcome(plan, PlanMove()), refused(MoveRefusal::Nowhere));
    QCOMPARE(outcome(plan, toTime(PlanMove::Whole, 23 * kHour)),
             refused(MoveRefusal::PastMidnight));
    QCOMPARE(outcome(plan, toTime(PlanMove::Whole, -900)), refused(MoveRefusal::PastMidnight));
    QCOMPARE(outcome(timePlan(1, "08:00:00", "noon"), toTime(PlanMove::Whole, 0)),
             refused(MoveRefusal::Unreadable));
}

void tst_PlanMove::midnightIsTheLastEnd()
{
    const PlayPlan late = timePlan(1, "23:00:00", kDayEnd, "3");
    QCOMPARE(outcome(late, toTime(PlanMove::Whole, 22 * kHour)),
             QStringLiteral("22:00:00 23:00:00 3"));
    const PlayPlan earlier = timePlan(1, "22:00:00", "23:00:00", "3");
    QCOMPARE(outcome(earlier, toTime(PlanMove::Whole, 23 * kHour)),
             QStringLiteral("23:00:00 23:59:59 3"));
    QCOMPARE(outcome(earlier, toTime(PlanMove::End, kMidnight)),
             QStringLiteral("22:00:00 23:59:59 3"));
    QCOMPARE(outcome(earlier, toTime(PlanMove::End, kMidnight + 900)),
             refused(MoveRefusal::PastMidnight));
    QCOMPARE(outcome(late, toTime(PlanMove::End, kMidnight)), refused(MoveRefusal::Nowhere));
}

void tst_PlanMove::edgesStayApart()
{
    const PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", "3");
    QCOMPARE(outcome(plan, toTime(PlanMove::Begin, 8 * kHour + 2700)),
             QStringLiteral("08:45:00 09:00:00 3"));
    QCOMPARE(outcome(plan, toTime(PlanMove::Begin, 9 * kHour)), refused(MoveRefusal::NoLength));
    QCOMPARE(outcome(plan, toTime(PlanMove::Begin, 10 * kHour)), refused(MoveRefusal::NoLength));
    QCOMPARE(outcome(plan, toTime(PlanMove::End, 8 * kHour)), refused(MoveRefusal::NoLength));
    QCOMPARE(outcome(plan, toTime(PlanMove::End, 7 * kHour)), refused(MoveRefusal::NoLength));
    QCOMPARE(outcome(plan, toTime(PlanMove::End, 8 * kHour + 900)),
             QStringLiteral("08:00:00 08:15:00 3"));
}

void tst_PlanMove::runsDecideTheEnd()
{
    // Twice two minutes.
    PlayPlan plan = frequencyPlan(1, "08:00:00", 2, {entry(1), entry(2)}, "3");
    plan.endTime = "08:04:00";
    QCOMPARE(outcome(plan, toTime(PlanMove::Whole, 10 * kHour)),
             QStringLiteral("10:00:00 10:04:00 3"));
    QCOMPARE(outcome(plan, toTime(PlanMove::End, 10 * kHour)), refused(MoveRefusal::EndFollows));
    QCOMPARE(outcome(plan, toTime(PlanMove::Begin, 7 * kHour)), refused(MoveRefusal::EndFollows));
    plan.times = 999;
    QCOMPARE(outcome(plan, toTime(PlanMove::Whole, 10 * kHour)),
             QStringLiteral("10:00:00 23:59:59 3"));
}

void tst_PlanMove::daysTakeEachOthersPlace()
{
    const auto plan = [](const char* weeks) { return timePlan(1, "08:00:00", "09:00:00", weeks); };
    QCOMPARE(outcome(plan("3"), toDay(3, 1)), QStringLiteral("08:00:00 09:00:00 1"));
    QCOMPARE(outcome(plan("5,1"), toDay(1, 7)), QStringLiteral("08:00:00 09:00:00 5,7"));
    QCOMPARE(outcome(plan("1,3,5"), toDay(5, 2)), QStringLiteral("08:00:00 09:00:00 1,2,3"));
    QCOMPARE(outcome(plan("1,3"), toDay(1, 3)), refused(MoveRefusal::HasThatDay));
    QCOMPARE(outcome(plan("0"), toDay(1, 3)), refused(MoveRefusal::EveryDay));
    QCOMPARE(outcome(plan(""), toDay(1, 3)), refused(MoveRefusal::EveryDay));
    QCOMPARE(outcome(plan("3,8"), toDay(3, 1)), refused(MoveRefusal::UnknownDays));
    QCOMPARE(outcome(plan("3"), toDay(2, 1)), refused(MoveRefusal::UnknownDays));
}

void tst_PlanMove::timeAndDayAtOnce()
{
    PlanMove move = toTime(PlanMove::Whole, 10 * kHour);
    move.fromDay = 3;
    move.toDay = 4;
    const PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", "3");
    QCOMPARE(outcome(plan, move), QStringLiteral("10:00:00 11:00:00 4"));
    // All of it or nothing.
    move.second = 23 * kHour + 900;
    QCOMPARE(outcome(plan, move), refused(MoveRefusal::PastMidnight));
}

TREL_TEST(tst_PlanMove, trel::tests::NoApplication)
#include "tst_PlanMove.moc"
