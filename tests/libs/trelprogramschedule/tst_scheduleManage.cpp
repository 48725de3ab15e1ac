#include "StoreFixture.h"
#include "faults/FaultWords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::mediadispatch;

/// The declared contract, against the real service.
class tst_scheduleManage : public QObject
{
    Q_OBJECT

private slots:
    void isOneObject();
    void addTaskReplacesPlansToo();
    void addTaskShowsAtOnce();
    void editsStayOutOfTheStoredSet();
    void deletingAnUnknownTaskDoesNothing();
    void unknownTaskIsADefaultRecord();
    void theAnswerToAnUnknownTaskIsNotFiled();
    void getPlanTellsThePosition();
    void unknownPlanLeavesTheIndex();
    void addPlanReplacesOrAppends();
    void updateUItaskDropsEdits();
    void resetUiTaskDropsEditsAndKeepsTheStoredSet();
    void selectedProgramIsKept();
    void unknownPrograms();
    void kindsWithoutLength();
    void dates_data();
    void dates();
    void times_data();
    void times();
    void worksWithNoStore();
};

void tst_scheduleManage::isOneObject()
{
    QCOMPARE(&scheduleManage::getInstance(), &scheduleManage::getInstance());
    QVERIFY(scheduleManage::getInstance().metaObject() == &scheduleManage::staticMetaObject);
}

void tst_scheduleManage::addTaskReplacesPlansToo()
{
    StoreFixture store;
    PlayTask task = everyFieldTask(5);
    store.manager.addTask(task);
    task.plans.erase(task.plans.begin());
    task.startDate = "2030.01.01";
    store.manager.addTask(task);
    QVERIFY(store.manager.getTask(5) == task);
    QCOMPARE(store.manager.getAllTask().size(), std::size_t(1));
}

void tst_scheduleManage::addTaskShowsAtOnce()
{
    StoreFixture store;
    store.manager.addTask(everyFieldTask(12));
    QVERIFY(store.manager.getAllTask().at(12) == everyFieldTask(12));
}

void tst_scheduleManage::editsStayOutOfTheStoredSet()
{
    StoreFixture store;
    store.save({{1, everyFieldTask(1)}});
    PlayTask edited = everyFieldTask(1);
    edited.plans.clear();
    store.manager.addTask(edited);
    store.manager.addTask(everyFieldTask(2));
    QVERIFY(store.host.hasUnsavedChanges());
    const std::map<int, PlayTask> stored = {{1, everyFieldTask(1)}};
    QVERIFY(store.manager.getgTaskMap() == stored);
    QVERIFY(store.manager.getTask(1) == edited);
}

void tst_scheduleManage::deletingAnUnknownTaskDoesNothing()
{
    StoreFixture store;
    store.save({{1, everyFieldTask(1)}});
    store.manager.deleteTask(2);
    store.manager.deleteTask(-1);
    QCOMPARE(store.manager.getAllTask().size(), std::size_t(1));
    QVERIFY(!store.host.hasUnsavedChanges());
}

void tst_scheduleManage::unknownTaskIsADefaultRecord()
{
    StoreFixture store;
    QVERIFY(store.manager.getTask(44) == PlayTask());
}

void tst_scheduleManage::theAnswerToAnUnknownTaskIsNotFiled()
{
    StoreFixture store;
    store.manager.addTask(store.manager.getTask(5));
    QVERIFY(store.manager.getAllTask().empty());
    PlayTask dated;
    dated.startDate = "2030.01.01";
    store.manager.addTask(dated);
    QVERIFY(store.manager.getTask(-1) == dated);
}

void tst_scheduleManage::getPlanTellsThePosition()
{
    StoreFixture store;
    const PlayTask task = sampleSchedule(1, 3, 2).at(1);
    store.manager.addTask(task);
    int index = -1;
    QVERIFY(store.manager.getPlan(1, 3, index) == task.plans[2]);
    QCOMPARE(index, 2);
}

void tst_scheduleManage::unknownPlanLeavesTheIndex()
{
    StoreFixture store;
    store.manager.addTask(sampleSchedule(1, 3, 2).at(1));
    for (const int before : {-1, -2}) {
        int index = before;
        QVERIFY(store.manager.getPlan(1, 4, index) == PlayPlan());
        QVERIFY(store.manager.getPlan(2, 1, index) == PlayPlan());
        QVERIFY(store.manager.getNowUsePlan(1, 1, index) == PlayPlan());
        QCOMPARE(index, before);
    }
}

void tst_scheduleManage::addPlanReplacesOrAppends()
{
    StoreFixture store;
    PlayTask task = sampleSchedule(1, 3, 2).at(1);
    store.manager.addTask(task);
    task.plans[1].weeks = "7";
    store.manager.addPlan(1, task.plans[1]);
    task.plans.push_back(samplePlan(9, 1));
    store.manager.addPlan(1, task.plans[3]);
    store.manager.addPlan(77, task.plans[3]);
    QVERIFY(store.manager.getTask(1) == task);
    QCOMPARE(store.manager.getAllTask().size(), std::size_t(1));
}

void tst_scheduleManage::updateUItaskDropsEdits()
{
    StoreFixture store;
    const std::map<int, PlayTask> stored = {{1, everyFieldTask(1)}, {2, everyFieldTask(2)}};
    store.save(stored);
    store.manager.deleteTask(1);
    store.manager.addTask(everyFieldTask(3));
    store.manager.addPlan(2, samplePlan(50, 1));
    store.manager.updateUItask();
    QVERIFY(store.manager.getAllTask() == stored);
    QVERIFY(!store.host.hasUnsavedChanges());
}

void tst_scheduleManage::resetUiTaskDropsEditsAndKeepsTheStoredSet()
{
    StoreFixture store;
    const std::map<int, PlayTask> stored = {{1, everyFieldTask(1)}};
    store.save(stored);
    store.manager.addTask(everyFieldTask(3));
    store.manager.setqstrSelectedProgram("text");
    store.manager.resetUiTask();
    QCOMPARE(store.manager.getqstrSelectedProgram(), std::string());
    // A save before the list has been rebuilt must not wipe anything out.
    store.manager.save();
    QVERIFY(store.manager.getgTaskMap() == stored);
}

void tst_scheduleManage::selectedProgramIsKept()
{
    StoreFixture store;
    store.manager.setqstrSelectedProgram("节目,two");
    QCOMPARE(store.manager.getqstrSelectedProgram(), std::string("节目,two"));
    store.manager.setqstrSelectedProgram("");
    QCOMPARE(store.manager.getqstrSelectedProgram(), std::string());
}

void tst_scheduleManage::unknownPrograms()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(1)).store);
    for (const int index : {-1, 0, 2, 65535, kInvalidProgIndex}) {
        const ProgramIten program = store.manager.getProgramItemByIndex(index);
        QVERIFY(program.isNull);
        QCOMPARE(program.progIndex, index);
        QCOMPARE(store.manager.getProgramNameByProgIndex(index), std::string());
        QCOMPARE(store.manager.getDurationByIndex(index), 0.0);
        QVERIFY(!store.manager.isNoDurationType(index));
    }
}

void tst_scheduleManage::kindsWithoutLength()
{
    StoreFixture store;
    std::vector<MediaSource> sources;
    for (const ProgramKind kind : {ProgramKind::Video, ProgramKind::Audio, ProgramKind::Image,
                                   ProgramKind::Live, ProgramKind::Other}) {
        sources.push_back({QStringLiteral("name"),
                           QStringLiteral("/path/%1").arg(static_cast<int>(kind)), 1500.5, kind});
    }
    QVERIFY(store.host.addPrograms(sources).store);
    QString answers;
    for (int index = 1; index <= 5; ++index) {
        answers += QLatin1Char(store.manager.isNoDurationType(index) ? '1' : '0');
        QCOMPARE(store.manager.getDurationByIndex(index), 1500.5);
    }
    QCOMPARE(answers, QStringLiteral("00110"));
}

void tst_scheduleManage::dates_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<int>("expected");
    QTest::newRow("yesterday") << QStringLiteral("2024.02.28") << int(DateBeforeToday);
    QTest::newRow("today") << QStringLiteral("2024.02.29") << int(DateIsToday);
    QTest::newRow("tomorrow") << QStringLiteral("2024.03.01") << int(DateAfterToday);
    QTest::newRow("empty") << QString() << int(DateBeforeToday);
    QTest::newRow("other form") << QStringLiteral("2099-01-01") << int(DateBeforeToday);
    QTest::newRow("no such day") << QStringLiteral("2099.02.30") << int(DateBeforeToday);
}

void tst_scheduleManage::dates()
{
    const TestClock clock(QDateTime({2024, 2, 29}, {23, 59, 59, 999}));
    QFETCH(QString, date);
    QTEST(int(scheduleManage::getInstance().comparisionDate(date.toStdString())), "expected");
}

void tst_scheduleManage::times_data()
{
    QTest::addColumn<QString>("time");
    QTest::addColumn<bool>("passed");
    QTest::newRow("a second ago") << QStringLiteral("11:59:59") << true;
    QTest::newRow("now") << QStringLiteral("12:00:00") << false;
    QTest::newRow("in a second") << QStringLiteral("12:00:01") << false;
    QTest::newRow("day end") << QStringLiteral("23:59:59") << false;
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("no time") << QStringLiteral("25:00:00") << true;
}

void tst_scheduleManage::times()
{
    const TestClock clock(QDateTime({2024, 2, 29}, {12, 0}));
    QFETCH(QString, time);
    QTEST(scheduleManage::getInstance().comparisonTime(time.toStdString()), "passed");
}

void tst_scheduleManage::worksWithNoStore()
{
    scheduleManage& manager = scheduleManage::getInstance();
    ScheduleHost& host = ScheduleHost::instance();
    host.close();
    QVERIFY(!host.isOpen());
    QCOMPARE(host.path(), QString());
    manager.addTask(everyFieldTask(1));
    QVERIFY(manager.getTask(1) == everyFieldTask(1));

    QSignalSpy failures(&host, &ScheduleHost::saveFailed);
    QVERIFY(failures.isValid());
    manager.save();
    QCOMPARE(failures.count(), 1);
    QCOMPARE(failures[0][0].value<StoreResult>().problem, StoreProblem::NotOpen);
    QVERIFY(!englishText(failures[0][0].value<StoreResult>()).isEmpty());
    QVERIFY(manager.getgTaskMap().empty());
    QVERIFY(manager.getTask(1) == everyFieldTask(1));
    host.close();
}

TREL_TEST(tst_scheduleManage, QCoreApplication)
#include "tst_scheduleManage.moc"
