#include "OpenCard.h"
#include "support/TestProgram.h"

#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QSpinBox>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

/// "12:00:06|13:00:00" for the ends that a card's plans hold.
QString storedEnds(const PlayTask& task)
{
    QStringList texts;
    for (const PlayPlan& plan : task.plans) {
        texts.append(QString::fromStdString(plan.endTime));
    }
    return texts.join(QLatin1Char('|'));
}

QString shownEnds(const PlanTaskWidgetInspector& rows)
{
    QStringList texts;
    for (int row = 0; row < rows.rowCount(); ++row) {
        texts.append(rows.endTime(row).text());
    }
    return texts.join(QLatin1Char('|'));
}

} // namespace

/// The ends that a card works out from the programs of its plans.
class tst_PlanTaskWidgetTiming : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void computedEnd_data();
    void computedEnd();
    void computedEndOfNoPlan_data();
    void computedEndOfNoPlan();
    void computedEndLeavesTheTask();
    void updateMovesTheEndsOfFrequencyMode();
    void updateOfACardWithoutRows();
    void updateFetchesTheCatalogueOnceForAllRows();
    void updateAnswersTheService();
    void updateOfARowWithoutPlan();
    void aLengthThatChangesWaitsForTheNextEdit();
    void addedDuration_data();
    void addedDuration();
};

void tst_PlanTaskWidgetTiming::init()
{
    service().reset();
    service().addProgram(1, "second", 1000.0);
    service().addProgram(2, "half", 500.0);
    service().addProgram(3, "odd", 1500.9);
    service().addProgram(4, "picture", 0.0, true);
    service().addProgram(5, "unknown", -1.0);
    service().addProgram(6, "nothing", 0.0);
}

void tst_PlanTaskWidgetTiming::computedEnd_data()
{
    QTest::addColumn<PlayPlan>("plan");
    QTest::addColumn<QString>("end");
    const auto row = [](const char* name, const char* start, int times,
                        std::vector<struProgInfo> programs, const char* end) {
        QTest::newRow(name) << frequencyPlan(1, start, times, std::move(programs)) << end;
    };
    row("no programs", "12:00:00", 3, {}, "12:00:00");
    row("runs and counts", "12:00:00", 3, {entry(1), entry(2, 2)}, "12:00:06");
    row("nothing is rounded up", "10:00:00", 1, {entry(3)}, "10:00:01");
    row("any length at the end of the day", "23:59:59", 1, {entry(1)}, "23:59:59");
    row("an exact fit", "23:59:58", 1, {entry(1)}, "23:59:59");
    row("a bit more than fits", "23:59:58", 1, {entry(1), entry(2)}, "23:59:59");
    row("a picture behind a film", "10:00:00", 1, {entry(1), entry(4)}, "23:59:59");
    row("a picture at the head", "10:00:00", 1, {entry(4), entry(1)}, "23:59:59");
    row("a program that the catalogue lacks", "10:00:00", 1, {entry(99), entry(1)}, "10:00:01");
    row("a length that is not known", "10:00:00", 1, {entry(5), entry(1)}, "10:00:01");
    row("a length of nothing", "10:00:00", 1, {entry(6), entry(1)}, "10:00:01");
    row("a start that does not parse", "noon", 1, {entry(1)}, "23:59:59");
    row("the same with nothing to play", "noon", 1, {}, "");
    struProgInfo invalid = entry(99);
    invalid.isInvalid = true;
    row("an entry that has gone bad", "10:00:00", 1, {invalid, entry(1)}, "10:00:01");
    invalid.progIndex = 1;
    row("the same in the catalogue", "10:00:00", 1, {invalid}, "10:00:01");
}

void tst_PlanTaskWidgetTiming::computedEnd()
{
    QFETCH(PlayPlan, plan);
    const OpenCard open(taskWithPlans({plan}));
    QTEST(QString::fromStdString(open.rows.computeEndTime(0, "untouched")), "end");
}

void tst_PlanTaskWidgetTiming::computedEndOfNoPlan_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("one past the end") << 1;
    QTest::newRow("far past the end") << 1000000;
    QTest::newRow("negative") << -1;
}

void tst_PlanTaskWidgetTiming::computedEndOfNoPlan()
{
    QFETCH(int, index);
    const OpenCard open(taskWithPlans({frequencyPlan(1, "12:00:00", 1, {entry(1)})}));
    QCOMPARE(open.rows.computeEndTime(index, "untouched"), std::string("untouched"));
}

void tst_PlanTaskWidgetTiming::computedEndLeavesTheTask()
{
    const PlayTask task = taskWithPlans({frequencyPlan(1, "12:00:00", 1, {entry(1)})});
    const OpenCard open(task);
    open.rows.computeEndTime(0, {});
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().edits(), QStringList());
}

void tst_PlanTaskWidgetTiming::updateMovesTheEndsOfFrequencyMode()
{
    OpenCard open(taskWithPlans({frequencyPlan(1, "12:00:00", 3, {entry(1), entry(2, 2)}),
                                 timePlan(2, "13:00:00", "13:30:00"),
                                 frequencyPlan(3, "14:00:00", 1, {entry(4)})}));
    open.rows.task().plans[1].programs = {entry(1)};
    open.card.slotUpdateEndTime();
    // The last row is shown in TimeMode, since it cannot be anything else; its record says more.
    QCOMPARE(storedEnds(open.rows.task()), QStringLiteral("12:00:06|13:30:00|23:59:59"));
    QCOMPARE(shownEnds(open.rows), QStringLiteral("12:00:06|13:30:00|23:59:59"));
    QCOMPARE(open.stores(), 1);
    QCOMPARE(service().working[1], open.rows.task());
}

void tst_PlanTaskWidgetTiming::updateOfACardWithoutRows()
{
    OpenCard open(taskWithPlans({}));
    open.card.slotUpdateEndTime();
    QCOMPARE(service().edits(), QStringList(QStringLiteral("addTask(1 2024.03.01-2024.03.31 [])")));
}

void tst_PlanTaskWidgetTiming::updateFetchesTheCatalogueOnceForAllRows()
{
    PlayTask task = taskWithPlans({});
    for (int id = 1; id <= 20; ++id) {
        task.plans.push_back(frequencyPlan(id, "12:00:00", 1, {entry(1), entry(2), entry(3)}));
    }
    OpenCard open(task);
    open.card.slotUpdateEndTime();
    // Once for the ends, and once for the pass.
    QCOMPARE(service().count(QStringLiteral("getPrograms")), 2);
}

void tst_PlanTaskWidgetTiming::updateAnswersTheService()
{
    const OpenCard first(taskWithPlans({frequencyPlan(1, "12:00:00", 1, {entry(1)})}, 1));
    const OpenCard second(taskWithPlans({frequencyPlan(1, "13:00:00", 1, {entry(1)})}, 2));
    emit RecordingService::manager().signalUpdatePlanEndTime();
    QCOMPARE(shownEnds(first.rows), QStringLiteral("12:00:01"));
    QCOMPARE(shownEnds(second.rows), QStringLiteral("13:00:01"));
    QCOMPARE(OpenCard::stores(), 2);
}

void tst_PlanTaskWidgetTiming::updateOfARowWithoutPlan()
{
    OpenCard open(taskWithPlans({frequencyPlan(1, "12:00:00", 1, {entry(1)}),
                                 frequencyPlan(2, "13:00:00", 1, {entry(1)})}));
    open.rows.task().plans.pop_back();
    open.card.slotUpdateEndTime();
    QCOMPARE(shownEnds(open.rows), QStringLiteral("12:00:01|00:00:00"));
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetTiming::aLengthThatChangesWaitsForTheNextEdit()
{
    OpenCard open(taskWithPlans(
        {frequencyPlan(1, "12:00:00", 1, {entry(1)}), timePlan(2, "12:00:30", "12:01:00")}));
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    service().programs[1].durationMs = 31000.0;
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    open.rows.endAction(0).setCurrentIndex(FreezeCurrentFrame);
    QCOMPARE(open.rows.states(), QStringLiteral("green red"));
    QCOMPARE(storedEnds(open.rows.task()), QStringLiteral("00:00:00|12:01:00"));
}

void tst_PlanTaskWidgetTiming::addedDuration_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("end");
    const auto row = [](const char* start, int seconds, const char* end) {
        QTest::newRow(start) << QString::fromLatin1(start) << seconds << QString::fromLatin1(end);
    };
    row("22:30:00", 3600, "23:30:00");
    row("22:59:59", 3600, "23:59:59");
    row("23:00:00", 3600, "23:59:59");
    row("08:00:00", 90, "08:01:30");
    row("noon", 3600, "");
}

void tst_PlanTaskWidgetTiming::addedDuration()
{
    QFETCH(QString, start);
    QFETCH(int, seconds);
    const OpenCard open(taskWithPlans({}));
    QTEST(QString::fromStdString(open.card.addDuration(start.toStdString(), seconds)), "end");
    QCOMPARE(service().log, QStringList());
}

TREL_TEST(tst_PlanTaskWidgetTiming, QApplication)
#include "tst_PlanTaskWidgetTiming.moc"
