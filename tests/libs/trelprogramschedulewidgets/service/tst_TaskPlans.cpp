#include "service/TaskPlans.h"

#include "support/PlanRecords.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <string>
#include <vector>

using namespace trel::mediadispatch;

class tst_TaskPlans : public QObject
{
    Q_OBJECT

private slots:
    void byPlace();
    void byId();
    void removes();
};

namespace {

/// The id 7 stands in it twice.
PlayTask task()
{
    return taskWithPlans({timePlan(7, "08:00:00", "09:00:00"), timePlan(3, "09:00:00", "10:00:00"),
                          timePlan(7, "10:00:00", "11:00:00"),
                          timePlan(4, "11:00:00", "12:00:00")});
}

std::vector<std::string> starts(const PlayTask& task)
{
    std::vector<std::string> result;
    for (const PlayPlan& plan : task.plans) {
        result.push_back(plan.startTime);
    }
    return result;
}

} // namespace

void tst_TaskPlans::byPlace()
{
    PlayTask plans = task();
    QVERIFY(planAt(plans, 0) == &plans.plans.front());
    QVERIFY(planAt(plans, 3) == &plans.plans.back());
    QVERIFY(!planAt(plans, 4));
    QVERIFY(!planAt(plans, -1));
    PlayTask none;
    QVERIFY(!planAt(none, 0));
}

void tst_TaskPlans::byId()
{
    PlayTask plans = task();
    const PlayPlan* const first = &plans.plans[0];
    const PlayPlan* const last = &plans.plans[2];
    QVERIFY(firstPlanWithId(plans, 7) == first);
    QVERIFY(lastPlanWithId(plans, 7) == last);
    QVERIFY(!firstPlanWithId(plans, 5));
    QVERIFY(!lastPlanWithId(plans, 5));
}

void tst_TaskPlans::removes()
{
    PlayTask plans = task();
    removeFirstPlanWithId(plans, 5);
    QCOMPARE(plans.plans.size(), task().plans.size());
    removeFirstPlanWithId(plans, 7);
    QCOMPARE(starts(plans), (std::vector<std::string>{"09:00:00", "10:00:00", "11:00:00"}));
}

TREL_TEST(tst_TaskPlans, trel::tests::NoApplication)
#include "tst_TaskPlans.moc"
