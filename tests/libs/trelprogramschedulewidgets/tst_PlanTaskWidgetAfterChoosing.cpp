#include "OpenCard.h"

#include "kCustomLineEdit.h"
#include "support/ChooserAnswer.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QPushButton>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

// The rows of the chooser's left table.
constexpr int kFilm = 0;
constexpr int kPicture = 1;

RecordingService& service()
{
    return RecordingService::instance();
}

/// Chooses one program more and confirms.
ChooserAnswer::Steps choose(int program)
{
    return [program](ChooserWindow& chooser) {
        chooser.checkProgram(program);
        chooser.choose();
        chooser.confirm();
    };
}

ChooserAnswer::Steps cancel()
{
    return [](ChooserWindow& chooser) { chooser.cancel(); };
}

QPushButton& addButton(const OpenCard& open)
{
    return named<QPushButton>(open.card, "pushButtonAdd");
}

/// The text half of the program field.
QPushButton& field(const OpenCard& open, int row)
{
    return *open.rows.programs(row).findChild<QPushButton*>(QStringLiteral("lineEdit"));
}

PlayPlan filmPlan(int id, const char* start)
{
    return frequencyPlan(id, start, 3, {entry(1)});
}

QString storedTask()
{
    return line(service().working[1]);
}

} // namespace

/// What the card makes of a choice of programs: times, ids, ends, states and what is stored.
class tst_PlanTaskWidgetAfterChoosing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void newPlanHoldsTheTemplate();
    void newPlanFollowsTheLatestEnd_data();
    void newPlanFollowsTheLatestEnd();
    void newPlanTakesTheNextId_data();
    void newPlanTakesTheNextId();
    void newPlanInFrequencyModeKeepsItsEnd();
    void nothingIsStoredBeforeTheAnswer();
    void bothHalvesOfTheField();
    void cancelledInFrequencyMode();
    void confirmedInTimeModeRunsNoPass();
    void confirmedInFrequencyMode();
    void aPictureEndsFrequencyMode();
    void theRowBelowADeletedOne();
};

void tst_PlanTaskWidgetAfterChoosing::init()
{
    service().reset();
    service().addProgram(1, "Film", 60000.0);
    service().addProgram(2, "Picture", 0.0, true);
}

void tst_PlanTaskWidgetAfterChoosing::newPlanHoldsTheTemplate()
{
    const OpenCard open(taskWithPlans({}));
    const ChooserAnswer answer(choose(kFilm));
    click(addButton(open));
    PlayPlan expected = timePlan(1, "00:00:00", "01:00:00");
    expected.serviceTime = "23:59:59";
    expected.programs = {entry(1)};
    expected.programs.front().progName = "Film";
    QCOMPARE(service().working[1].plans.front(), expected);
    QCOMPARE(open.rows.task().plans.front(), expected);
}

void tst_PlanTaskWidgetAfterChoosing::newPlanFollowsTheLatestEnd_data()
{
    QTest::addColumn<QStringList>("ends");
    QTest::addColumn<QString>("span");
    const auto row = [](const char* name, const QStringList& ends, const char* span) {
        QTest::newRow(name) << ends << span;
    };
    row("the first row", {QStringLiteral("10:00:00"), QStringLiteral("08:00:00")},
        "10:00:00-11:00:00");
    row("the last row", {QStringLiteral("08:00:00"), QStringLiteral("10:00:00")},
        "10:00:00-11:00:00");
    row("capped", {QStringLiteral("23:30:00")}, "23:30:00-23:59:59");
    row("at the end of the day", {QStringLiteral("23:59:59")}, "23:59:59-23:59:59");
    row("an end that does not parse", {QStringLiteral("08:00:00"), QStringLiteral("late")},
        "00:00:00-01:00:00");
    row("no end at all", {QString()}, "00:00:00-01:00:00");
}

void tst_PlanTaskWidgetAfterChoosing::newPlanFollowsTheLatestEnd()
{
    QFETCH(QStringList, ends);
    PlayTask task = taskWithPlans({});
    for (const QString& end : ends) {
        task.plans.push_back(timePlan(int(task.plans.size()) + 1, "07:00:00", end.toStdString()));
    }
    const OpenCard open(task);
    const ChooserAnswer answer(choose(kFilm));
    click(addButton(open));
    const PlayPlan& plan = service().working[1].plans.back();
    QTEST(QString::fromStdString(plan.startTime + '-' + plan.endTime), "span");
    QCOMPARE(open.rows.startTime(ends.size()).text(), QString::fromStdString(plan.startTime));
    QCOMPARE(open.rows.endTime(ends.size()).text(), QString::fromStdString(plan.endTime));
}

void tst_PlanTaskWidgetAfterChoosing::newPlanTakesTheNextId_data()
{
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<int>("next");
    QTest::newRow("a gap stays") << QVector<int>{1, 7, 3} << 8;
    QTest::newRow("negative ids do not count") << QVector<int>{-5} << 1;
    QTest::newRow("0 counts as none") << QVector<int>{0} << 1;
}

void tst_PlanTaskWidgetAfterChoosing::newPlanTakesTheNextId()
{
    QFETCH(QVector<int>, ids);
    PlayTask task = taskWithPlans({});
    for (const int id : ids) {
        task.plans.push_back(timePlan(id, "08:00:00", "09:00:00"));
    }
    const OpenCard open(task);
    const ChooserAnswer answer(choose(kFilm));
    click(addButton(open));
    QTEST(service().working[1].plans.back().id, "next");
}

void tst_PlanTaskWidgetAfterChoosing::newPlanInFrequencyModeKeepsItsEnd()
{
    OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    const ChooserAnswer answer(choose(kFilm));
    PlayPlan plan = frequencyPlan(-1, "03:00:00", 3, {});
    plan.endTime = "04:00:00";
    plan.isConflict = true;
    open.card.slotAddRowPlan(plan);
    QCOMPARE(line(service().working[1].plans.back()),
             QStringLiteral("id 2 frequency 09:00:00-04:00:00 x3 days 0 end 0 <1x1>"));
    QCOMPARE(open.rows.endTime(1).text(), QStringLiteral("04:00:00"));
    QVERIFY(!service().addedPlans.front().second.isConflict);
}

void tst_PlanTaskWidgetAfterChoosing::nothingIsStoredBeforeTheAnswer()
{
    const OpenCard open(taskWithPlans({}));
    const ChooserAnswer answer([&open](ChooserWindow& chooser) {
        QCOMPARE(open.rows.rowCount(), 0);
        QCOMPARE(service().edits(), QStringList());
        choose(kFilm)(chooser);
    });
    click(addButton(open));
    QCOMPARE(open.rows.rowCount(), 1);
}

void tst_PlanTaskWidgetAfterChoosing::bothHalvesOfTheField()
{
    const OpenCard open(taskWithPlans({timePlan(4, "08:00:00", "09:00:00")}));
    ChooserAnswer answer(choose(kFilm));
    answer.expect(choose(kFilm));
    click(field(open, 0));
    click(*open.rows.programs(0).findChild<QPushButton*>(QStringLiteral("pushButton")));
    QCOMPARE(open.rows.programs(0).text(), QStringLiteral("Film,Film"));
}

void tst_PlanTaskWidgetAfterChoosing::cancelledInFrequencyMode()
{
    const OpenCard open(taskWithPlans({filmPlan(4, "08:00:00")}));
    const ChooserAnswer answer(cancel());
    click(field(open, 0));
    QCOMPARE(open.rows.endTime(0).text(), QStringLiteral("08:03:00"));
    QCOMPARE(line(service().working[1].plans.front()),
             QStringLiteral("id 4 frequency 08:00:00-08:03:00 x3 days 0 end 0 <1x1>"));
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetAfterChoosing::confirmedInTimeModeRunsNoPass()
{
    const OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")}));
    service().working[1].plans[1].startTime = "08:30:00";
    const ChooserAnswer answer(choose(kFilm));
    click(field(open, 1));
    // The plan that was read again collides, and the row shows it with the next pass.
    QCOMPARE(open.rows.task().plans[1].startTime, std::string("08:30:00"));
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    QCOMPARE(open.stores(), 0);
}

void tst_PlanTaskWidgetAfterChoosing::confirmedInFrequencyMode()
{
    const OpenCard open(
        taskWithPlans({filmPlan(4, "08:00:00"), timePlan(5, "08:04:00", "08:05:00")}));
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    const ChooserAnswer answer(choose(kFilm));
    click(field(open, 0));
    QCOMPARE(open.rows.line(0), QStringLiteral("4 [Film,Film] frequency 08:00:00-08:06:00* x3 "
                                               "szEveryDayStr end 0 green"));
    QCOMPARE(open.rows.states(), QStringLiteral("green red"));
    QCOMPARE(open.stores(), 1);
    QCOMPARE(service().working[1], open.rows.task());
}

void tst_PlanTaskWidgetAfterChoosing::aPictureEndsFrequencyMode()
{
    const OpenCard open(taskWithPlans({filmPlan(4, "08:00:00")}));
    const ChooserAnswer answer(choose(kPicture));
    click(field(open, 0));
    QCOMPARE(open.rows.line(0), QStringLiteral("4 [Film,Picture] time* 08:00:00-23:59:59 x3* "
                                               "szEveryDayStr end 0 green"));
    QCOMPARE(storedTask(), QStringLiteral("1 2024.03.01-2024.03.31 [id 4 time 08:00:00-23:59:59 "
                                          "x3 days 0 end 0 <1x1,2x1>]"));
    QCOMPARE(open.rows.task(), service().working[1]);
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetAfterChoosing::theRowBelowADeletedOne()
{
    const OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")}));
    {
        const PromptAnswer confirm(1);
        click(open.rows.deleteButton(0));
    }
    const ChooserAnswer answer(choose(kFilm));
    click(field(open, 0));
    QCOMPARE(line(service().working[1].plans.front()),
             QStringLiteral("id 2 time 10:00:00-11:00:00 x1 days 0 end 0 <1x1>"));
    QCOMPARE(open.rows.programs(0).text(), QStringLiteral("Film"));
}

TREL_TEST(tst_PlanTaskWidgetAfterChoosing, QApplication)
#include "tst_PlanTaskWidgetAfterChoosing.moc"
