#include "follow/EditedSchedule.h"

#include "service/scheduleManage.h"
#include "support/PlanRecords.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace trel::desktop::follow;
using namespace trel::mediadispatch;
using namespace trel::desktop;

namespace {

/// "1 3-4 with 2 plans, 5 gone", the edits in the order of their ids.
QString textOf(const ScheduleEdits& edits)
{
    QStringList parts;
    if (edits.isWhole) {
        parts.append(QStringLiteral("whole"));
    }
    for (const auto& [id, task] : edits.tasks) {
        parts.append(task ? QStringLiteral("%1 with %2").arg(id).arg(task->plans.size())
                          : QStringLiteral("%1 gone").arg(id));
    }
    if (edits.catalogue) {
        parts.append(QStringLiteral("%1 programs").arg(edits.catalogue->size()));
    }
    return parts.join(QStringLiteral(", ")) + QStringLiteral(" of %1").arg(edits.size);
}

/// What a follower is told.
class Follower : public QObject
{
public:
    explicit Follower(const EditedSchedule& schedule)
    {
        connect(&schedule, &EditedSchedule::edited, this,
                [this](const ScheduleEdits& edits) { m_told.append(textOf(edits)); });
    }

    QStringList takeTold()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_told, {});
    }

private:
    QStringList m_told;
};

PlayTask task(int id, int plans)
{
    std::vector<PlayPlan> list;
    for (int plan = 1; plan <= plans; ++plan) {
        list.push_back(timePlan(plan, "08:00:00", "09:00:00"));
    }
    return taskWithPlans(list, id);
}

} // namespace

/// The schedule that is being edited, as its followers are told of it.
class tst_EditedSchedule : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void anEditBringsItsTask();
    void whatIsFiledAsItWasIsNoEdit();
    void recordsAreShared();
    void programsComeWhenTheyChange();
    void anotherStoreBringsEverything();
    void nothingIsCopiedWithoutAFollower();
    void shortIsWhatAFrameHolds();

private:
    ScheduleHost& m_host = ScheduleHost::instance();
    scheduleManage& m_manager = scheduleManage::getInstance();
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_EditedSchedule::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_host.open(m_folder->filePath(QStringLiteral("schedule.db"))));
    m_manager.addTask(task(1, 2));
    m_manager.addTask(task(2, 3));
    QVERIFY(m_host
                .addPrograms(
                    {{QStringLiteral("a"), QStringLiteral("rtsp://a"), 0.0, ProgramKind::Live}})
                .store);
    QCoreApplication::processEvents();
}

void tst_EditedSchedule::cleanup()
{
    m_host.close();
}

void tst_EditedSchedule::anEditBringsItsTask()
{
    EditedSchedule schedule;
    Follower follower(schedule);
    QCOMPARE(textOf(schedule.everything()),
             QStringLiteral("whole, 1 with 2, 2 with 3, 1 programs of 7"));
    m_manager.addTask(task(2, 4));
    QCOMPARE(follower.takeTold(), QStringList(QStringLiteral("2 with 4 of 8")));
    m_manager.addTask(task(5, 1));
    m_manager.addPlan(5, timePlan(9, "10:00:00", "11:00:00"));
    m_manager.deleteTask(1);
    QCOMPARE(follower.takeTold(), QStringList(QStringLiteral("1 gone, 5 with 2 of 8")));
    QCOMPARE(textOf(schedule.everything()),
             QStringLiteral("whole, 2 with 4, 5 with 2, 1 programs of 8"));
    m_manager.updateUItask();
    QCOMPARE(follower.takeTold(), QStringList(QStringLiteral("2 gone, 5 gone of 0")));
}

void tst_EditedSchedule::whatIsFiledAsItWasIsNoEdit()
{
    EditedSchedule schedule;
    Follower follower(schedule);
    schedule.everything();
    m_manager.addTask(task(2, 4));
    m_manager.addTask(task(2, 3));
    m_manager.deleteTask(7);
    QCOMPARE(follower.takeTold(), QStringList());
}

void tst_EditedSchedule::recordsAreShared()
{
    EditedSchedule schedule;
    Follower follower(schedule);
    const ScheduleEdits before = schedule.everything();
    m_manager.addTask(task(2, 4));
    follower.takeTold();
    const ScheduleEdits after = schedule.everything();
    QVERIFY(before.tasks.at(1) == after.tasks.at(1));
    QVERIFY(before.tasks.at(2) != after.tasks.at(2));
    QCOMPARE(before.tasks.at(2)->plans.size(), std::size_t{3});
    QVERIFY(before.catalogue == after.catalogue);
}

void tst_EditedSchedule::programsComeWhenTheyChange()
{
    EditedSchedule schedule;
    Follower follower(schedule);
    schedule.everything();
    QVERIFY(m_host
                .addPrograms(
                    {{QStringLiteral("b"), QStringLiteral("rtsp://b"), 0.0, ProgramKind::Live}})
                .store);
    QCOMPARE(follower.takeTold(), QStringList(QStringLiteral("2 programs of 7")));
}

void tst_EditedSchedule::anotherStoreBringsEverything()
{
    EditedSchedule schedule;
    Follower follower(schedule);
    schedule.everything();
    QVERIFY(m_host.open(m_folder->filePath(QStringLiteral("other.db"))));
    QCOMPARE(follower.takeTold(), QStringList(QStringLiteral("1 gone, 2 gone, 0 programs of 0")));
}

void tst_EditedSchedule::nothingIsCopiedWithoutAFollower()
{
    EditedSchedule schedule;
    auto follower = std::make_unique<Follower>(schedule);
    const std::weak_ptr<const PlayTask> record = schedule.everything().tasks.at(1);
    QVERIFY(!record.expired());
    follower.reset();
    m_manager.addTask(task(2, 4));
    QCoreApplication::processEvents();
    QVERIFY(record.expired());
    const Follower another(schedule);
    QCOMPARE(textOf(schedule.everything()),
             QStringLiteral("whole, 1 with 2, 2 with 4, 1 programs of 8"));
}

void tst_EditedSchedule::shortIsWhatAFrameHolds()
{
    EditedSchedule schedule;
    QVERIFY(schedule.everything().isShort());
    m_manager.addTask(task(3, 200));
    QVERIFY(!EditedSchedule().everything().isShort());
}

TREL_TEST(tst_EditedSchedule, QCoreApplication)
#include "tst_EditedSchedule.moc"
