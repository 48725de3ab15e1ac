#include "PlanEnds.h"

#include "SignalCounts.h"
#include "StoreFixture.h"
#include "catalogue/ProgramCatalogue.h"
#include "store/ScheduleDatabase.h"
#include "support/PlanRecords.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// A film of a store; the same address keeps the same index.
MediaSource film(double seconds, int number = 1)
{
    return {QStringLiteral("film %1").arg(number), QStringLiteral("/films/%1.mp4").arg(number),
            seconds * 1000.0, ProgramKind::Video};
}

/// Twice the first film from 8 o'clock on, and the same in TimeMode.
PlayTask twoPlans(int id = 1)
{
    PlayTask task = taskWithPlans(
        {frequencyPlan(1, "08:00:00", 2, {entry(1)}), timePlan(2, "10:00:00", "11:00:00")}, id);
    task.plans[0].endTime = "08:02:00";
    task.plans[1].programs = {entry(1)};
    return task;
}

/// "08:02:00 11:00:00" for the ends of a task's plans.
QString ends(const PlayTask& task)
{
    QStringList texts;
    for (const PlayPlan& plan : task.plans) {
        texts.append(QString::fromStdString(plan.endTime));
    }
    return texts.join(QLatin1Char(' '));
}

QString endsInFile(const QString& path)
{
    ScheduleDatabase database;
    StoreContents contents;
    [&] {
        QVERIFY(database.open(path, ScheduleHost::OpenMode::MustExist));
        QVERIFY(database.read(StorePart::Both, contents));
    }();
    return ends(contents.tasks[1]);
}

/// A store with a film of a minute and a saved task that plays it twice.
struct FilmStore : StoreFixture
{
    FilmStore()
    {
        import(60.0);
        save({{1, twoPlans()}});
    }

    void import(double seconds) { QVERIFY(host.addPrograms({film(seconds)}).store); }

    QString workingEnds() const { return ends(manager.getTask(1)); }
    QString storedEnds() const { return ends(manager.getgTaskMap().at(1)); }
};

const QString kFormerEnds = QStringLiteral("08:02:00 11:00:00");
const QString kNewEnds = QStringLiteral("08:03:00 11:00:00");

} // namespace

/// Ends that follow from the lengths of programs, while no editor is there to work them out.
class tst_PlanEnds : public QObject
{
    Q_OBJECT

private slots:
    void aLengthMovesTheEndsOfBothSets();
    void aLengthMovesEveryPlanOfEveryTask();
    void newEndsStandWhenTheyAreTold();
    void aNewNameMovesNothing();
    void editsStayEdits();
    void theFileGetsThemWithTheNextSave();
    void nothingIsSavedTwice();
    void aStartSeesWhatChangedMeanwhile();
    void aRefreshSeesWhatAnotherProgramDid();
    void aReloadTellsWhatAnotherProgramDid();
    void aReloadTellsOfStaleEnds();
    void aLookAtTheNewestSaveMovesNothing();
    void aPlanThatWaitedForItsProgram();
    void aProgramWithoutLengthFillsTheDay();
    void aProgramThatIsTakenOut();
    void aScheduleThatIsPutInItsPlace();
    void thePlanInUse();
    void plansThatKeepTheirEnd_data();
    void plansThatKeepTheirEnd();
};

void tst_PlanEnds::aLengthMovesTheEndsOfBothSets()
{
    FilmStore store;
    QCOMPARE(store.workingEnds(), kFormerEnds);
    SignalCounts signalCounts;
    QVERIFY(signalCounts.isValid());
    store.import(90.0);
    QCOMPARE(signalCounts.take(), QStringLiteral("programs, ends, catalogue"));
    QCOMPARE(store.workingEnds(), kNewEnds);
    QCOMPARE(store.storedEnds(), kNewEnds);
    QVERIFY(!store.host.hasUnsavedChanges());
}

void tst_PlanEnds::aLengthMovesEveryPlanOfEveryTask()
{
    FilmStore store;
    const std::vector<PlayPlan> plans{frequencyPlan(1, "08:00:00", 2, {entry(1)}),
                                      frequencyPlan(2, "10:00:00", 1, {entry(1)}),
                                      frequencyPlan(3, "12:00:00", 4, {entry(1)})};
    store.save({{1, taskWithPlans(plans, 1)}, {2, taskWithPlans(plans, 2)}});
    store.import(90.0);
    const QString moved = QStringLiteral("08:03:00 10:01:30 12:06:00");
    for (const int id : {1, 2}) {
        QCOMPARE(ends(store.manager.getTask(id)), moved);
        QCOMPARE(ends(store.manager.getgTaskMap().at(id)), moved);
    }
}

void tst_PlanEnds::newEndsStandWhenTheyAreTold()
{
    FilmStore store;
    QStringList seen;
    connect(&store.manager, &scheduleManage::signalUpdatePlanEndTime, this, [&] {
        seen = QStringList{store.workingEnds(), store.storedEnds()};
    });
    store.import(90.0);
    disconnect(&store.manager, nullptr, this, nullptr);
    QCOMPARE(seen, QStringList({kNewEnds, kNewEnds}));
}

void tst_PlanEnds::aNewNameMovesNothing()
{
    FilmStore store;
    SignalCounts signalCounts;
    MediaSource renamed = film(60.0);
    renamed.name = QStringLiteral("other name");
    QVERIFY(store.host.addPrograms({renamed}).store);
    QCOMPARE(signalCounts.take(), QStringLiteral("programs, catalogue"));
    QCOMPARE(store.workingEnds(), kFormerEnds);
}

void tst_PlanEnds::editsStayEdits()
{
    FilmStore store;
    PlayTask edited = store.manager.getTask(1);
    edited.plans[0].weeks = "3";
    edited.plans[0].times = 4;
    store.manager.addTask(edited);
    store.import(90.0);
    QVERIFY(store.host.hasUnsavedChanges());
    QCOMPARE(store.manager.getTask(1).plans[0].weeks, std::string("3"));
    QCOMPARE(store.workingEnds(), QStringLiteral("08:06:00 11:00:00"));
    QCOMPARE(store.manager.getgTaskMap().at(1).plans[0].weeks, std::string("0"));
    QCOMPARE(store.storedEnds(), kNewEnds);
}

void tst_PlanEnds::theFileGetsThemWithTheNextSave()
{
    FilmStore store;
    store.import(90.0);
    QCOMPARE(endsInFile(store.path), kFormerEnds);
    SignalCounts signalCounts;
    QVERIFY(store.host.trySave());
    QCOMPARE(signalCounts.take(), QStringLiteral("stored"));
    QCOMPARE(endsInFile(store.path), kNewEnds);
    QCOMPARE(store.storedEnds(), kNewEnds);
}

void tst_PlanEnds::nothingIsSavedTwice()
{
    FilmStore store;
    store.import(90.0);
    QVERIFY(store.host.trySave());
    SignalCounts signalCounts;
    QVERIFY(store.host.trySave());
    QCOMPARE(signalCounts.take(), QString());
}

void tst_PlanEnds::aStartSeesWhatChangedMeanwhile()
{
    FilmStore store;
    store.import(90.0);
    store.restart();
    QCOMPARE(store.workingEnds(), kNewEnds);
    QCOMPARE(store.storedEnds(), kNewEnds);
    QVERIFY(!store.host.hasUnsavedChanges());
    QVERIFY(store.host.trySave());
    QCOMPARE(endsInFile(store.path), kNewEnds);
}

void tst_PlanEnds::aRefreshSeesWhatAnotherProgramDid()
{
    FilmStore store;
    ScheduleDatabase other;
    StoreContents contents;
    QVERIFY(other.open(store.path, ScheduleHost::OpenMode::MustExist));
    QVERIFY(other.addPrograms({film(90.0)}, contents).store);
    SignalCounts signalCounts;
    QCOMPARE(store.storedEnds(), kNewEnds);
    QCOMPARE(signalCounts.take(), QStringLiteral("programs, ends, catalogue"));
    QCOMPARE(store.workingEnds(), kNewEnds);
    store.manager.updateUItask();
    QCOMPARE(store.workingEnds(), kNewEnds);
}

void tst_PlanEnds::aReloadTellsWhatAnotherProgramDid()
{
    FilmStore store;
    ScheduleDatabase other;
    StoreContents contents;
    QVERIFY(other.open(store.path, ScheduleHost::OpenMode::MustExist));
    QVERIFY(other.addPrograms({film(90.0)}, contents).store);
    SignalCounts signalCounts;
    QVERIFY(store.host.reload());
    QVERIFY(signalCounts.take().contains(QLatin1String("ends, ")));
    QCOMPARE(store.workingEnds(), kNewEnds);
    QCOMPARE(store.storedEnds(), kNewEnds);
}

// A copied plan has the end of another one until it is worked out anew.
void tst_PlanEnds::aReloadTellsOfStaleEnds()
{
    FilmStore store;
    PlayTask stale = store.manager.getTask(1);
    stale.plans[0].endTime = "09:00:00";
    store.manager.addTask(stale);
    SignalCounts signalCounts;
    QVERIFY(store.host.reload());
    QCOMPARE(signalCounts.take(), QStringLiteral("ends"));
    QCOMPARE(store.workingEnds(), kFormerEnds);
    QVERIFY(store.host.reload());
    QCOMPARE(signalCounts.take(), QString());
}

void tst_PlanEnds::aLookAtTheNewestSaveMovesNothing()
{
    FilmStore store;
    PlayTask stale = store.manager.getTask(1);
    stale.plans[0].endTime = "09:00:00";
    store.manager.addTask(stale);
    SignalCounts signalCounts;
    ScheduleVersion version;
    std::map<int, PlayTask> saved;
    QVERIFY(store.host.readNewestSave(version, saved));
    QCOMPARE(ends(saved.at(1)), kFormerEnds);
    QCOMPARE(signalCounts.take(), QString());
    QCOMPARE(store.workingEnds(), QStringLiteral("09:00:00 11:00:00"));
}

// A schedule may come before its programs.
void tst_PlanEnds::aPlanThatWaitedForItsProgram()
{
    StoreFixture store;
    store.save({{1, twoPlans()}});
    QCOMPARE(ends(store.manager.getTask(1)), kFormerEnds);
    SignalCounts signalCounts;
    QVERIFY(store.host.addPrograms({film(90.0)}).store);
    QCOMPARE(signalCounts.take(), QStringLiteral("programs, ends, catalogue"));
    QCOMPARE(ends(store.manager.getTask(1)), kNewEnds);
    QVERIFY(store.host.addPrograms({film(10.0, 2)}).store);
    QCOMPARE(signalCounts.take(), QStringLiteral("programs, catalogue"));
}

void tst_PlanEnds::aProgramWithoutLengthFillsTheDay()
{
    FilmStore store;
    MediaSource picture = film(0.0);
    picture.kind = ProgramKind::Image;
    QVERIFY(store.host.addPrograms({picture}).store);
    QCOMPARE(store.workingEnds(), QStringLiteral("23:59:59 11:00:00"));
}

void tst_PlanEnds::aProgramThatIsTakenOut()
{
    FilmStore store;
    QVERIFY(store.host.removeProgram(1));
    QCOMPARE(store.workingEnds(), QStringLiteral("08:00:00 11:00:00"));
    store.restart();
    QCOMPARE(store.storedEnds(), QStringLiteral("08:00:00 11:00:00"));
}

void tst_PlanEnds::aScheduleThatIsPutInItsPlace()
{
    FilmStore store;
    store.import(90.0);
    QVERIFY(store.host.replaceSchedule({{1, twoPlans()}}));
    QCOMPARE(store.workingEnds(), kNewEnds);
    QCOMPARE(endsInFile(store.path), kNewEnds);
}

void tst_PlanEnds::thePlanInUse()
{
    FilmStore store;
    store.manager.slotOpen();
    store.import(90.0);
    int index = -1;
    QCOMPARE(store.manager.getNowUsePlan(1, 1, index).endTime, std::string("08:03:00"));
    QCOMPARE(index, 0);
    QCOMPARE(store.manager.getNowUsePlan(1, 2, index).endTime, std::string("11:00:00"));
}

void tst_PlanEnds::plansThatKeepTheirEnd_data()
{
    QTest::addColumn<PlayPlan>("plan");
    const auto row = [](const char* name, PlayPlan plan) {
        plan.endTime = "07:07:07";
        QTest::newRow(name) << plan;
    };
    row("its own end", timePlan(1, "06:00:00", "", "0"));
    row("no programs", frequencyPlan(1, "06:00:00", 1, {}));
    row("programs that never were", frequencyPlan(1, "06:00:00", 1, {entry(9), entry(65536)}));
    PlayPlan empty = frequencyPlan(1, "noon", 0, {entry(1)});
    row("a start that does not parse", empty);
}

void tst_PlanEnds::plansThatKeepTheirEnd()
{
    QFETCH(PlayPlan, plan);
    ProgramCatalogue catalogue;
    ProgramIten program;
    program.progIndex = 1;
    program.durationMs = 1000.0;
    program.kind = ProgramKind::Video;
    catalogue.put(program);
    PlayTask task = taskWithPlans({plan});
    QVERIFY(!updatePlanEnds(task, catalogue));
    QCOMPARE(task.plans[0], plan);
}

TREL_TEST(tst_PlanEnds, QCoreApplication)
#include "tst_PlanEnds.moc"
