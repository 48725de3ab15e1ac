#include "service/NewPlan.h"

#include "support/PlanRecords.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <limits>

using namespace trel::mediadispatch;

class tst_NewPlan : public QObject
{
    Q_OBJECT

private slots:
    void theTemplate();
    void nextId_data();
    void nextId();
    void completes_data();
    void completes();
    void completingKeepsTheRest();
    void copyFollowsItsSource();
    void behindTheLargestIdThereIsNone();
};

void tst_NewPlan::theTemplate()
{
    PlayPlan expected;
    expected.mode = TimeMode;
    expected.id = -1;
    expected.startTime = "00:00:00";
    expected.endTime = "01:00:00";
    expected.times = 1;
    expected.endAction = BlackScreen;
    expected.serviceTime = "23:59:59";
    QCOMPARE(planTemplate(), expected);
}

void tst_NewPlan::nextId_data()
{
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<int>("next");
    QTest::newRow("no plans") << QVector<int>() << 1;
    QTest::newRow("a gap stays") << QVector<int>{1, 7, 3} << 8;
    QTest::newRow("negative") << QVector<int>{-5, -1} << 1;
    QTest::newRow("0") << QVector<int>{0} << 1;
    QTest::newRow("the last one") << QVector<int>{std::numeric_limits<int>::max() - 1}
                                  << std::numeric_limits<int>::max();
}

void tst_NewPlan::nextId()
{
    QFETCH(QVector<int>, ids);
    PlayTask task = taskWithPlans({});
    for (const int id : ids) {
        task.plans.push_back(timePlan(id, "08:00:00", "09:00:00"));
    }
    QTEST(nextPlanId(task).value_or(-1), "next");
}

void tst_NewPlan::completes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("otherEnd");
    QTest::addColumn<QString>("span");
    QTest::newRow("after the latest end") << int(TimeMode) << "10:00:00"
                                          << "10:00:00-11:00:00";
    QTest::newRow("capped") << int(TimeMode) << "23:30:00"
                            << "23:30:00-23:59:59";
    QTest::newRow("no end before") << int(TimeMode) << ""
                                   << "00:00:00-01:00:00";
    QTest::newRow("an end that does not parse") << int(TimeMode) << "late"
                                                << "00:00:00-01:00:00";
    QTest::newRow("an end past the day") << int(TimeMode) << "24:00:00"
                                         << "00:00:00-01:00:00";
    QTest::newRow("FrequencyMode keeps its end") << int(FrequencyMode) << "10:00:00"
                                                 << "10:00:00-03:00:00";
}

void tst_NewPlan::completes()
{
    QFETCH(int, mode);
    QFETCH(QString, otherEnd);
    PlayPlan plan = timePlan(-1, "02:00:00", "03:00:00");
    plan.mode = mode;
    QVERIFY(
        completeNewPlan(plan, taskWithPlans({timePlan(4, "07:00:00", otherEnd.toStdString())})));
    QTEST(QString::fromStdString(plan.startTime + '-' + plan.endTime), "span");
    QCOMPARE(plan.id, 5);
}

void tst_NewPlan::completingKeepsTheRest()
{
    PlayPlan plan = timePlan(-1, "02:00:00", "03:00:00", "4");
    plan.serviceList = {1, 2};
    plan.programs = {entry(3)};
    PlayPlan expected = plan;
    QVERIFY(completeNewPlan(plan, taskWithPlans({})));
    expected.id = 1;
    expected.startTime = "00:00:00";
    expected.endTime = "01:00:00";
    QCOMPARE(plan, expected);
}

void tst_NewPlan::copyFollowsItsSource()
{
    PlayPlan source = frequencyPlan(2, "08:00:00", 7, {entry(3)}, "1,2");
    source.endTime = "22:30:00";
    source.serviceFlagB = true;
    PlayPlan expected = source;
    expected.id = 10;
    expected.startTime = "22:30:00";
    expected.endTime = "23:30:00";
    const auto copy = followingCopy(source, taskWithPlans({timePlan(9, "", "")}));
    QVERIFY(copy.has_value());
    QCOMPARE(*copy, expected);
}

void tst_NewPlan::behindTheLargestIdThereIsNone()
{
    const PlayTask task = taskWithPlans(
        {timePlan(std::numeric_limits<int>::max(), "07:00:00", "08:00:00"), timePlan(3, "", "")});
    QVERIFY(!nextPlanId(task));
    PlayPlan plan = timePlan(-1, "02:00:00", "03:00:00");
    const PlayPlan before = plan;
    QVERIFY(!completeNewPlan(plan, task));
    QCOMPARE(plan, before);
    QVERIFY(!followingCopy(before, task));
}

TREL_TEST(tst_NewPlan, trel::tests::NoApplication)
#include "tst_NewPlan.moc"
