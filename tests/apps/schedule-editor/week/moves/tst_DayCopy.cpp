#include "../WeekFixture.h"
#include "support/TestProgram.h"
#include "week/WeekTasks.h"
#include "week/moves/DayCopy.h"

#include <QStringList>

using namespace trel::desktop::week;
using namespace trel::mediadispatch;

namespace {

const QDate kMonday(2024, 3, 4);

PlayTask task(int id, const char* first, const char* last, std::vector<PlayPlan> plans)
{
    PlayTask made = taskWithPlans(std::move(plans), id);
    made.startDate = first;
    made.endDate = last;
    return made;
}

/// The first until Thursday, the second on Friday and Saturday, none on Sunday.
std::map<int, PlayTask> tasks()
{
    PlayPlan runs = frequencyPlan(7, "20:00:00", 2, {entry(1), entry(2)}, "1");
    runs.endTime = "20:04:00";
    return {{1, task(1, "2024.03.01", "2024.03.07",
                     {timePlan(3, "08:00:00", "10:00:00", "1"),
                      timePlan(4, "09:30:00", "12:00:00", "2"),
                      timePlan(5, "13:00:00", "14:00:00", "0"), runs,
                      timePlan(9, "15:00:00", "16:00:00", "1,8")})},
            {2, task(2, "2024.03.08", "2024.03.09", {timePlan(1, "09:00:00", "11:00:00", "5")})}};
}

DayCopy copied(int onto, std::initializer_list<int> more = {}, const QDate& from = kMonday)
{
    const Programs programs = weekfixture::catalogue();
    std::vector<QDate> days{kMonday.addDays(onto)};
    for (const int day : more) {
        days.push_back(kMonday.addDays(day));
    }
    return copyDay(WeekTasks(tasks()), from, days, programs, noDurationIn(programs));
}

QStringList plansOf(const DayCopy& copy, int taskId)
{
    QStringList lines;
    for (const PlayPlan& plan : copy.tasks.at(taskId).plans) {
        lines.append(QStringLiteral("%1 %2 %3 %4%5")
                         .arg(plan.id)
                         .arg(QString::fromStdString(plan.startTime),
                              QString::fromStdString(plan.endTime),
                              QString::fromStdString(plan.weeks),
                              QLatin1String(plan.isConflict ? " conflict" : "")));
    }
    return lines;
}

} // namespace

/// The plans of a day, copied onto others.
class tst_DayCopy : public QObject
{
    Q_OBJECT

private slots:
    void ticksDaysOfTheSameTask();
    void addsPlansToAnotherTask();
    void leavesDaysWithoutTaskAlone();
    void doublesNothing();
    void hasNothingToCopy();
};

void tst_DayCopy::ticksDaysOfTheSameTask()
{
    const DayCopy copy = copied(1, {2});
    QCOMPARE(int(copy.tasks.size()), 1);
    QCOMPARE(copy.plans, 4);
    QCOMPARE(plansOf(copy, 1), (QStringList{QStringLiteral("3 08:00:00 10:00:00 1,2,3"),
                                            QStringLiteral("4 09:30:00 12:00:00 2 conflict"),
                                            QStringLiteral("5 13:00:00 14:00:00 0"),
                                            QStringLiteral("7 20:00:00 20:04:00 1,2,3"),
                                            QStringLiteral("9 15:00:00 16:00:00 1,8")}));
    QCOMPARE(copy.collisions, 1);
    QVERIFY(copy.withoutTask.empty());
}

void tst_DayCopy::addsPlansToAnotherTask()
{
    const DayCopy copy = copied(4, {5});
    QCOMPARE(int(copy.tasks.size()), 1);
    QCOMPARE(plansOf(copy, 2), (QStringList{QStringLiteral("1 09:00:00 11:00:00 5"),
                                            QStringLiteral("2 08:00:00 10:00:00 5,6 conflict"),
                                            QStringLiteral("3 13:00:00 14:00:00 5,6"),
                                            QStringLiteral("4 20:00:00 20:04:00 5,6"),
                                            QStringLiteral("5 15:00:00 16:00:00 5,6")}));
    QCOMPARE(copy.collisions, 1);
}

void tst_DayCopy::leavesDaysWithoutTaskAlone()
{
    const DayCopy copy = copied(6);
    QVERIFY(copy.tasks.empty());
    QCOMPARE(copy.withoutTask, std::vector{kMonday.addDays(6)});
    QCOMPARE(copied(6, {1}).tasks.size(), std::size_t(1));
}

void tst_DayCopy::doublesNothing()
{
    // From Tuesday onto itself.
    QVERIFY(copied(1, {}, kMonday.addDays(1)).tasks.empty());
    QCOMPARE(copied(1, {1}).tasks, copied(1).tasks);
}

void tst_DayCopy::hasNothingToCopy()
{
    QVERIFY(copied(1, {}, kMonday.addDays(6)).tasks.empty());
    const DayCopy fromSaturday = copied(1, {}, kMonday.addDays(5));
    QCOMPARE(fromSaturday.plans, 0);
    QVERIFY(fromSaturday.tasks.empty());
}

TREL_TEST(tst_DayCopy, trel::tests::NoApplication)
#include "tst_DayCopy.moc"
