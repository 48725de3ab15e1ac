#include "OpenCard.h"

#include "MultiComboBox.h"
#include "PlanStandardItemModel.h"
#include "support/MessageLog.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QLineEdit>
#include <QSpinBox>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

constexpr int kFilm = 1;

RecordingService& service()
{
    return RecordingService::instance();
}

PlayPlan filmPlan(int id, const char* start, int times)
{
    PlayPlan plan = frequencyPlan(id, start, times, {entry(kFilm)});
    plan.endTime = plan.startTime;
    return plan;
}

/// Calls a slot with an object as its sender that belongs to no row.
template <typename Sender, typename Signal, typename Slot, typename... Args>
void sendFrom(Sender& sender, Signal signal, OpenCard& open, Slot slot, Args... args)
{
    QObject::connect(&sender, signal, &open.card, slot);
    emit(sender.*signal)(args...);
}

} // namespace

/// What the editors of a row do to the plan.
class tst_PlanTaskWidgetEditing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void modeToFrequency();
    void modeBackToTime();
    void modeThroughTheKeyboard();
    void modeWritesADebugLine();
    void endAction();
    void anUnknownBoxOnlyStores();
    void startInTimeMode();
    void startInFrequencyMode();
    void startTyped();
    void end();
    void days_data();
    void days();
    void daysThroughTheList();
    void daysOfAnUnknownPlan();
    void unknownSenders();
    void directCalls();
    void rowsWithoutAPlan();
    void reflushReadsTheTaskAgain();
    void reflushLeavesTheEditors();
    void reflushReachesEveryCard();
    void removalReachesTheProgramFields();
};

void tst_PlanTaskWidgetEditing::init()
{
    service().reset();
    service().addProgram(kFilm, "Film", 60000.0);
}

void tst_PlanTaskWidgetEditing::modeToFrequency()
{
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00");
    plan.programs = {entry(kFilm)};
    plan.times = 3;
    const OpenCard open(taskWithPlans({plan}));
    open.rows.mode(0).setCurrentIndex(FrequencyMode);
    QCOMPARE(open.rows.line(0), QStringLiteral("1 [Film] frequency 08:00:00-08:03:00* x3 "
                                               "szEveryDayStr end 0 green"));
    QCOMPARE(service().calls({QStringLiteral("addTask")}),
             QStringList(QStringLiteral("addTask(1 2024.03.01-2024.03.31 [id 1 frequency "
                                        "08:00:00-08:03:00 x3 days 0 end 0 <1x1>])")));
}

void tst_PlanTaskWidgetEditing::modeBackToTime()
{
    const OpenCard open(taskWithPlans({filmPlan(1, "08:00:00", 5)}));
    open.rows.mode(0).setCurrentIndex(TimeMode);
    QCOMPARE(open.rows.line(0), QStringLiteral("1 [Film] time 08:00:00-08:05:00 x5* "
                                               "szEveryDayStr end 0 green"));
    QCOMPARE(open.stores(), 1);
    QCOMPARE(line(service().working[1].plans.front()),
             QStringLiteral("id 1 time 08:00:00-08:05:00 x5 days 0 end 0 <1x1>"));
}

void tst_PlanTaskWidgetEditing::modeThroughTheKeyboard()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    QTest::keyClick(&open.rows.mode(0), Qt::Key_Down);
    QCOMPARE(service().working[1].plans.front().mode, int(FrequencyMode));
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetEditing::modeWritesADebugLine()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    const MessageLog log;
    open.rows.mode(0).setCurrentIndex(FrequencyMode);
    open.rows.endAction(0).setCurrentIndex(FreezeCurrentFrame);
    QCOMPARE(log.texts(), QStringList(QStringLiteral("mode changed: 0 1")));
    const MessageLog::Message& message = log.messages().front();
    QVERIFY(message.type == QtDebugMsg);
    QVERIFY(message.file.endsWith(QStringLiteral("PlanTaskWidget.cpp")));
    QVERIFY(message.line > 0);
    QVERIFY(message.function.contains(QStringLiteral("PlanTaskWidget")));
}

void tst_PlanTaskWidgetEditing::endAction()
{
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00");
    plan.endAction = 2;
    const OpenCard open(taskWithPlans({plan}));
    open.rows.endAction(0).setCurrentIndex(FreezeCurrentFrame);
    QCOMPARE(service().working[1].plans.front().endAction, int(FreezeCurrentFrame));
    open.rows.endAction(0).setCurrentIndex(BlackScreen);
    QCOMPARE(service().working[1].plans.front().endAction, int(BlackScreen));
    QCOMPARE(open.stores(), 2);
}

void tst_PlanTaskWidgetEditing::anUnknownBoxOnlyStores()
{
    const PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00")});
    OpenCard open(task);
    open.card.slotCurrentIndexChangeSignal(0, ComBoxType(1), 1);
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetEditing::startInTimeMode()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    open.rows.startTime(0).setTime(QTime(8, 30));
    QCOMPARE(line(service().working[1].plans.front()),
             QStringLiteral("id 1 time 08:30:00-09:00:00 x1 days 0 end 0 <>"));
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetEditing::startInFrequencyMode()
{
    const OpenCard open(taskWithPlans({filmPlan(1, "08:00:00", 5)}));
    open.rows.startTime(0).setTime(QTime(22, 0));
    QCOMPARE(open.rows.line(0), QStringLiteral("1 [Film] frequency 22:00:00-22:05:00* x5 "
                                               "szEveryDayStr end 0 green"));
    QCOMPARE(line(service().working[1].plans.front()),
             QStringLiteral("id 1 frequency 22:00:00-22:05:00 x5 days 0 end 0 <1x1>"));
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetEditing::startTyped()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    QTimeEdit& editor = open.rows.startTime(0);
    editor.setCurrentSection(QDateTimeEdit::HourSection);
    editor.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&editor, QStringLiteral("07"));
    QCOMPARE(service().working[1].plans.front().startTime, std::string("07:00:00"));
}

void tst_PlanTaskWidgetEditing::end()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    open.rows.endTime(0).setTime(QTime(23, 59, 59));
    QCOMPARE(line(service().working[1].plans.front()),
             QStringLiteral("id 1 time 08:00:00-23:59:59 x1 days 0 end 0 <>"));
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetEditing::days_data()
{
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QString>("weeks");
    const auto labels = [](const char* text) {
        return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    QTest::newRow("none") << labels("") << "0";
    QTest::newRow("every day") << labels("szEveryDayStr") << "0";
    QTest::newRow("in order") << labels("szMondayStr szWednesdayStr szFridayStr") << "1,3,5";
    QTest::newRow("out of order") << labels("szFridayStr szMondayStr") << "5,1";
    QTest::newRow("repeated") << labels("szSundayStr szSundayStr") << "7,7";
    QTest::newRow("all others") << labels("szTuesdayStr szThursdayStr szSaturdayStr") << "2,4,6";
    QTest::newRow("of another language") << labels("Montag szFridayStr") << "0,5";
    QTest::newRow("one empty label") << QStringList(QString()) << "0";
    QTest::newRow("empty among others")
        << QStringList({QString(), QStringLiteral("szMondayStr")}) << "0,1";
    QTest::newRow("a label with a comma") << labels("szMondayStr,szTuesdayStr") << "1,2";
}

void tst_PlanTaskWidgetEditing::days()
{
    QFETCH(QStringList, labels);
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00", "6")}));
    emit open.rows.weeks(0).signalSelectedText(labels);
    QTEST(QString::fromStdString(service().working[1].plans.front().weeks), "weeks");
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetEditing::daysThroughTheList()
{
    const OpenCard open(taskWithPlans(
        {timePlan(1, "08:00:00", "09:00:00", "0"), timePlan(2, "08:00:00", "09:00:00", "2")}));
    QCOMPARE(open.rows.states(), QStringLiteral("green red"));
    open.rows.weeks(0).applySelection(QStringLiteral("szMondayStr,szFridayStr"));
    QCOMPARE(service().working[1].plans.front().weeks, std::string("1,5"));
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    open.rows.weeks(0).applySelection(QString());
    QCOMPARE(service().working[1].plans.front().weeks, std::string("0"));
    QCOMPARE(open.rows.states(), QStringLiteral("green red"));
    QCOMPARE(open.stores(), 2);
}

void tst_PlanTaskWidgetEditing::daysOfAnUnknownPlan()
{
    const PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00", "6")});
    const OpenCard open(task);
    open.rows.planIdByRow()[0] = 77;
    open.rows.weeks(0).applySelection(QStringLiteral("szMondayStr"));
    open.rows.planIdByRow().clear();
    open.rows.weeks(0).applySelection(QStringLiteral("szMondayStr"));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetEditing::unknownSenders()
{
    const PlayTask task = taskWithPlans({filmPlan(1, "08:00:00", 5)});
    OpenCard open(task);
    trel::widgets::ComboBox box;
    QTimeEdit time;
    QSpinBox spin;
    MultiComboBox days;
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    sendFrom(box, indexChanged, open, &PlanTaskWidget::slotModeIndexChanged, 0);
    sendFrom(box, indexChanged, open, &PlanTaskWidget::slotEndActionIndexChanged, 1);
    sendFrom(time, &QTimeEdit::timeChanged, open, &PlanTaskWidget::slotStartTimeChanged,
             QTime(1, 0));
    sendFrom(time, &QTimeEdit::timeChanged, open, &PlanTaskWidget::slotEndTimeChanged, QTime(1, 0));
    sendFrom(spin, QOverload<int>::of(&QSpinBox::valueChanged), open,
             &PlanTaskWidget::slotTimesChanged, 9);
    sendFrom(days, &MultiComboBox::signalSelectedText, open, &PlanTaskWidget::slotSelectedText,
             QStringList(QStringLiteral("szMondayStr")));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetEditing::directCalls()
{
    const PlayTask task = taskWithPlans({filmPlan(1, "08:00:00", 5)});
    OpenCard open(task);
    open.card.slotModeIndexChanged(0);
    open.card.slotEndActionIndexChanged(1);
    open.card.slotStartTimeChanged(QTime(1, 0));
    open.card.slotEndTimeChanged(QTime(1, 0));
    open.card.slotTimesChanged(9);
    open.card.slotSelectedText({});
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetEditing::rowsWithoutAPlan()
{
    const OpenCard open(taskWithPlans({filmPlan(1, "08:00:00", 5), filmPlan(2, "09:00:00", 5)}));
    open.rows.task().plans.pop_back();
    const PlayTask rest = open.rows.task();
    const PromptAnswer noPrompt;
    open.rows.startTime(1).setTime(QTime(10, 0));
    open.rows.endTime(1).setTime(QTime(11, 0));
    open.rows.times(1).setValue(7);
    open.rows.mode(1).setCurrentIndex(TimeMode);
    open.rows.endAction(1).setCurrentIndex(FreezeCurrentFrame);
    open.rows.weeks(1).applySelection(QStringLiteral("szMondayStr"));
    QCOMPARE(open.rows.task(), rest);
}

void tst_PlanTaskWidgetEditing::reflushReadsTheTaskAgain()
{
    OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")}));
    service().working[1].plans[1].startTime = "08:30:00";
    open.card.slotReflushConflict(-77);
    QCOMPARE(open.rows.states(), QStringLiteral("green red"));
    QCOMPARE(open.rows.task().plans[1].startTime, std::string("08:30:00"));
    QCOMPARE(service().calls({QStringLiteral("getTask"), QStringLiteral("addTask")}).size(), 2);
    QCOMPARE(service().log.first(), QStringLiteral("getTask(1)"));
}

void tst_PlanTaskWidgetEditing::reflushLeavesTheEditors()
{
    OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    service().working[1].plans[0] = timePlan(1, "10:00:00", "11:00:00", "5");
    open.card.slotReflushConflict(0);
    QCOMPARE(open.rows.line(0),
             QStringLiteral("1 [] time 08:00:00-09:00:00 x1* szEveryDayStr end 0 green"));
}

void tst_PlanTaskWidgetEditing::reflushReachesEveryCard()
{
    const OpenCard first(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, 1));
    const OpenCard second(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, 2));
    emit RecordingService::manager().signalReflushConflict(2);
    QCOMPARE(service().calls({QStringLiteral("getTask")}),
             QStringList({QStringLiteral("getTask(1)"), QStringLiteral("getTask(2)")}));
    QCOMPARE(OpenCard::stores(), 2);
}

void tst_PlanTaskWidgetEditing::removalReachesTheProgramFields()
{
    OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")}));
    open.card.refreshEditorrow(0);
    QVERIFY(open.rows.disagreement().startsWith(QStringLiteral("row 1 of plan 2")));
    QCOMPARE(service().log, QStringList());
}

TREL_TEST(tst_PlanTaskWidgetEditing, QApplication)
#include "tst_PlanTaskWidgetEditing.moc"
