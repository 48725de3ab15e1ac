#include "OpenCard.h"
#include "support/TestProgram.h"

#include "service/LiteralRules.h"

#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QLabel>
#include <QTimeEdit>

#include <random>

using namespace trel::mediadispatch;

namespace {

constexpr char kRed[] = "color:red; padding-left: 1px;";
constexpr char kGreen[] = "color:green; padding-left: 1px;";

RecordingService& service()
{
    return RecordingService::instance();
}

/// Counts how often the style sheet of a widget is set again.
class StyleCounter : public QObject
{
public:
    explicit StyleCounter(QWidget& widget) { widget.installEventFilter(this); }

    int count() const { return m_count; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_count += event->type() == QEvent::StyleChange ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

private:
    int m_count = 0;
};

/// Runs one pass that changes nothing else.
void pass(OpenCard& open)
{
    open.card.slotCurrentIndexChangeSignal(0, ComBoxType(1), 0);
}

QString flags(const PlayTask& task)
{
    QStringList texts;
    for (const PlayPlan& plan : task.plans) {
        texts.append(QLatin1String(plan.isConflict ? "red" : "green"));
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

/// Which rows are marked as colliding, and how the pass stores the task.
class tst_PlanTaskWidgetConflicts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void marks_data();
    void marks();
    void freshEndDecides();
    void noPlans();
    void styleAndTextOfTheStates();
    void aPassStartsFromNothing();
    void aSecondPassGivesTheSame();
    void aRowOfAnUnknownPlanKeepsItsState();
    void plansOfOneIdShareTheirState();
    void tasksAreNotCompared();
    void thePassFetchesTheCatalogueOnce();
    void thePassAsksOnceForEachProgram();
    void noCatalogueForTimeModeAlone();
    void loadingFetchesTheCatalogueOnce();
    void aStateIsSetOnlyWhenItChanges();
    void agreesWithTheWalkOverAllPairs();
};

void tst_PlanTaskWidgetConflicts::init()
{
    service().reset();
    service().addProgram(1, "minute", 60000.0);
    service().addProgram(2, "picture", 0.0, true);
}

void tst_PlanTaskWidgetConflicts::marks_data()
{
    QTest::addColumn<QList<PlayPlan>>("plans");
    QTest::addColumn<QString>("states");
    const auto row = [](const char* name, const QList<PlayPlan>& plans, const char* states) {
        QTest::newRow(name) << plans << states;
    };
    const auto plan = [](int id, const char* start, const char* end, const char* weeks = "0") {
        return timePlan(id, start, end, weeks);
    };
    row("one plan", {plan(1, "08:00:00", "09:00:00")}, "green");
    row("a shared day",
        {plan(1, "08:00:00", "09:00:00", "1,2"), plan(2, "08:30:00", "09:30:00", "2,3")},
        "green red");
    row("no shared day",
        {plan(1, "08:00:00", "09:00:00", "1,2"), plan(2, "08:00:00", "09:00:00", "3,4")},
        "green green");
    row("every day first",
        {plan(1, "08:00:00", "09:00:00", "0"), plan(2, "08:00:00", "09:00:00", "3")}, "green red");
    row("every day second",
        {plan(1, "08:00:00", "09:00:00", "3"), plan(2, "08:00:00", "09:00:00", "0")}, "green red");
    row("empty days", {plan(1, "08:00:00", "09:00:00", ""), plan(2, "08:00:00", "09:00:00", "3")},
        "green red");
    row("8 meets 8 alone",
        {plan(1, "08:00:00", "09:00:00", "8"), plan(2, "08:00:00", "09:00:00", "7"),
         plan(3, "08:00:00", "09:00:00", "8")},
        "green green red");
    row("touching", {plan(1, "08:00:00", "09:00:00"), plan(2, "09:00:00", "10:00:00")},
        "green green");
    row("equal", {plan(1, "08:00:00", "09:00:00"), plan(2, "08:00:00", "09:00:00")}, "green red");
    row("zero length on the edge",
        {plan(1, "08:00:00", "09:00:00"), plan(2, "09:00:00", "09:00:00")}, "green green");
    row("zero length inside", {plan(1, "08:00:00", "09:00:00"), plan(2, "08:30:00", "08:30:00")},
        "green red");
    row("zero lengths at the same time",
        {plan(1, "08:00:00", "08:00:00"), plan(2, "08:00:00", "08:00:00")}, "green green");
    row("inverted first", {plan(1, "20:00:00", "02:00:00"), plan(2, "10:00:00", "11:00:00")},
        "green red");
    row("inverted second", {plan(1, "10:00:00", "11:00:00"), plan(2, "20:00:00", "02:00:00")},
        "green red");
    row("inverted on other days",
        {plan(1, "20:00:00", "02:00:00", "1"), plan(2, "10:00:00", "11:00:00", "2")},
        "green green");
    row("red rows mark rows below them",
        {plan(1, "08:00:00", "09:00:00"), plan(2, "08:30:00", "10:00:00"),
         plan(3, "09:30:00", "11:00:00"), plan(4, "11:00:00", "12:00:00")},
        "green red red green");
}

void tst_PlanTaskWidgetConflicts::marks()
{
    QFETCH(QList<PlayPlan>, plans);
    OpenCard open(taskWithPlans({plans.begin(), plans.end()}));
    QTEST(open.rows.states(), "states");
    pass(open);
    QTEST(open.rows.states(), "states");
    QTEST(flags(open.rows.task()), "states");
    QCOMPARE(open.stores(), 1);
    QCOMPARE(service().working[1], open.rows.task());
}

void tst_PlanTaskWidgetConflicts::freshEndDecides()
{
    PlayPlan stale = frequencyPlan(1, "08:00:00", 30, {entry(1)});
    stale.endTime = "12:00:00";
    const OpenCard open(taskWithPlans(
        {stale, timePlan(2, "08:29:59", "08:45:00"), timePlan(3, "09:00:00", "09:30:00")}));
    QCOMPARE(open.rows.states(), QStringLiteral("green red green"));
    QCOMPARE(open.rows.task().plans.front().endTime, std::string("12:00:00"));
    QCOMPARE(open.rows.endTime(0).text(), QStringLiteral("12:00:00"));
}

void tst_PlanTaskWidgetConflicts::noPlans()
{
    OpenCard open(taskWithPlans({}));
    pass(open);
    QCOMPARE(service().log, QStringList(QStringLiteral("addTask(1 2024.03.01-2024.03.31 [])")));
}

void tst_PlanTaskWidgetConflicts::styleAndTextOfTheStates()
{
    const OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "08:00:00", "09:00:00")}));
    QCOMPARE(open.rows.state(0).styleSheet(), QLatin1String(kGreen));
    QCOMPARE(open.rows.state(0).text(), QStringLiteral("zhnormalStr"));
    QCOMPARE(open.rows.state(1).styleSheet(), QLatin1String(kRed));
    QCOMPARE(open.rows.state(1).text(), QStringLiteral("zhconflictStr"));
}

void tst_PlanTaskWidgetConflicts::aPassStartsFromNothing()
{
    PlayTask task =
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")});
    for (PlayPlan& plan : task.plans) {
        plan.isConflict = true;
    }
    const OpenCard open(task);
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    QCOMPARE(flags(open.rows.task()), QStringLiteral("green green"));
    QCOMPARE(flags(service().working[1]), QStringLiteral("green green"));
}

void tst_PlanTaskWidgetConflicts::aSecondPassGivesTheSame()
{
    OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "08:30:00", "09:30:00")}));
    pass(open);
    const QStringList rows = open.rows.lines();
    const PlayTask task = open.rows.task();
    pass(open);
    QCOMPARE(open.rows.lines(), rows);
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.stores(), 2);
}

void tst_PlanTaskWidgetConflicts::aRowOfAnUnknownPlanKeepsItsState()
{
    OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")}));
    open.rows.planIdByRow().erase(1);
    open.rows.state(1).setText(QStringLiteral("as it was"));
    open.rows.task().plans[1].startTime = "08:30:00";
    pass(open);
    QCOMPARE(open.rows.state(1).text(), QStringLiteral("as it was"));
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    QCOMPARE(flags(open.rows.task()), QStringLiteral("green red"));
}

void tst_PlanTaskWidgetConflicts::plansOfOneIdShareTheirState()
{
    const OpenCard open(
        taskWithPlans({timePlan(5, "08:00:00", "09:00:00"), timePlan(5, "08:00:00", "09:00:00")}));
    // Labels go by the id, flags by the plan.
    QCOMPARE(open.rows.states(), QStringLiteral("red red"));
    QCOMPARE(flags(open.rows.task()), QStringLiteral("green red"));
}

void tst_PlanTaskWidgetConflicts::tasksAreNotCompared()
{
    const OpenCard first(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, 1));
    const OpenCard second(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, 2));
    QCOMPARE(first.rows.states(), QStringLiteral("green"));
    QCOMPARE(second.rows.states(), QStringLiteral("green"));
}

void tst_PlanTaskWidgetConflicts::thePassFetchesTheCatalogueOnce()
{
    PlayTask task = taskWithPlans({});
    for (int id = 1; id <= 30; ++id) {
        task.plans.push_back(frequencyPlan(id, "08:00:00", 1, {entry(1), entry(1), entry(1)}));
    }
    OpenCard open(task);
    pass(open);
    QCOMPARE(service().count(QStringLiteral("getPrograms")), 1);
}

void tst_PlanTaskWidgetConflicts::thePassAsksOnceForEachProgram()
{
    PlayTask task = taskWithPlans({});
    for (int id = 1; id <= 30; ++id) {
        task.plans.push_back(frequencyPlan(id, "08:00:00", 1, {entry(1), entry(2), entry(1)}));
    }
    OpenCard open(task);
    pass(open);
    QCOMPARE(service().count(QStringLiteral("isNoDurationType")), 2);
}

void tst_PlanTaskWidgetConflicts::noCatalogueForTimeModeAlone()
{
    OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    pass(open);
    QCOMPARE(service().log.size(), 1);
}

void tst_PlanTaskWidgetConflicts::loadingFetchesTheCatalogueOnce()
{
    PlayTask task = taskWithPlans({});
    for (int id = 1; id <= 30; ++id) {
        task.plans.push_back(frequencyPlan(id, "08:00:00", 1, {entry(1)}));
    }
    const PlanTaskWidget card(task, nullptr);
    QCOMPARE(service().count(QStringLiteral("getPrograms")), 1);
    QCOMPARE(service().count(QStringLiteral("addTask")), 30);
}

void tst_PlanTaskWidgetConflicts::aStateIsSetOnlyWhenItChanges()
{
    OpenCard open(
        taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "10:00:00", "11:00:00")}));
    const StyleCounter first(open.rows.state(0));
    const StyleCounter second(open.rows.state(1));
    pass(open);
    QCOMPARE(first.count(), 0);
    QCOMPARE(second.count(), 0);
    open.rows.startTime(1).setTime(QTime(8, 30));
    QCOMPARE(open.rows.states(), QStringLiteral("green red"));
    QCOMPARE(first.count(), 0);
    QCOMPARE(second.count(), 1);
    pass(open);
    QCOMPARE(second.count(), 1);
    open.rows.startTime(1).setTime(QTime(9, 0));
    QCOMPARE(open.rows.states(), QStringLiteral("green green"));
    QCOMPARE(second.count(), 2);
}

void tst_PlanTaskWidgetConflicts::agreesWithTheWalkOverAllPairs()
{
    std::mt19937 random(20240310);
    const auto pick = [&random](const std::vector<std::string>& texts) {
        return texts[random() % texts.size()];
    };
    const std::vector<std::string> times = {"08:00:00", "08:01:00", "08:02:00", "09:00:00",
                                            "23:59:59", "8:00",     "",         "24:00:00"};
    const std::vector<std::string> weeks = {"0", "1",   "2", "1,2", "3,1",
                                            "",  "abc", "8", "-1",  "2,2"};
    const auto hasNoDuration = [](int progIndex) {
        return service().noDuration.count(progIndex) > 0;
    };

    OpenCard open(taskWithPlans({}));
    for (int id = 1; id <= 6; ++id) {
        open.rows.task().plans.emplace_back();
        open.rows.task().plans.back().id = id;
        open.card.slotAddRowPlan(open.rows.task().plans.back(), true);
    }
    for (int round = 0; round < 500; ++round) {
        for (PlayPlan& plan : open.rows.task().plans) {
            plan.mode = random() % 2 ? FrequencyMode : TimeMode;
            plan.startTime = pick(times);
            plan.endTime = pick(times);
            plan.weeks = pick(weeks);
            plan.times = int(random() % 4) - 1;
            plan.programs.assign(random() % 3, entry(int(random() % 4), int(random() % 3)));
        }
        service().clearLog();
        pass(open);
        const std::vector<bool> expected = literal::collidingPlans(
            open.rows.task().plans, literal::lookupIn(service().programs), hasNoDuration);
        QStringList states;
        for (const bool collides : expected) {
            states.append(QLatin1String(collides ? "red" : "green"));
        }
        QCOMPARE(open.rows.states(), states.join(QLatin1Char(' ')));
        QCOMPARE(flags(open.rows.task()), states.join(QLatin1Char(' ')));
        QCOMPARE(open.stores(), 1);
        QCOMPARE(service().addedTasks.back(), open.rows.task());
    }
}

TREL_TEST(tst_PlanTaskWidgetConflicts, QApplication)
#include "tst_PlanTaskWidgetConflicts.moc"
