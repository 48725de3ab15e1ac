#include "OpenCard.h"
#include "support/TestProgram.h"

#include "MultiComboBox.h"
#include "PlanStandardItemModel.h"
#include "kCustomLineEdit.h"

#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QSpinBox>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

constexpr int kFilm = 3;
constexpr int kPicture = 5;

RecordingService& service()
{
    return RecordingService::instance();
}

PlayPlan withPrograms(PlayPlan plan, std::vector<struProgInfo> programs)
{
    plan.programs = std::move(programs);
    return plan;
}

/// The labels that are checked in a day box.
QString checked(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i) {
        if (box.itemData(i, Qt::CheckStateRole).toBool()) {
            texts.append(box.itemText(i));
        }
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

/// What a row shows of its plan when it is built.
class tst_PlanTaskWidgetRows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void lines_data();
    void lines();
    void captions();
    void titleHoldsThePlanId();
    void namesOfPrograms();
    void timesSetTheRangeOfTheirBox_data();
    void timesSetTheRangeOfTheirBox();
    void daysAreMarked_data();
    void daysAreMarked();
    void firstNoDurationProgramEndsTheSearch();
    void aLockedRowChangesOnlyWhatIsShown();
    void loadingKeepsTheTask();
    void aPlanThatStandsAlreadyAsksNothing();
    void anUnnumberedPlanIsCompleted();
    void aRowForADefaultPlanKeepsItsId();
    void aSecondRowOfAPlanKeepsTheFirstInTheBooks();
};

void tst_PlanTaskWidgetRows::init()
{
    service().reset();
    service().addProgram(kFilm, "Film", 1000.0);
    service().addProgram(kPicture, "Picture", 0.0, true);
}

void tst_PlanTaskWidgetRows::lines_data()
{
    QTest::addColumn<PlayPlan>("plan");
    QTest::addColumn<QString>("line");
    QTest::newRow("TimeMode") << withPrograms(timePlan(4, "08:00:00", "09:30:05", "1,3"),
                                              {entry(kFilm)})
                              << "4 [Film] time 08:00:00-09:30:05 x1* szMondayStr,szWednesdayStr "
                                 "end 0 green";
    QTest::newRow("FrequencyMode, the end as it is stored")
        << frequencyPlan(4, "08:00:00", 7, {entry(kFilm)})
        << "4 [Film] frequency 08:00:00-00:00:00* x7 szEveryDayStr end 0 green";
    PlayPlan plan = timePlan(4, "08:00:00", "09:00:00");
    plan.endAction = FreezeCurrentFrame;
    QTest::newRow("frozen frame") << plan
                                  << "4 [] time 08:00:00-09:00:00 x1* szEveryDayStr end 1 green";
    plan.endAction = 2;
    QTest::newRow("unknown end action shows the first")
        << plan << "4 [] time 08:00:00-09:00:00 x1* szEveryDayStr end 0 green";
    QTest::newRow("times that do not parse")
        << timePlan(4, "8 o'clock", "")
        << "4 [] time 00:00:00-00:00:00 x1* szEveryDayStr end 0 "
           "green";
    QTest::newRow("a program without a length")
        << frequencyPlan(4, "08:00:00", 2, {entry(kFilm), entry(kPicture)})
        << "4 [Film,Picture] time* 08:00:00-00:00:00 x2* szEveryDayStr end 0 green";
    QTest::newRow("the same in TimeMode")
        << withPrograms(timePlan(4, "08:00:00", "09:00:00"), {entry(kPicture)})
        << "4 [Picture] time* 08:00:00-09:00:00 x1* szEveryDayStr end 0 green";
    QTest::newRow("no runs") << frequencyPlan(4, "08:00:00", 0, {entry(kFilm)})
                             << "4 [Film] frequency 08:00:00-00:00:00* x0 szEveryDayStr end 0 "
                                "green";
}

void tst_PlanTaskWidgetRows::lines()
{
    QFETCH(PlayPlan, plan);
    const OpenCard open(taskWithPlans({plan}));
    QTEST(open.rows.lines().join(QLatin1Char('|')), "line");
    QCOMPARE(open.rows.disagreement(), QString());
    plan.isConflict = false;
    QCOMPARE(open.rows.task().plans.front(), plan);
}

void tst_PlanTaskWidgetRows::captions()
{
    const OpenCard open(taskWithPlans({timePlan(12, "08:00:00", "09:00:00")}));
    QStringList texts;
    for (int column = 0; column < PlanColumnCount; ++column) {
        texts.append(open.rows.text(0, PlanColumn(column)));
    }
    QCOMPARE(texts.join(QLatin1Char('|')),
             QStringLiteral("  zhPlanTimeStr12:||zhModeStr||zhFromStr||zhToStr||zhfrequencyStr||"
                            "szDateStr||zhEndActionStr||||"));
}

void tst_PlanTaskWidgetRows::titleHoldsThePlanId()
{
    const OpenCard open(taskWithPlans({timePlan(12, "08:00:00", "09:00:00")}));
    const QVariant id = open.rows.model().index(0, 0).data(Qt::UserRole + 1);
    QCOMPARE(id.type(), QVariant::Int);
    QCOMPARE(id.toInt(), 12);
}

void tst_PlanTaskWidgetRows::namesOfPrograms()
{
    struProgInfo gone = entry(77);
    gone.isInvalid = true;
    gone.progName = "Gone";
    service().addProgram(9, "Lost", 5.0).isNull = true;
    const OpenCard open(taskWithPlans(
        {withPrograms(timePlan(1, "08:00:00", "09:00:00"), {entry(kFilm), gone, entry(9)})}));
    const QModelIndex cell = open.rows.model().index(0, 1);
    QCOMPARE(cell.data(Qt::UserRole).toString(),
             QStringLiteral("Film,GoneszInvalidStr,LostszProgNullStr"));
    QCOMPARE(cell.data(Qt::DisplayRole).toString(), QString());
    QVERIFY(open.rows.programs(0).isVisible());
    QVERIFY(open.rows.programs(0).text().startsWith(QStringLiteral("Film")));
}

void tst_PlanTaskWidgetRows::timesSetTheRangeOfTheirBox_data()
{
    QTest::addColumn<int>("times");
    QTest::addColumn<QString>("range");
    QTest::newRow("usual") << 5 << "1 5 999";
    QTest::newRow("least") << 1 << "1 1 999";
    QTest::newRow("most") << 999 << "1 999 999";
    QTest::newRow("more than the box can show") << 1000 << "1 999 999";
    QTest::newRow("none") << 0 << "0 0 99";
    QTest::newRow("negative") << -3 << "0 0 99";
}

void tst_PlanTaskWidgetRows::timesSetTheRangeOfTheirBox()
{
    QFETCH(int, times);
    const OpenCard open(taskWithPlans({frequencyPlan(1, "08:00:00", times, {entry(kFilm)})}));
    const QSpinBox& box = open.rows.times(0);
    QTEST(QStringLiteral("%1 %2 %3").arg(box.minimum()).arg(box.value()).arg(box.maximum()),
          "range");
    QCOMPARE(open.rows.task().plans.front().times, times);
}

void tst_PlanTaskWidgetRows::daysAreMarked_data()
{
    QTest::addColumn<QString>("weeks");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("marks");
    QTest::newRow("empty") << ""
                           << "szEveryDayStr"
                           << "szEveryDayStr";
    QTest::newRow("every day") << "0"
                               << "szEveryDayStr"
                               << "szEveryDayStr";
    QTest::newRow("in their own order") << "5,1"
                                        << "szFridayStr,szMondayStr"
                                        << "szMondayStr szFridayStr";
    QTest::newRow("no number") << "abc"
                               << "szEveryDayStr"
                               << "szEveryDayStr";
    QTest::newRow("out of range") << "8"
                                  << "szEveryDayStr"
                                  << "szEveryDayStr";
    QTest::newRow("negative") << "-1"
                              << "szEveryDayStr"
                              << "szEveryDayStr";
    QTest::newRow("repeated") << "2,2"
                              << "szTuesdayStr,szTuesdayStr"
                              << "szTuesdayStr";
    QTest::newRow("every day among others") << "0,7"
                                            << "szEveryDayStr,szSundayStr"
                                            << "szEveryDayStr szSundayStr";
}

void tst_PlanTaskWidgetRows::daysAreMarked()
{
    QFETCH(QString, weeks);
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00", weeks.toStdString())}));
    QTEST(open.rows.weeks(0).toolTip(), "shown");
    QTEST(checked(open.rows.weeks(0)), "marks");
    // The card's record keeps what it was given.
    QCOMPARE(open.rows.task().plans.front().weeks, weeks.toStdString());
}

void tst_PlanTaskWidgetRows::firstNoDurationProgramEndsTheSearch()
{
    const PlanTaskWidget card(
        taskWithPlans({withPrograms(timePlan(1, "08:00:00", "09:00:00"),
                                    {entry(kFilm), entry(kPicture), entry(9)})}),
        nullptr);
    QCOMPARE(service().calls({QStringLiteral("isNoDurationType")}),
             QStringList(
                 {QStringLiteral("isNoDurationType(3)"), QStringLiteral("isNoDurationType(5)")}));
}

void tst_PlanTaskWidgetRows::aLockedRowChangesOnlyWhatIsShown()
{
    const OpenCard open(taskWithPlans({frequencyPlan(1, "08:00:00", 2, {entry(kPicture)})}));
    QVERIFY(open.rows.endTime(0).isEnabled());
    QVERIFY(!open.rows.times(0).isEnabled());
    QCOMPARE(open.rows.task().plans.front().mode, int(FrequencyMode));
    QCOMPARE(service().working[1].plans.front().mode, int(FrequencyMode));
}

void tst_PlanTaskWidgetRows::loadingKeepsTheTask()
{
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", "");
    plan.serviceCount = 5;
    plan.serviceList = {1, -2};
    plan.serviceTime = "anything";
    plan.hasNoDuration = true;
    plan.serviceFlagA = true;
    plan.serviceFlagB = true;
    const PlayTask task = taskWithPlans({plan});
    const OpenCard open(task);
    QCOMPARE(service().working[1], task);
}

void tst_PlanTaskWidgetRows::aPlanThatStandsAlreadyAsksNothing()
{
    OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    PlayPlan plan = timePlan(2, "10:00:00", "11:00:00");
    plan.isConflict = true;
    open.rows.task().plans.push_back(plan);
    open.card.slotAddRowPlan(plan, true);
    QCOMPARE(open.rows.rowCount(), 2);
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    QCOMPARE(open.rows.disagreement(), QString());
    QCOMPARE(open.stores(), 1);
    QCOMPARE(service().count(QStringLiteral("addPlan")), 0);
}

void tst_PlanTaskWidgetRows::anUnnumberedPlanIsCompleted()
{
    const OpenCard open(
        taskWithPlans({timePlan(3, "08:00:00", "10:00:00"), timePlan(-1, "01:00:00", "02:00:00")}));
    QCOMPARE(open.rows.lines().last(),
             QStringLiteral("4 [] time 10:00:00-11:00:00 x1* szEveryDayStr end 0 green"));
    QCOMPARE(open.rows.task().plans.back().id, -1);
}

void tst_PlanTaskWidgetRows::aRowForADefaultPlanKeepsItsId()
{
    OpenCard open(taskWithPlans({}));
    open.rows.task().plans.emplace_back();
    open.card.slotAddRowPlan(PlayPlan(), true);
    QCOMPARE(open.rows.lines(),
             QStringList(QStringLiteral("0 [] time 00:00:00-00:00:00 x0* szEveryDayStr end 0 "
                                        "green")));
    QCOMPARE(open.rows.disagreement(), QString());
}

void tst_PlanTaskWidgetRows::aSecondRowOfAPlanKeepsTheFirstInTheBooks()
{
    const OpenCard open(
        taskWithPlans({timePlan(5, "08:00:00", "09:00:00"), timePlan(5, "10:00:00", "11:00:00")}));
    QCOMPARE(open.rows.rowByPlanId(), (std::map<int, int>{{5, 0}}));
    QCOMPARE(open.rows.planIdByRow(), (std::map<int, int>{{0, 5}, {1, 5}}));
}

TREL_TEST(tst_PlanTaskWidgetRows, QApplication)
#include "tst_PlanTaskWidgetRows.moc"
