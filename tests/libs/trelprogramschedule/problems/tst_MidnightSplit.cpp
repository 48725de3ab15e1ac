#include "../dispatch/ScheduleWriting.h"
#include "support/TestProgram.h"

#include "ProblemLines.h"
#include "RandomTasks.h"
#include "service/PlanConflicts.h"
#include "service/TimeText.h"
#include "trelprogramschedule/problems/MidnightSplit.h"
#include "trelprogramschedule/problems/TaskProblems.h"

#include <QTest>

#include <algorithm>

using namespace trel::mediadispatch;

namespace {

/// The plays of a list over a time, as letters of their programs.
QString playsOf(const PlayPlan& plan, int seconds)
{
    const auto catalogue = lettersCatalogue();
    QString plays;
    for (int run = 0; run < 100 && seconds > 0; ++run) {
        for (const struProgInfo& entry : plan.programs) {
            for (int play = 0; play < entry.playCount && seconds > 0; ++play) {
                plays += letterOf(entry.progIndex);
                seconds -= static_cast<int>(catalogue.at(entry.progIndex).durationMs / 1000);
            }
        }
    }
    return plays;
}

/// As textOf, where the runs do not count.
QString written(PlayPlan plan)
{
    plan.times = planFromText(QStringLiteral("00:00:00-01:00:00")).times;
    return textOf(plan);
}

int playCountOf(const PlayPlan& plan)
{
    int plays = 0;
    for (const struProgInfo& entry : plan.programs) {
        plays += entry.playCount;
    }
    return plays * plan.times;
}

int lengthOf(const PlayPlan& plan)
{
    return timeFromText(plan.startTime).secsTo(timeFromText(plan.endTime));
}

} // namespace

class tst_MidnightSplit : public QObject
{
    Q_OBJECT

private slots:
    void splits_data();
    void splits();
    void playsTheSame();
    void leavesNoProblemBehind();
    void noIdIsLeft();
    void thePlanIsNotThere();
};

void tst_MidnightSplit::splits_data()
{
    QTest::addColumn<QString>("plan");
    QTest::addColumn<QString>("evening");
    QTest::addColumn<QString>("morning");
    const auto row = [](const char* name, const char* plan, const char* evening,
                        const char* morning) {
        QTest::newRow(name) << QString::fromLatin1(plan) << QString::fromLatin1(evening)
                            << QString::fromLatin1(morning);
    };
    row("by time", "22:00:00-02:00:00 A B*2 on=1,7 id=3", "22:00:00-23:59:59 A B*2 on=1,7 id=3",
        "00:00:00-02:00:00 A B*2 on=2,1 id=-1");
    row("by time, every day", "22:00:00-02:00:00 A freeze id=3", "22:00:00-23:59:59 A freeze id=3",
        "00:00:00-02:00:00 A freeze id=-1");
    row("by time, up to midnight", "22:00:00-00:00:00 A id=3", "22:00:00-23:59:59 A id=3", "");
    row("by runs, in the first run", "22:30:00 x1 H*3 on=5 id=3",
        "22:30:00-23:30:00 H freeze on=5 id=3", "00:00:00-02:00:00 H*2 on=6 id=-1");
    row("by runs, in a later one", "22:00:00 x3 H A*180 id=3",
        "22:00:00-23:30:00 H A*180 freeze id=3", "00:00:00-03:00:00 H A*180 id=-1");
    row("by runs, in the last one", "22:00:00 x2 A*180 H id=3",
        "22:00:00-23:59:59 A*180 H freeze id=3", "00:00:00-01:00:00 H id=-1");
    row("by runs, within the list", "22:00:00 x3 A*90 H*2 freeze id=3",
        "22:00:00-23:15:00 A*90 H freeze id=3", "00:00:00-05:30:00 H A*90 H freeze id=-1");
    row("not inverted", "20:00:00-22:00:00 A id=3", "", "");
    row("not beyond midnight", "22:00:00 x2 H id=3", "", "");
    row("its only play", "23:30:00 x1 H id=3", "", "");
    row("its first play", "23:30:00 x3 H id=3", "", "");
    row("more than a day is left", "22:00:00 x99 H id=3", "", "");
    row("without an end", "22:00:00 x1 I id=3", "", "");
    row("nothing to play", "22:00:00-02:00:00 A mode=2 times=1 id=3", "", "");
}

void tst_MidnightSplit::splits()
{
    QFETCH(QString, plan);
    QFETCH(QString, evening);
    QFETCH(QString, morning);
    const auto split = planSplitAtMidnight(planFromText(plan), lettersCatalogue());
    QCOMPARE(split.has_value(), !evening.isEmpty());
    if (split) {
        QCOMPARE(written(split->evening), written(planFromText(evening)));
        QCOMPARE(split->morning ? written(*split->morning) : QString(),
                 morning.isEmpty() ? QString() : written(planFromText(morning)));
    }
}

// What was played in one go is played in two, whole and in the same order.
void tst_MidnightSplit::playsTheSame()
{
    std::mt19937 random(2230);
    int splits = 0;
    for (int i = 0; i < 3000; ++i) {
        PlayPlan plan = planFromText(QStringLiteral("00:00:00 x1"));
        plan.startTime = timeToText(QTime(20, 0).addSecs(static_cast<int>(random() % 14000)));
        plan.times = 1 + static_cast<int>(random() % 5);
        for (std::size_t left = 1 + random() % 4; left > 0; --left) {
            plan.programs.emplace_back();
            plan.programs.back().progIndex = programOf(QLatin1Char("AHHB"[random() % 4]));
            plan.programs.back().playCount = 1 + static_cast<int>(random() % 3);
        }
        const auto split = planSplitAtMidnight(plan, lettersCatalogue());
        if (!split) {
            continue;
        }
        ++splits;
        QVERIFY(split->morning);
        const int evening = lengthOf(split->evening);
        QCOMPARE(playsOf(split->evening, evening) +
                     playsOf(*split->morning, lengthOf(*split->morning)),
                 playsOf(plan, 1'000'000).left(playCountOf(plan)));
    }
    QVERIFY(splits > 300);
}

void tst_MidnightSplit::leavesNoProblemBehind()
{
    std::mt19937 random(2231);
    int splits = 0;
    for (int i = 0; i < 3000; ++i) {
        const PlayTask task = randomTask(random, 1);
        for (const ScheduleProblem& problem : taskProblems(task, lettersCatalogue(), {})) {
            if (problem.kind != ProblemKind::OverMidnight) {
                continue;
            }
            const auto split = splitAtMidnight(task, problem.planId, lettersCatalogue());
            QCOMPARE(split.has_value(), problem.canBeSplit);
            if (!split) {
                continue;
            }
            ++splits;
            for (const ScheduleProblem& left : taskProblems(*split, lettersCatalogue(), {})) {
                const bool isOfIt = left.planId == problem.planId ||
                                    left.planId > static_cast<int>(task.plans.size());
                QVERIFY2(!isOfIt || left.kind != ProblemKind::OverMidnight,
                         qPrintable(lineOf(left)));
            }
            // All other plans stay as they are.
            for (std::size_t row = 0; row < task.plans.size(); ++row) {
                QVERIFY(static_cast<int>(row) == problem.planRow ||
                        split->plans[row] == task.plans[row]);
            }
        }
    }
    QVERIFY(splits > 300);
}

void tst_MidnightSplit::noIdIsLeft()
{
    PlayTask task = scheduleFromText(QStringLiteral("1 2027.03.01-2027.03.31 / "
                                                    "22:00:00-02:00:00 A id=2147483647"))
                        .begin()
                        ->second;
    QVERIFY(!splitAtMidnight(task, task.plans[0].id, lettersCatalogue()));
    task.plans[0].id = 7;
    const auto split = splitAtMidnight(task, 7, lettersCatalogue());
    QVERIFY(split);
    QCOMPARE(split->plans.size(), std::size_t(2));
    QCOMPARE(split->plans[1].id, 8);
}

void tst_MidnightSplit::thePlanIsNotThere()
{
    QVERIFY(!splitAtMidnight({}, 1, lettersCatalogue()));
}

TREL_TEST(tst_MidnightSplit, trel::tests::NoApplication)
#include "tst_MidnightSplit.moc"
