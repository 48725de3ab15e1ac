#include "OpenCard.h"

#include "PlanStandardItemModel.h"
#include "kCustomLineEdit.h"
#include "support/ChooserAnswer.h"
#include "support/PromptAnswer.h"

#include "trelwidgets/ComboBox.h"

#include <QPushButton>
#include <QTimeEdit>

#include <memory>

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

/// Both ways through the program chooser: a new plan, and the programs of an existing one.
class tst_PlanTaskWidgetChoosing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void firstPlan();
    void newPlanHoldsTheTemplate();
    void newPlanFollowsTheLatestEnd_data();
    void newPlanFollowsTheLatestEnd();
    void newPlanTakesTheNextId_data();
    void newPlanTakesTheNextId();
    void newPlanInFrequencyModeKeepsItsEnd();
    void newPlanWithAPicture();
    void notConfirmedAddsNothing_data();
    void notConfirmedAddsNothing();
    void nothingIsStoredBeforeTheAnswer();
    void programsOfARow();
    void bothHalvesOfTheField();
    void cancelledInTimeMode();
    void cancelledInFrequencyMode();
    void confirmedInTimeModeRunsNoPass();
    void confirmedInFrequencyMode();
    void aPictureEndsFrequencyMode();
    void withoutThePictureTheModeIsFree();
    void theRowBelowADeletedOne();
    void unknownRow();
    void cardMayGoWhileTheChooserIsOpen();
};

void tst_PlanTaskWidgetChoosing::init()
{
    service().reset();
    service().addProgram(1, "Film", 60000.0);
    service().addProgram(2, "Picture", 0.0, true);
}

void tst_PlanTaskWidgetChoosing::firstPlan()
{
    const OpenCard open(taskWithPlans({}));
    const ChooserAnswer answer(choose(kFilm));
    click(addButton(open));
    QCOMPARE(open.rows.lines(),
             QStringList(QStringLiteral("1 [Film] time 00:00:00-01:00:00 x1* szEveryDayStr end 0 "
                                        "green")));
    QCOMPARE(open.rows.disagreement(), QString());
    const QString plan = QStringLiteral("id 1 time 00:00:00-01:00:00 x1 days 0 end 0 <1x1>");
    QCOMPARE(service().edits(),
             QStringList({QStringLiteral("addPlan(1, %1)").arg(plan),
                          QStringLiteral("addTask(1 2024.03.01-2024.03.31 [%1])").arg(plan)}));
}

void tst_PlanTaskWidgetChoosing::newPlanHoldsTheTemplate()
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

void tst_PlanTaskWidgetChoosing::newPlanFollowsTheLatestEnd_data()
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

void tst_PlanTaskWidgetChoosing::newPlanFollowsTheLatestEnd()
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

void tst_PlanTaskWidgetChoosing::newPlanTakesTheNextId_data()
{
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<int>("next");
    QTest::newRow("a gap stays") << QVector<int>{1, 7, 3} << 8;
    QTest::newRow("negative ids do not count") << QVector<int>{-5} << 1;
    QTest::newRow("0 counts as none") << QVector<int>{0} << 1;
}

void tst_PlanTaskWidgetChoosing::newPlanTakesTheNextId()
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

void tst_PlanTaskWidgetChoosing::newPlanInFrequencyModeKeepsItsEnd()
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

void tst_PlanTaskWidgetChoosing::newPlanWithAPicture()
{
    const OpenCard open(taskWithPlans({}));
    const ChooserAnswer answer(choose(kPicture));
    click(addButton(open));
    QCOMPARE(open.rows.line(0), QStringLiteral("1 [Picture] time* 00:00:00-01:00:00 x1* "
                                               "szEveryDayStr end 0 green"));
    QVERIFY(service().working[1].plans.front().hasNoDuration);
}

void tst_PlanTaskWidgetChoosing::notConfirmedAddsNothing_data()
{
    QTest::addColumn<bool>("byCancel");
    QTest::newRow("cancel") << true;
    QTest::newRow("close") << false;
}

void tst_PlanTaskWidgetChoosing::notConfirmedAddsNothing()
{
    QFETCH(bool, byCancel);
    const PlayTask task = taskWithPlans({timePlan(4, "08:00:00", "09:00:00")});
    const OpenCard open(task);
    {
        const ChooserAnswer answer([byCancel](ChooserWindow& chooser) {
            chooser.checkProgram(kFilm);
            chooser.choose();
            byCancel ? chooser.cancel() : chooser.close();
        });
        click(addButton(open));
    }
    QCOMPARE(open.rows.rowCount(), 1);
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.rows.disagreement(), QString());
    QCOMPARE(service().edits(), QStringList());
    const ChooserAnswer answer(choose(kFilm));
    click(addButton(open));
    QCOMPARE(service().working[1].plans.back().id, 5);
}

void tst_PlanTaskWidgetChoosing::nothingIsStoredBeforeTheAnswer()
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

void tst_PlanTaskWidgetChoosing::programsOfARow()
{
    PlayPlan plan = timePlan(4, "08:00:00", "09:00:00");
    plan.programs = {entry(1)};
    const OpenCard open(taskWithPlans({timePlan(2, "01:00:00", "02:00:00"), plan}));
    const ChooserAnswer answer(choose(kFilm));
    click(field(open, 1));
    QCOMPARE(open.rows.model().index(1, ProgramsColumn).data(ProgramTextRole).toString(),
             QStringLiteral("Film,Film"));
    QCOMPARE(open.rows.programs(1).text(), QStringLiteral("Film,Film"));
    QCOMPARE(service().selectedProgram, std::string("Film,Film"));
    QCOMPARE(line(service().working[1].plans[1]),
             QStringLiteral("id 4 time 08:00:00-09:00:00 x1 days 0 end 0 <1x1,1x1>"));
    QCOMPARE(open.rows.task(), service().working[1]);
    QCOMPARE(open.rows.disagreement(), QString());
}

void tst_PlanTaskWidgetChoosing::bothHalvesOfTheField()
{
    const OpenCard open(taskWithPlans({timePlan(4, "08:00:00", "09:00:00")}));
    ChooserAnswer answer(choose(kFilm));
    answer.expect(choose(kFilm));
    click(field(open, 0));
    click(*open.rows.programs(0).findChild<QPushButton*>(QStringLiteral("pushButton")));
    QCOMPARE(open.rows.programs(0).text(), QStringLiteral("Film,Film"));
}

void tst_PlanTaskWidgetChoosing::cancelledInTimeMode()
{
    PlayPlan plan = timePlan(4, "08:00:00", "09:00:00");
    plan.programs = {entry(1)};
    const PlayTask task = taskWithPlans({plan});
    const OpenCard open(task);
    const ChooserAnswer answer([](ChooserWindow& chooser) {
        chooser.checkProgram(kPicture);
        chooser.choose();
        chooser.cancel();
    });
    click(field(open, 0));
    QCOMPARE(open.rows.programs(0).text(), QStringLiteral("Film"));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(
        service().calls({QStringLiteral("setqstrSelectedProgram"), QStringLiteral("getTask"),
                         QStringLiteral("addTask"), QStringLiteral("getqstrSelectedProgram")}),
        QStringList({QStringLiteral("setqstrSelectedProgram(\"Film\")"),
                     QStringLiteral("getTask(1)"), QStringLiteral("getqstrSelectedProgram()")}));
}

void tst_PlanTaskWidgetChoosing::cancelledInFrequencyMode()
{
    const OpenCard open(taskWithPlans({filmPlan(4, "08:00:00")}));
    const ChooserAnswer answer(cancel());
    click(field(open, 0));
    QCOMPARE(open.rows.endTime(0).text(), QStringLiteral("08:03:00"));
    QCOMPARE(line(service().working[1].plans.front()),
             QStringLiteral("id 4 frequency 08:00:00-08:03:00 x3 days 0 end 0 <1x1>"));
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetChoosing::confirmedInTimeModeRunsNoPass()
{
    const OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")}));
    service().working[1].plans[1].startTime = "08:30:00";
    const ChooserAnswer answer(choose(kFilm));
    click(field(open, 1));
    // The plan that was read anew collides, and the row shows it with the next pass.
    QCOMPARE(open.rows.task().plans[1].startTime, std::string("08:30:00"));
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    QCOMPARE(open.stores(), 0);
}

void tst_PlanTaskWidgetChoosing::confirmedInFrequencyMode()
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

void tst_PlanTaskWidgetChoosing::aPictureEndsFrequencyMode()
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

void tst_PlanTaskWidgetChoosing::withoutThePictureTheModeIsFree()
{
    PlayPlan plan = timePlan(4, "08:00:00", "09:00:00");
    plan.programs = {entry(1), entry(2)};
    plan.hasNoDuration = true;
    const OpenCard open(taskWithPlans({plan}));
    QVERIFY(!open.rows.mode(0).isEnabled());
    const ChooserAnswer answer([](ChooserWindow& chooser) {
        chooser.checkPlan(1);
        chooser.remove();
        chooser.confirm();
    });
    click(field(open, 0));
    QVERIFY(open.rows.mode(0).isEnabled());
    QCOMPARE(open.rows.mode(0).currentIndex(), int(TimeMode));
    QCOMPARE(open.stores(), 0);
}

void tst_PlanTaskWidgetChoosing::theRowBelowADeletedOne()
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

void tst_PlanTaskWidgetChoosing::unknownRow()
{
    const PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00")});
    OpenCard open(task);
    const ChooserAnswer noChooser;
    open.card.slotAddProgram(1);
    open.card.slotAddProgram(-1);
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetChoosing::cardMayGoWhileTheChooserIsOpen()
{
    const PlayTask task = taskWithPlans({filmPlan(4, "08:00:00")});
    service().working[1] = task;
    auto card = std::make_unique<PlanTaskWidget>(task, nullptr);
    const auto removeCard = [&card](ChooserWindow&) { card.reset(); };
    ChooserAnswer answer(removeCard);
    card->onPushButtonAddClicked();
    QVERIFY(!card);
    QCOMPARE(answer.count(), 1);

    card = std::make_unique<PlanTaskWidget>(task, nullptr);
    answer.expect(removeCard);
    card->slotAddProgram(0);
    QVERIFY(!card);
    QCOMPARE(answer.count(), 2);
}

QTEST_MAIN(tst_PlanTaskWidgetChoosing)
#include "tst_PlanTaskWidgetChoosing.moc"
