#include "WeekFixture.h"
#include "support/TestProgram.h"

#include "week/WeekHit.h"
#include "week/WeekReasons.h"

#include <QApplication>
using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;
using namespace weekfixture;

/// What the picture says about a moment and a plan, without the picture.
class tst_WeekReasons : public QObject
{
    Q_OBJECT

private slots:
    void plansThatNeverPlay_data();
    void plansThatNeverPlay();
    void aListThatRunsLessThanOnce();
    void aListThatIsOverBeforeThePlan();
    void theEveningThatComesTwice();
    void theDateIsWrittenAsInTheEditor_data();
    void theDateIsWrittenAsInTheEditor();

private:
    static QStringList reasons(const WeekSchedule& schedule, const WeekLayout& layout,
                               const WeekHit& hit)
    {
        return reasonText(schedule, layout, hit, QLocale::c()).split(QLatin1Char('\n'));
    }
    /// On the Wednesday of the fixture, at the first block.
    static QStringList reasonsOfTheBlock(const PlayPlan& plan)
    {
        const auto schedule = scheduleOf({plan});
        const WeekLayout layout = schedule->layout(QDate(2024, 3, 4));
        return reasons(*schedule, layout, hitOf(layout, 2, layout.days[2].blocks.front()));
    }
};

void tst_WeekReasons::plansThatNeverPlay_data()
{
    QTest::addColumn<PlayPlan>("plan");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const PlayPlan& plan, const char* sentence) {
        QTest::newRow(name) << plan << QString::fromUtf8(sentence);
    };
    row("empty", timePlan(1, "08:00:00", "08:00:00"),
        "Plan 1 never plays: it starts and ends at 08:00:00.");
    row("inverted", timePlan(1, "08:00:00", "07:00:00"),
        "Plan 1 never plays: it ends at 07:00:00, before it starts at 08:00:00.");
    row("start", timePlan(1, "noon", "07:00:00"),
        "Plan 1 never plays: its start, “noon”, is not a time in the form hh:mm:ss.");
    row("end", timePlan(1, "08:00:00", "nine"),
        "Plan 1 never plays: its end, “nine”, is not a time in the form hh:mm:ss.");
    row("both", timePlan(1, "noon", "nine"),
        "Plan 1 never plays: its start, “noon”, and its end, “nine”, are not times in the form "
        "hh:mm:ss.");
    row("no runs", frequencyPlan(1, "08:00:00", 0, {entry(1)}),
        "Plan 1 never plays: its list is to run less than once.");
}

void tst_WeekReasons::plansThatNeverPlay()
{
    QFETCH(PlayPlan, plan);
    QTEST(reasonsOfTheBlock(plan).last(), "expected");
}

void tst_WeekReasons::aListThatRunsLessThanOnce()
{
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00");
    plan.mode = 7;
    plan.times = 0;
    QCOMPARE(reasonsOfTheBlock(plan)[2],
             QStringLiteral("Plan 1 of task 1 is due, but its list is to run less than once."));
}

// A minute and a half and half a minute, once each.
void tst_WeekReasons::aListThatIsOverBeforeThePlan()
{
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00");
    plan.mode = 7;
    plan.times = 2;
    const QString sentence = QStringLiteral("Its list is over at 08:04, before the plan ends.");
    QCOMPARE(reasonsOfTheBlock(plan).last(), sentence);
    plan.endTime = "08:04:00";
    QVERIFY(!reasonsOfTheBlock(plan).contains(sentence));
    plan.mode = TimeMode;
    plan.endTime = "09:00:00";
    QVERIFY(!reasonsOfTheBlock(plan).contains(sentence));
}

void tst_WeekReasons::theEveningThatComesTwice()
{
    PlayTask task = taskWithPlans({timePlan(1, "23:00:00", "23:40:00")});
    task.startDate = "2010.11.01";
    task.endDate = "2010.11.30";
    task.plans[0].programs = {entry(1)};
    const WeekSchedule schedule({{1, task}}, catalogue(), {}, QTimeZone("America/St_Johns"));
    const WeekLayout layout = schedule.layout(QDate(2010, 11, 1));
    WeekHit hit;
    hit.day = 5;
    hit.second = (23 * 60 + 30) * 60;
    const WeekColumn& day = layout.days[5];
    hit.change = &day.changes.front();
    hit.pass = Pass::First;
    QVERIFY(reasons(schedule, layout, hit)
                .first()
                .endsWith(QStringLiteral(", \u206623:30 -02:30\u2069")));
    hit.pass = Pass::Second;
    QVERIFY(reasons(schedule, layout, hit)
                .first()
                .endsWith(QStringLiteral(", \u206623:30 -03:30\u2069")));
    hit = {};
    hit.second = (23 * 60 + 30) * 60;
    QVERIFY(reasons(schedule, layout, hit).first().endsWith(QStringLiteral(", \u206623:30\u2069")));
}

void tst_WeekReasons::theDateIsWrittenAsInTheEditor_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("en_US") << QStringLiteral(
        "Wednesday, \u20662024.03.06\u2069, \u206608:00\u2069");
    QTest::newRow("de_DE") << QStringLiteral("Mittwoch, \u20662024.03.06\u2069, \u206608:00\u2069");
    QTest::newRow("zh_CN") << QStringLiteral("星期三, \u20662024.03.06\u2069, \u206608:00\u2069");
}

void tst_WeekReasons::theDateIsWrittenAsInTheEditor()
{
    const auto schedule = scheduleOf({timePlan(1, "08:00:00", "09:00:00")});
    const WeekLayout layout = schedule->layout(QDate(2024, 3, 4));
    const QString text =
        reasonText(*schedule, layout, hitOf(layout, 2, layout.days[2].blocks.front()),
                   QLocale(QString::fromLatin1(QTest::currentDataTag())));
    QTEST(text.section(QLatin1Char('\n'), 0, 0), "line");
}

TREL_TEST(tst_WeekReasons, QApplication)
#include "tst_WeekReasons.moc"
