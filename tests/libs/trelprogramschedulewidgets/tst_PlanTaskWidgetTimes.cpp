#include "OpenCard.h"
#include "support/TestProgram.h"

#include "PlanStandardItemModel.h"

#include <QApplication>
#include <QSpinBox>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

constexpr int kFilm = 1;

RecordingService& service()
{
    return RecordingService::instance();
}

/// Types over the whole content of a spin box or time editor.
void type(QAbstractSpinBox& editor, const char* keys)
{
    editor.selectAll();
    QTest::keyClicks(&editor, QLatin1String(keys));
}

PlayPlan filmPlan(int id, const char* start, int times)
{
    PlayPlan plan = frequencyPlan(id, start, times, {entry(kFilm)});
    plan.endTime = plan.startTime;
    return plan;
}

} // namespace

/// The number of runs of a plan, from the box of its row and from the cell itself.
class tst_PlanTaskWidgetTimes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void times();
    void timesTyped();
    void timesOutOfRange_data();
    void timesOutOfRange();
    void timesOfAThousand();
    void timesOfARowThatIsNotInTheBooks();
    void timesOfAPlanThatIsGone();
    void timesWrittenIntoTheCell_data();
    void timesWrittenIntoTheCell();
    void timesInTheCellOfAnUnknownRow();
    void otherCellsAreNotRead();
};

void tst_PlanTaskWidgetTimes::init()
{
    service().reset();
    service().addProgram(kFilm, "Film", 60000.0);
}

void tst_PlanTaskWidgetTimes::times()
{
    const OpenCard open(
        taskWithPlans({timePlan(7, "01:00:00", "02:00:00"), filmPlan(3, "08:00:00", 5)}));
    open.rows.times(1).setValue(6);
    QCOMPARE(open.rows.line(1), QStringLiteral("3 [Film] frequency 08:00:00-08:06:00* x6 "
                                               "szEveryDayStr end 0 green"));
    QCOMPARE(line(service().working[1].plans.back()),
             QStringLiteral("id 3 frequency 08:00:00-08:06:00 x6 days 0 end 0 <1x1>"));
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetTimes::timesTyped()
{
    const OpenCard open(taskWithPlans({filmPlan(1, "08:00:00", 5)}));
    type(open.rows.times(0), "12");
    QCOMPARE(service().working[1].plans.front().times, 12);
    QCOMPARE(open.rows.endTime(0).text(), QStringLiteral("08:12:00"));
    // Each digit is a value of its own.
    QCOMPARE(open.stores(), 2);
}

void tst_PlanTaskWidgetTimes::timesOutOfRange_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("above a thousand") << 1001;
}

void tst_PlanTaskWidgetTimes::timesOutOfRange()
{
    QFETCH(int, value);
    const PlayTask task = taskWithPlans({filmPlan(1, "08:00:00", 5)});
    const OpenCard open(task);
    open.rows.times(0).setRange(-10, 2000);
    open.rows.times(0).setValue(value);
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
    // The box keeps what was entered, unlike the plan.
    QCOMPARE(open.rows.times(0).value(), value);
}

void tst_PlanTaskWidgetTimes::timesOfAThousand()
{
    const OpenCard open(taskWithPlans({filmPlan(1, "00:00:00", 5)}));
    open.rows.times(0).setMaximum(2000);
    open.rows.times(0).setValue(1000);
    QCOMPARE(service().working[1].plans.front().times, 1000);
    QCOMPARE(open.rows.endTime(0).text(), QStringLiteral("16:40:00"));
}

void tst_PlanTaskWidgetTimes::timesOfARowThatIsNotInTheBooks()
{
    const PlayTask task = taskWithPlans({filmPlan(1, "08:00:00", 5)});
    const OpenCard open(task);
    open.rows.planIdByRow().clear();
    open.rows.times(0).setValue(6);
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetTimes::timesOfAPlanThatIsGone()
{
    const OpenCard open(taskWithPlans({filmPlan(1, "08:00:00", 5)}));
    open.rows.planIdByRow()[0] = 77;
    open.rows.times(0).setValue(6);
    // The number of runs finds no plan, the end finds the one of the row.
    QCOMPARE(line(service().working[1].plans.front()),
             QStringLiteral("id 1 frequency 08:00:00-08:05:00 x5 days 0 end 0 <1x1>"));
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetTimes::timesWrittenIntoTheCell_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("times");
    QTest::newRow("least") << "1" << 1;
    QTest::newRow("a thousand") << "1000" << 1000;
    QTest::newRow("more") << "1001" << 5;
    QTest::newRow("none") << "0" << 5;
    QTest::newRow("no number") << "many" << 5;
    QTest::newRow("nothing") << "" << 5;
}

void tst_PlanTaskWidgetTimes::timesWrittenIntoTheCell()
{
    QFETCH(QString, text);
    QFETCH(int, times);
    const OpenCard open(taskWithPlans({filmPlan(1, "08:00:00", 5)}));
    open.rows.model().item(0, TimesColumn)->setText(text);
    QCOMPARE(open.rows.task().plans.front().times, times);
    QCOMPARE(open.stores(), times == 5 ? 0 : 1);
    // Neither the end nor its editor moves.
    QCOMPARE(open.rows.task().plans.front().endTime, std::string("08:00:00"));
    QCOMPARE(open.rows.endTime(0).text(), QStringLiteral("08:00:00"));
}

void tst_PlanTaskWidgetTimes::timesInTheCellOfAnUnknownRow()
{
    const PlayTask task = taskWithPlans({filmPlan(1, "08:00:00", 5)});
    const OpenCard open(task);
    open.rows.planIdByRow()[0] = 77;
    open.rows.model().item(0, TimesColumn)->setText(QStringLiteral("6"));
    open.rows.planIdByRow().clear();
    open.rows.model().item(0, TimesColumn)->setText(QStringLiteral("7"));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetTimes::otherCellsAreNotRead()
{
    const PlayTask task = taskWithPlans({filmPlan(1, "08:00:00", 5)});
    const OpenCard open(task);
    for (int column = 0; column < PlanColumnCount; ++column) {
        if (column != TimesColumn) {
            open.rows.model().item(0, column)->setText(QStringLiteral("6"));
        }
    }
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

TREL_TEST(tst_PlanTaskWidgetTimes, QApplication)
#include "tst_PlanTaskWidgetTimes.moc"
