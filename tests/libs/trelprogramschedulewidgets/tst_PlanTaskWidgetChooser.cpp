#include "OpenCard.h"

#include "ScheduleText.h"
#include "kCustomLineEdit.h"
#include "support/ChooserAnswer.h"
#include "support/TestProgram.h"

#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QPushButton>
#include <QSpinBox>
#include <QTimeEdit>

#include <memory>

using namespace trel::mediadispatch;

namespace {

constexpr int kFilm = 1;
constexpr int kClip = 2;
constexpr int kPicture = 5;

/// The rows of the chooser's left table.
enum OfferedRow { FilmRow, ClipRow, PictureRow };

RecordingService& service()
{
    return RecordingService::instance();
}

PlayPlan withPrograms(PlayPlan plan, std::vector<struProgInfo> programs)
{
    plan.programs = std::move(programs);
    return plan;
}

void add(OpenCard& open)
{
    click(named<QPushButton>(open.card, "pushButtonAdd"));
}

void changePrograms(const OpenCard& open, int row)
{
    click(named<QPushButton>(open.rows.programs(row), "lineEdit"));
}

/// Steps that put these programs behind those of the plan, and confirm.
ChooserAnswer::Steps choosing(std::initializer_list<int> rows)
{
    return [rows = std::vector<int>(rows)](ChooserWindow& chooser) {
        for (const int row : rows) {
            chooser.checkProgram(row);
        }
        chooser.choose();
        chooser.confirm();
    };
}

/// Steps that change the plan and take it back.
void cancelling(ChooserWindow& chooser)
{
    chooser.checkProgram(FilmRow);
    chooser.choose();
    chooser.cancel();
}

QString edits()
{
    return service().edits().join(QLatin1Char('|'));
}

} // namespace

/// New rows, and other programs for rows that are there, through the chooser's own window.
class tst_PlanTaskWidgetChooser : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void theFirstPlanOfATask();
    void aPlanStartsAfterTheLastEnd_data();
    void aPlanStartsAfterTheLastEnd();
    void aNewPlanTakesWhatWasChosen();
    void aNewPlanWithoutLengthIsLocked();
    void cancellingANewPlanLeavesNothing();
    void theChooserKnowsTheNewPlan();

    void otherProgramsForARow();
    void cancellingLeavesTheRow();
    void theEndFollowsThePrograms();
    void aProgramWithoutLengthEndsFrequencyMode();
    void theModeIsFreeAgainWithoutThem();
    void tombstonesReachTheCardEvenWhenCancelled();
    void anUnknownRowOpensNothing();
    void theCardMayGoWhileTheChooserIsOpen_data();
    void theCardMayGoWhileTheChooserIsOpen();
};

void tst_PlanTaskWidgetChooser::init()
{
    service().reset();
    service().addProgram(kFilm, "Film", 5400000.0);
    service().addProgram(kClip, "Clip", 60000.0);
    service().addProgram(kPicture, "Picture", 0.0, true);
}

void tst_PlanTaskWidgetChooser::theFirstPlanOfATask()
{
    OpenCard open(taskWithPlans({}));
    const ChooserAnswer answer(choosing({ClipRow}));
    add(open);
    QCOMPARE(open.rows.lines(),
             QStringList(
                 QStringLiteral("1 [Clip] time 00:00:00-01:00:00 x1* szEveryDayStr end 0 green")));
    const QString plan = QStringLiteral("id 1 time 00:00:00-01:00:00 x1 days 0 end 0 <2x1>");
    QCOMPARE(edits(),
             QStringLiteral("addPlan(1, %1)|addTask(1 2024.03.01-2024.03.31 [%1])").arg(plan));
    QCOMPARE(open.rows.disagreement(), QString());
}

void tst_PlanTaskWidgetChooser::aPlanStartsAfterTheLastEnd_data()
{
    QTest::addColumn<QString>("firstEnd");
    QTest::addColumn<QString>("secondEnd");
    QTest::addColumn<QString>("span");
    QTest::newRow("latest end first") << QStringLiteral("10:00:00") << QStringLiteral("08:00:00")
                                      << QStringLiteral("10:00:00-11:00:00");
    QTest::newRow("latest end last") << QStringLiteral("08:00:00") << QStringLiteral("10:00:00")
                                     << QStringLiteral("10:00:00-11:00:00");
    QTest::newRow("late in the day") << QStringLiteral("23:30:00") << QStringLiteral("08:00:00")
                                     << QStringLiteral("23:30:00-23:59:59");
}

void tst_PlanTaskWidgetChooser::aPlanStartsAfterTheLastEnd()
{
    QFETCH(QString, firstEnd);
    QFETCH(QString, secondEnd);
    QFETCH(QString, span);
    OpenCard open(taskWithPlans({timePlan(4, "06:00:00", firstEnd.toStdString()),
                                 timePlan(2, "07:00:00", secondEnd.toStdString())}));
    const ChooserAnswer answer(choosing({ClipRow}));
    add(open);
    QVERIFY2(open.rows.line(2).startsWith(QStringLiteral("5 [Clip] time %1 ").arg(span)),
             qPrintable(open.rows.line(2)));
}

void tst_PlanTaskWidgetChooser::aNewPlanTakesWhatWasChosen()
{
    OpenCard open(taskWithPlans({}));
    const ChooserAnswer answer([](ChooserWindow& chooser) {
        chooser.checkPrograms({ClipRow, FilmRow});
        chooser.choose();
        chooser.setCount(1, 7);
        chooser.confirm();
    });
    add(open);
    QCOMPARE(open.rows.programs(0).text(), QStringLiteral("Clip,Film"));
    QCOMPARE(line(service().working.at(1).plans.front()),
             QStringLiteral("id 1 time 00:00:00-01:00:00 x1 days 0 end 0 <2x1,1x7>"));
    QVERIFY(!service().working.at(1).plans.front().hasNoDuration);
}

void tst_PlanTaskWidgetChooser::aNewPlanWithoutLengthIsLocked()
{
    OpenCard open(taskWithPlans({}));
    const ChooserAnswer answer(choosing({ClipRow, PictureRow}));
    add(open);
    QVERIFY(service().working.at(1).plans.front().hasNoDuration);
    QVERIFY(!open.rows.mode(0).isEnabled());
}

void tst_PlanTaskWidgetChooser::cancellingANewPlanLeavesNothing()
{
    OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    const PlayTask before = open.rows.task();
    ChooserAnswer answer(cancelling);
    add(open);
    QCOMPARE(open.rows.rowCount(), 1);
    QCOMPARE(open.rows.task(), before);
    QCOMPARE(edits(), QString());
    QCOMPARE(open.rows.disagreement(), QString());
    // The id is still free.
    answer.expect(choosing({ClipRow}));
    add(open);
    QVERIFY(open.rows.line(1).startsWith(QLatin1String("2 [Clip]")));
}

void tst_PlanTaskWidgetChooser::theChooserKnowsTheNewPlan()
{
    OpenCard open(
        taskWithPlans({withPrograms(timePlan(1, "08:00:00", "09:00:00"), {entry(kFilm)})}));
    const ChooserAnswer answer([&](ChooserWindow& chooser) {
        QCOMPARE(chooser.planRows(), QStringList());
        QCOMPARE(chooser.frame()->parentWidget(), &open.card);
        QVERIFY(!chooser.canConfirm());
        chooser.close();
    });
    add(open);
    QCOMPARE(service().count(QStringLiteral("getPlan")), 0);
}

void tst_PlanTaskWidgetChooser::otherProgramsForARow()
{
    OpenCard open(
        taskWithPlans({timePlan(1, "06:00:00", "07:00:00"),
                       withPrograms(timePlan(2, "08:00:00", "09:00:00", "1"), {entry(kFilm)})}));
    const ChooserAnswer answer([](ChooserWindow& chooser) {
        QCOMPARE(chooser.planRows(), QStringList(QStringLiteral("[ ]01 Film x1")));
        choosing({ClipRow})(chooser);
    });
    changePrograms(open, 1);
    QCOMPARE(open.rows.lines().last(),
             QStringLiteral("2 [Film,Clip] time 08:00:00-09:00:00 x1* szMondayStr end 0 green"));
    QCOMPARE(open.rows.programs(1).text(), QStringLiteral("Film,Clip"));
    // In TimeMode the task is not stored again, and no collision is worked out.
    QCOMPARE(edits(),
             QStringLiteral("getPlan(1, 2, -1)|getPlan(1, 2, -1)|"
                            "addPlan(1, id 2 time 08:00:00-09:00:00 x1 days 1 end 0 <1x1,2x1>)|"
                            "getTask(1)|getPlan(1, 2, -1)|"
                            "setqstrSelectedProgram(\"Film,Clip\")|getTask(1)|"
                            "getqstrSelectedProgram()"));
    QCOMPARE(open.rows.task(), service().working.at(1));
}

void tst_PlanTaskWidgetChooser::cancellingLeavesTheRow()
{
    OpenCard open(taskWithPlans(
        {withPrograms(timePlan(2, "08:00:00", "09:00:00"), {entry(kFilm), entry(kClip)})}));
    const QStringList before = open.rows.lines();
    const PlayTask task = service().working.at(1);
    const ChooserAnswer answer(cancelling);
    changePrograms(open, 0);
    QCOMPARE(open.rows.lines(), before);
    QCOMPARE(open.rows.programs(0).text(), QStringLiteral("Film,Clip"));
    QCOMPARE(service().working.at(1), task);
    QCOMPARE(edits(), QStringLiteral("getPlan(1, 2, -1)|setqstrSelectedProgram(\"Film,Clip\")|"
                                     "getTask(1)|getqstrSelectedProgram()"));
}

void tst_PlanTaskWidgetChooser::theEndFollowsThePrograms()
{
    OpenCard open(taskWithPlans({frequencyPlan(2, "08:00:00", 2, {entry(kClip)})}));
    const ChooserAnswer answer(choosing({FilmRow}));
    changePrograms(open, 0);
    QCOMPARE(open.rows.endTime(0).text(), QStringLiteral("11:02:00"));
    QCOMPARE(line(service().working.at(1).plans.front()),
             QStringLiteral("id 2 frequency 08:00:00-11:02:00 x2 days 0 end 0 <2x1,1x1>"));
    QVERIFY(OpenCard::stores() >= 1);
}

void tst_PlanTaskWidgetChooser::aProgramWithoutLengthEndsFrequencyMode()
{
    OpenCard open(taskWithPlans({frequencyPlan(2, "08:00:00", 2, {entry(kClip)})}));
    const ChooserAnswer answer(choosing({PictureRow}));
    changePrograms(open, 0);
    QCOMPARE(open.rows.mode(0).currentIndex(), int(TimeMode));
    QVERIFY(!open.rows.mode(0).isEnabled());
    QVERIFY(open.rows.endTime(0).isEnabled());
    QVERIFY(!open.rows.times(0).isEnabled());
    const PlayPlan stored = service().working.at(1).plans.front();
    QCOMPARE(stored.mode, int(TimeMode));
    QVERIFY(stored.hasNoDuration);
    QCOMPARE(open.rows.task(), service().working.at(1));
}

void tst_PlanTaskWidgetChooser::theModeIsFreeAgainWithoutThem()
{
    OpenCard open(
        taskWithPlans({withPrograms(timePlan(2, "08:00:00", "09:00:00"), {entry(kPicture)})}));
    QVERIFY(!open.rows.mode(0).isEnabled());
    const ChooserAnswer answer([](ChooserWindow& chooser) {
        chooser.checkAllPlan();
        chooser.remove();
        choosing({ClipRow})(chooser);
    });
    changePrograms(open, 0);
    QVERIFY(open.rows.mode(0).isEnabled());
    QVERIFY(!service().working.at(1).plans.front().hasNoDuration);
    QCOMPARE(open.rows.programs(0).text(), QStringLiteral("Clip"));
}

void tst_PlanTaskWidgetChooser::tombstonesReachTheCardEvenWhenCancelled()
{
    struProgInfo bad = entry(100);
    bad.isInvalid = true;
    bad.progName = "Old";
    OpenCard open(taskWithPlans({withPrograms(timePlan(2, "08:00:00", "09:00:00"), {bad})}));
    const ChooserAnswer answer([](ChooserWindow& chooser) { chooser.cancel(); });
    changePrograms(open, 0);
    QCOMPARE(open.rows.task().plans.front().programs.front().progIndex, kInvalidProgIndex);
    QCOMPARE(open.rows.programs(0).text(), QLatin1String("Old") + scheduleText("szInvalidStr"));
    QCOMPARE(open.rows.task(), service().working.at(1));
}

void tst_PlanTaskWidgetChooser::anUnknownRowOpensNothing()
{
    OpenCard open(taskWithPlans({timePlan(2, "08:00:00", "09:00:00")}));
    const ChooserAnswer nobody;
    open.card.slotAddProgram(1);
    open.card.slotAddProgram(-1);
    QCOMPARE(nobody.count(), 0);
    QCOMPARE(edits(), QString());
}

void tst_PlanTaskWidgetChooser::theCardMayGoWhileTheChooserIsOpen_data()
{
    QTest::addColumn<bool>("isNew");
    QTest::newRow("new plan") << true;
    QTest::newRow("plan that is there") << false;
}

void tst_PlanTaskWidgetChooser::theCardMayGoWhileTheChooserIsOpen()
{
    QFETCH(bool, isNew);
    PlayTask task = taskWithPlans({timePlan(2, "08:00:00", "09:00:00")});
    service().working[task.id] = task;
    auto card = std::make_unique<PlanTaskWidget>(task, nullptr);
    service().clearLog();
    const ChooserAnswer answer([&](ChooserWindow&) { card.reset(); });
    if (isNew) {
        card->slotAddRowPlan(timePlan(-1, "", ""), false);
    } else {
        card->slotAddProgram(0);
    }
    QCOMPARE(answer.count(), 1);
    QCOMPARE(service().count(QStringLiteral("addPlan")), 0);
    QCOMPARE(service().count(QStringLiteral("addTask")), 0);
}

TREL_TEST(tst_PlanTaskWidgetChooser, QApplication)

#include "tst_PlanTaskWidgetChooser.moc"
