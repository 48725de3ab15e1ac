#include "ScheduleWriting.h"
#include "StateWriting.h"
#include "support/TestProgram.h"

#include "trelprogramschedule/dispatch/PlainScreen.h"

#include <QtTest>

using namespace trel::mediadispatch;

/// What a schedule shows at a moment, one case a row: by the plans alone, and with plans cut in.
/// 2024.03.04 is a Monday; the clock is that of Berlin.
class tst_ScreenTimeline : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheRulesSay_data();
    void showsWhatTheRulesSay();
    void showsWhatIsCutIn_data();
    void showsWhatIsCutIn();
    void keepsTheOneOnScreenAndTheOneThatWaits();
    void aDateThatIsNoneIsNever();
    void doesNotWalkOverGaps();
};

namespace {

const char* const kWeek = "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A B*2 freeze";
const char* const kDay =
    "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A / 10:00:00-11:00:00 B freeze";

QTimeZone berlin()
{
    return QTimeZone("Europe/Berlin");
}

/// "MOMENT now|delayed TASK.PLAN PLAN", with "once" at the end for a plan outside its span.
ScreenInsertions afterRequest(const ScreenTimeline& timeline, const ScreenInsertions& before,
                              const QString& text)
{
    const bool isDelayed = text.contains(QStringLiteral(" delayed "));
    const QString parting = isDelayed ? QStringLiteral(" delayed ") : QStringLiteral(" now ");
    QString rest = text.section(parting, 1);
    ScreenInsertion insertion;
    insertion.taskId = rest.section(QLatin1Char('.'), 0, 0).toInt();
    insertion.planId = rest.section(QLatin1Char('.'), 1).section(QLatin1Char(' '), 0, 0).toInt();
    const bool isOnce = rest.endsWith(QStringLiteral(" once"));
    if (isOnce) {
        rest.chop(5);
    }
    insertion.plan = planFromText(rest.section(QLatin1Char(' '), 1));
    insertion.plan.serviceFlagB = isOnce;
    const Instant moment = momentFromText(text.section(parting, 0, 0).trimmed(), berlin());
    return timeline.withInsertion(before, insertion, moment, isDelayed);
}

ScreenInsertions afterRequests(const ScreenTimeline& timeline, const QString& requests)
{
    ScreenInsertions insertions;
    for (const QString& request : requests.split(QLatin1Char(';'))) {
        insertions = afterRequest(timeline, insertions, request.trimmed());
    }
    return insertions;
}

} // namespace

void tst_ScreenTimeline::showsWhatTheRulesSay_data()
{
    QTest::addColumn<QString>("schedule");
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QString>("line");

    const auto row = [](const char* name, const char* schedule, const char* moment,
                        const char* line) {
        QTest::newRow(name) << QString::fromLatin1(schedule) << QString::fromLatin1(moment)
                            << QString::fromLatin1(line);
    };
    row("before the first plan", kWeek, "2024.03.04 07:00:00",
        "black, no plan yet, ever - 08:00:00");
    row("first second", kWeek, "2024.03.04 08:00:00",
        "plays A entry 0 play 0 run 0 at 0 1.1 row 0, plan, 08:00:00 - 08:00:10 - 09:00:00");
    row("second play of the second entry in a later run", kWeek, "2024.03.04 08:00:34.500",
        "plays B entry 1 play 1 run 1 at 2500 1.1 row 0, plan, 08:00:32 - 08:00:36 - 09:00:00");
    row("last millisecond", kWeek, "2024.03.04 08:59:59.999",
        "plays B entry 1 play 1 run 199 at 3999 1.1 row 0, plan, 08:59:56 - 09:00:00");
    row("frozen over night", kWeek, "2024.03.04 09:00:00",
        "frozen B entry 1 play 1 run 199 at 4000 1.1 row 0, plan ended, 09:00:00 - 03.05 08:00:00");
    row("frozen for good", kWeek, "2024.12.04 09:00:00",
        "frozen B entry 1 play 1 run 199 at 4000 1.1 row 0, plan ended, 03.10 09:00:00 - never");
    row("lowest id of several tasks",
        "2 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A | 1 2024.03.04-2024.03.04 / "
        "08:00:00-09:00:00 B",
        "2024.03.04 08:00:00",
        "plays B entry 0 play 0 run 0 at 0 1.1 row 0, plan, 08:00:00 - 08:00:04 - 09:00:00");
    row("plans of other tasks do not count",
        "2 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A | 1 2024.03.04-2024.03.04 / "
        "10:00:00-11:00:00 B",
        "2024.03.04 08:00:00", "black 2.1 row 0, plan ended, 03.03 09:00:00 - 10:00:00");
    row("the other task on the day after",
        "2 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A | 1 2024.03.04-2024.03.04 / "
        "08:00:00-11:00:00 B",
        "2024.03.05 08:00:00",
        "plays A entry 0 play 0 run 0 at 0 2.1 row 0, plan, 08:00:00 - 08:00:10 - 09:00:00");
    row("last day is valid", "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A", "2024.03.10 08:00:00",
        "plays A entry 0 play 0 run 0 at 0 1.1 row 0, plan, 08:00:00 - 08:00:10 - 09:00:00");
    row("dates that are none",
        "1 2024.02.30-2024.03.10 / 08:00:00-09:00:00 A | 2 -2024.03.10 / 08:00:00-09:00:00 A",
        "2024.03.04 08:00:00", "black, no plan yet, ever - never");
    row("weekday fits", "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A on=5,2",
        "2024.03.05 08:00:00",
        "plays A entry 0 play 0 run 0 at 0 1.1 row 0, plan, 08:00:00 - 08:00:10 - 09:00:00");
    row("weekday does not fit", "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A on=5,2",
        "2024.03.06 08:00:00", "black 1.1 row 0, plan ended, 03.05 09:00:00 - 03.08 08:00:00");
    row("sunday is 7", "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A on=7", "2024.03.04 08:00:00",
        "black, no plan yet, ever - 03.10 08:00:00");
    row("no weekdays are all",
        "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A on=", "2024.03.04 08:00:00",
        "plays A entry 0 play 0 run 0 at 0 1.1 row 0, plan, 08:00:00 - 08:00:10 - 09:00:00");
    row("a token that is no number is every day",
        "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A on=5,abc", "2024.03.04 08:00:00",
        "plays A entry 0 play 0 run 0 at 0 1.1 row 0, plan, 08:00:00 - 08:00:10 - 09:00:00");
    row("numbers of no day", "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A on=8,-1",
        "2024.03.04 08:00:00", "black, no plan yet, ever - never");
    row("end is not included",
        "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A / 09:00:00-10:00:00 B",
        "2024.03.04 09:00:00",
        "plays B entry 0 play 0 run 0 at 0 1.2 row 1, plan, 09:00:00 - 09:00:04 - 10:00:00");
    row("times that are none", "1 2024.03.04-2024.03.04 / 08:00-09:00:00 A / 08:00:00-24:00:00 A",
        "2024.03.04 08:00:00", "black, no plan yet, ever - never");
    row("inverted span", "1 2024.03.04-2024.03.04 / 09:00:00-08:00:00 A", "2024.03.04 08:30:00",
        "black, no plan yet, ever - never");
    row("empty span", "1 2024.03.04-2024.03.04 / 08:00:00-08:00:00 A", "2024.03.04 08:00:00",
        "black, no plan yet, ever - never");
    row("last second of the day belongs to nobody",
        "1 2024.03.04-2024.03.05 / 00:00:00-23:59:59 H freeze", "2024.03.04 23:59:59",
        "frozen H entry 0 play 0 run 23 at 3599000 1.1 row 0, plan ended, 23:59:59 - 03.05 "
        "00:00:00");
    row("first row has the screen",
        "1 2024.03.04-2024.03.04 / 08:00:20-08:00:30 B / 08:00:00-09:00:00 A",
        "2024.03.04 08:00:25",
        "plays B entry 0 play 0 run 1 at 1000 1.1 row 0, plan, 08:00:24 - 08:00:28 - 08:00:30");
    row("cut off by an earlier row",
        "1 2024.03.04-2024.03.04 / 08:00:25-08:00:35 B / 08:00:00-09:00:00 A",
        "2024.03.04 08:00:24",
        "plays A entry 0 play 0 run 2 at 4000 1.2 row 1, plan, 08:00:20 - 08:00:25");
    row("gets the screen back where it would be",
        "1 2024.03.04-2024.03.04 / 08:00:25-08:00:35 B / 08:00:00-09:00:00 A",
        "2024.03.04 08:00:36",
        "plays A entry 0 play 0 run 3 at 6000 1.2 row 1, plan, 08:00:35 - 08:00:40 - 09:00:00");
    row("end by runs, not as stored", "1 2024.03.04-2024.03.04 / 08:00:00-23:00:00 x2 A B freeze",
        "2024.03.04 08:00:28",
        "frozen B entry 1 play 0 run 1 at 4000 1.1 row 0, plan ended, 08:00:28 - never");
    row("last play cut by the whole second", "1 2024.03.04-2024.03.04 / 08:00:00 x3 C freeze",
        "2024.03.04 08:00:07",
        "frozen C entry 0 play 0 run 2 at 1999 1.1 row 0, plan ended, 08:00:07 - never");
    row("half a millisecond goes on", "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 C",
        "2024.03.04 08:00:02.500",
        "plays C entry 0 play 0 run 0 at 2500 1.1 row 0, plan, 08:00:00 - 08:00:02.501 - 09:00:00");
    row("and then is over", "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 C",
        "2024.03.04 08:00:02.501",
        "plays C entry 0 play 0 run 1 at 0 1.1 row 0, plan, 08:00:02.501 - 08:00:05.001 - "
        "09:00:00");
    row("whole milliseconds after two", "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 C",
        "2024.03.04 08:00:05.001",
        "plays C entry 0 play 0 run 2 at 0 1.1 row 0, plan, 08:00:05.001 - 08:00:07.502 - "
        "09:00:00");
    row("plays shorter than a millisecond", "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 E*3",
        "2024.03.04 08:00:00.001",
        "plays E entry 0 play 2 run 0 at 0 1.1 row 0, plan, 08:00:00.001 - 08:00:00.002 - "
        "09:00:00");
    row("microseconds add up", "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 D",
        "2024.03.04 08:00:02.501",
        "plays D entry 0 play 0 run 2501 at 0 1.1 row 0, plan, 08:00:02.501 - 08:00:02.502 - "
        "09:00:00");
    row("entries that cannot play",
        "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 !A N Q Z U A*0 A*-1 B", "2024.03.04 08:00:05",
        "plays B entry 7 play 0 run 1 at 1000 1.1 row 0, plan, 08:00:04 - 08:00:08 - 09:00:00");
    row("none of the entries can play",
        "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 !A N Q Z freeze", "2024.03.04 08:30:00",
        "black 1.1 row 0, plan has nothing, 08:00:00 - 09:00:00");
    row("nothing leaves black",
        "1 2024.03.04-2024.03.04 / 07:00:00-08:00:00 A freeze / 08:00:00-09:00:00 !A freeze",
        "2024.03.04 09:30:00", "black 1.2 row 1, plan ended, 09:00:00 - never");
    row("no entries", "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00", "2024.03.04 08:30:00",
        "black 1.1 row 0, plan has nothing, 08:00:00 - 09:00:00");
    row("no runs", "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A mode=7 times=0 freeze",
        "2024.03.04 08:30:00", "black 1.1 row 0, plan has nothing, 08:00:00 - 09:00:00");
    row("null program counts for the end, not on screen",
        "1 2024.03.04-2024.03.04 / 08:00:00 x1 A N", "2024.03.04 08:00:12",
        "black 1.1 row 0, plan ran out, 08:00:10 - 08:00:13");
    row("ran out, frozen", "1 2024.03.04-2024.03.04 / 08:00:00 x2 A N freeze",
        "2024.03.04 08:00:22",
        "frozen A entry 0 play 0 run 1 at 10000 1.1 row 0, plan ran out, 08:00:20 - 08:00:26");
    row("ran out, then ended", "1 2024.03.04-2024.03.04 / 08:00:00 x2 A N freeze",
        "2024.03.04 08:00:26",
        "frozen A entry 0 play 0 run 1 at 10000 1.1 row 0, plan ended, 08:00:26 - never");
    row("unknown mode runs by its count to the stored end",
        "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A mode=7 times=2", "2024.03.04 08:00:30",
        "black 1.1 row 0, plan ran out, 08:00:20 - 09:00:00");
    row("without a length to the end of the span",
        "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 B I*2 A", "2024.03.04 08:30:00",
        "plays I entry 1 play 0 run 0 at 1796000 1.1 row 0, plan, 08:00:04 - 09:00:00");
    row("live source by runs fills the day", "1 2024.03.04-2024.03.04 / 08:00:00 x2 L freeze",
        "2024.03.04 23:59:59",
        "frozen L entry 0 play 0 run 0 at 57599000 1.1 row 0, plan ended, 23:59:59 - never");
    row("any action but zero freezes", "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A action=-3",
        "2024.03.04 09:00:00",
        "frozen A entry 0 play 0 run 359 at 10000 1.1 row 0, plan ended, 09:00:00 - never");
    row("black screen", "1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A", "2024.03.04 09:00:00",
        "black 1.1 row 0, plan ended, 09:00:00 - never");
    row("of two that end the one that had the screen",
        "1 2024.03.04-2024.03.04 / 08:30:00-09:00:00 B / 08:00:00-09:00:00 A freeze",
        "2024.03.04 09:00:00", "black 1.1 row 0, plan ended, 09:00:00 - never");
    row("left by an earlier task, long ago",
        "1 2004.03.04-2004.03.04 / 08:00:00-09:00:00 A freeze | 2 2024.03.01-2024.03.31 / "
        "10:00:00-11:00:00 B on=1",
        "2024.03.03 12:00:00",
        "frozen A entry 0 play 0 run 359 at 10000 1.1 row 0, plan ended, 03.04 09:00:00 - 03.04 "
        "10:00:00");
    row("plan of the missing hour never had the screen",
        "1 2024.03.31-2024.03.31 / 01:00:00-02:00:00 A / 02:00:00-03:00:00 B freeze / "
        "04:00:00-05:00:00 C",
        "2024.03.31 03:30:00", "black 1.1 row 0, plan ended, 03:00:00 - 04:00:00");
    row("plan into the missing hour ends early",
        "1 2024.03.31-2024.03.31 / 01:00:00-02:30:00 H freeze", "2024.03.31 03:30:00",
        "frozen H entry 0 play 0 run 0 at 3600000 1.1 row 0, plan ended, 03:00:00 - never");
    row("plan out of the missing hour begins late", "1 2024.03.31-2024.03.31 / 02:30:00-04:00:00 H",
        "2024.03.31 03:10:00",
        "plays H entry 0 play 0 run 0 at 2400000 1.1 row 0, plan, 03:00:00 - 03:30:00 - 04:00:00");
    row("play leaps over the missing hour", "1 2024.03.31-2024.03.31 / 01:30:00-04:00:00 I",
        "2024.03.31 03:10:00",
        "plays I entry 0 play 0 run 0 at 6000000 1.1 row 0, plan, 03:00:00 - 04:00:00");
    row("play before the missing hour", "1 2024.03.31-2024.03.31 / 01:30:00-04:00:00 I",
        "2024.03.31 01:50:00",
        "plays I entry 0 play 0 run 0 at 1200000 1.1 row 0, plan, 01:30:00 - 03:00:00+2 - "
        "04:00:00+2");
    row("doubled hour, first time", "1 2024.10.27-2024.10.27 / 02:00:00-02:30:00 H",
        "2024.10.27 02:10:00 2",
        "plays H entry 0 play 0 run 0 at 600000 1.1 row 0, plan, 02:00:00 - 02:30:00");
    row("doubled hour, in between", "1 2024.10.27-2024.10.27 / 02:00:00-02:30:00 H freeze",
        "2024.10.27 02:40:00 2",
        "frozen H entry 0 play 0 run 0 at 1800000 1.1 row 0, plan ended, 02:30:00 - 02:00:00+1");
    row("doubled hour, second time", "1 2024.10.27-2024.10.27 / 02:00:00-02:30:00 H",
        "2024.10.27 02:10:00 1",
        "plays H entry 0 play 0 run 0 at 600000 1.1 row 0, plan, 02:00:00 - 02:30:00");
    row("plan that fills the doubled hour keeps the screen",
        "1 2024.10.27-2024.10.27 / 02:00:00-03:00:00 H", "2024.10.27 02:10:00 1",
        "plays H entry 0 play 0 run 0 at 600000 1.1 row 0, plan, 02:00:00 - 03:00:00");
    row("nothing stays nothing over the change", "1 2024.10.27-2024.10.27 / 01:00:00-04:00:00",
        "2024.10.27 02:10:00 2", "black 1.1 row 0, plan has nothing, 01:00:00 - 04:00:00+1");
    row("run out stays so over the change",
        "1 2024.10.27-2024.10.27 / 01:00:00-04:00:00 A mode=7 times=1 freeze",
        "2024.10.27 02:10:00 1",
        "frozen A entry 0 play 0 run 0 at 10000 1.1 row 0, plan ran out, 01:00:10+2 - 04:00:00");
    row("run out plays again after the change",
        "1 2024.10.27-2024.10.27 / 02:00:00-04:00:00 A mode=7 times=1", "2024.10.27 02:00:05 1",
        "plays A entry 0 play 0 run 0 at 5000 1.1 row 0, plan, 02:00:00 - 02:00:10 - 04:00:00");
}

void tst_ScreenTimeline::showsWhatTheRulesSay()
{
    QFETCH(QString, schedule);
    QFETCH(QString, moment);
    QFETCH(QString, line);

    const ScreenTimeline timeline(scheduleFromText(schedule), lettersCatalogue(), berlin());
    const Instant asked = momentFromText(moment, berlin());
    QCOMPARE(lineOf(timeline.at(asked), timeline, asked), line);
}

void tst_ScreenTimeline::showsWhatIsCutIn_data()
{
    QTest::addColumn<QString>("schedule");
    QTest::addColumn<QString>("requests");
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QString>("line");

    const auto row = [](const char* name, const char* schedule, const char* requests,
                        const char* moment, const char* line) {
        QTest::newRow(name) << QString::fromLatin1(schedule) << QString::fromLatin1(requests)
                            << QString::fromLatin1(moment) << QString::fromLatin1(line);
    };
    row("at once, from the first entry on", kDay,
        "2024.03.04 08:00:15 now 1.1 08:00:00-09:00:00 B A freeze", "2024.03.04 08:00:17",
        "plays B entry 0 play 0 run 0 at 2000 1.1 row 0, insertion, 08:00:15 - 08:00:19 - "
        "09:00:00");
    row("before it begins", kDay, "2024.03.04 08:00:15 now 1.1 08:00:00-09:00:00 B A freeze",
        "2024.03.04 08:00:12",
        "plays A entry 0 play 0 run 1 at 2000 1.1 row 0, plan, 08:00:10 - 08:00:15");
    row("later plans do not take the screen", kDay,
        "2024.03.04 08:00:15 now 1.2 10:00:00-11:00:00 B A freeze", "2024.03.04 09:30:00",
        "plays A entry 1 play 0 run 384 at 5000 1.2 row 1, insertion, 09:29:55 - 09:30:05 - "
        "11:00:00");
    row("ends with the span of the plan given", kDay,
        "2024.03.04 08:00:15 now 1.2 10:00:00-08:30:00 B freeze", "2024.03.04 08:29:59",
        "plays B entry 0 play 0 run 446 at 0 1.2 row 1, insertion, 08:29:59 - 08:30:00");
    row("its end action does not outlive it", kDay,
        "2024.03.04 09:40:00 now 1.1 08:00:00-09:45:00 B freeze", "2024.03.04 09:50:00",
        "black 1.1 row 0, plan ended, 09:45:00 - 10:00:00");
    row("the plan is back where it would be", kDay,
        "2024.03.04 08:00:15 now 1.1 08:00:00-08:00:18 B freeze", "2024.03.04 08:00:18",
        "plays A entry 0 play 0 run 1 at 8000 1.1 row 0, plan, 08:00:18 - 08:00:20 - 09:00:00");
    row("delayed, waits", kDay, "2024.03.04 08:00:15 delayed 1.1 08:00:00-09:00:00 B A freeze",
        "2024.03.04 08:00:17",
        "plays A entry 0 play 0 run 1 at 7000 1.1 row 0, plan, 08:00:10 - 08:00:20");
    row("delayed, begins with the next play", kDay,
        "2024.03.04 08:00:15 delayed 1.1 08:00:00-09:00:00 B A freeze", "2024.03.04 08:00:20",
        "plays B entry 0 play 0 run 0 at 0 1.1 row 0, insertion, 08:00:20 - 08:00:24 - 09:00:00");
    row("delayed into black begins at once", kDay,
        "2024.03.04 09:30:00 delayed 1.2 10:00:00-11:00:00 B A freeze", "2024.03.04 09:30:01",
        "plays B entry 0 play 0 run 0 at 1000 1.2 row 1, insertion, 09:30:00 - 09:30:04 - "
        "11:00:00");
    row("delayed into a frozen picture begins at once", kDay,
        "2024.03.04 12:00:00 delayed 1.2 10:00:00-13:00:00 B A freeze", "2024.03.04 12:00:01",
        "plays B entry 0 play 0 run 0 at 1000 1.2 row 1, insertion, 12:00:00 - 12:00:04 - "
        "13:00:00");
    row("one that ends as it begins leaves no border", kDay,
        "2024.03.04 08:00:15 now 1.1 08:00:00 x1 A N freeze", "2024.03.04 08:00:13",
        "plays A entry 0 play 0 run 1 at 3000 1.1 row 0, plan, 08:00:10 - 08:00:20 - 09:00:00");
    row("by runs, past its end", kDay, "2024.03.04 08:00:15 now 1.1 08:00:00 x1 A freeze",
        "2024.03.04 08:00:16",
        "plays A entry 0 play 0 run 1 at 6000 1.1 row 0, plan, 08:00:10 - 08:00:20 - 09:00:00");
    row("by runs, frozen to the end", kDay, "2024.03.04 08:00:15 now 1.1 08:00:00 x2 A N*8 freeze",
        "2024.03.04 08:00:40",
        "frozen A entry 0 play 0 run 1 at 10000 1.1 row 0, insertion ran out, 08:00:35 - 08:01:08");
    row("by runs, black to the end", kDay, "2024.03.04 08:00:15 now 1.1 08:00:00 x2 A N*8",
        "2024.03.04 08:00:40", "black 1.1 row 0, insertion ran out, 08:00:35 - 08:01:08");
    row("nothing to play is black", kDay,
        "2024.03.04 08:00:15 now 1.1 08:00:00-09:00:00 !A N freeze", "2024.03.04 08:30:00",
        "black 1.1 row 0, insertion has nothing, 08:00:15 - 09:00:00");
    row("span already past", kDay, "2024.03.04 09:30:00 now 1.1 08:00:00-09:00:00 A freeze",
        "2024.03.04 09:30:00", "black 1.1 row 0, plan ended, 09:00:00 - 10:00:00");
    row("one program outside the span", kDay,
        "2024.03.04 09:30:00 now 1.1 08:00:00-09:00:00 A freeze once", "2024.03.04 09:30:03",
        "plays A entry 0 play 0 run 0 at 3000 1.1 row 0, insertion, 09:30:00 - 09:30:10");
    row("and over", kDay, "2024.03.04 09:30:00 now 1.1 08:00:00-09:00:00 A freeze once",
        "2024.03.04 09:30:10", "black 1.1 row 0, plan ended, 09:30:10 - 10:00:00");
    row("plays once, whatever the runs", kDay,
        "2024.03.04 09:30:00 now 1.1 08:00:00 x9 A freeze once", "2024.03.04 09:30:03",
        "plays A entry 0 play 0 run 0 at 3000 1.1 row 0, insertion, 09:30:00 - 09:30:10");
    row("without a length until a plan takes the screen", kDay,
        "2024.03.04 09:30:00 now 1.1 08:00:00-09:00:00 L freeze once", "2024.03.04 09:59:00",
        "plays L entry 0 play 0 run 0 at 1740000 1.1 row 0, insertion, 09:30:00 - 10:00:00");
    row("the plan that has the screen does not take it", kDay,
        "2024.03.04 10:30:00 now 1.1 08:00:00-09:00:00 L freeze once", "2024.03.04 22:00:00",
        "plays L entry 0 play 0 run 0 at 41400000 1.1 row 0, insertion, 10:30:00 - never");
    row("without a length, no plan to come", kDay,
        "2024.03.05 12:00:00 now 1.1 08:00:00-09:00:00 L freeze once", "2024.03.08 22:00:00",
        "plays L entry 0 play 0 run 0 at 295200000 1.1 row 0, insertion, 03.05 12:00:00 - never");
    row("what never ends is not waited for", kDay,
        "2024.03.05 12:00:00 now 1.1 08:00:00-09:00:00 L freeze once; 2024.03.05 13:00:00 delayed "
        "1.1 08:00:00-14:00:00 A",
        "2024.03.05 13:00:01",
        "plays A entry 0 play 0 run 0 at 1000 1.1 row 0, insertion, 13:00:00 - 13:00:10 - "
        "14:00:00");
    row("nothing to play outside the span", kDay,
        "2024.03.04 09:30:00 now 1.1 08:00:00-09:00:00 N freeze once", "2024.03.04 09:30:00",
        "black 1.1 row 0, plan ended, 09:00:00 - 10:00:00");
    row("a newer one at once takes over", kDay,
        "2024.03.04 08:00:15 now 1.1 08:00:00-09:00:00 B; 2024.03.04 08:00:17 now 1.1 "
        "08:00:00-09:00:00 C",
        "2024.03.04 08:00:18",
        "plays C entry 0 play 0 run 0 at 1000 1.1 row 0, insertion, 08:00:17 - 08:00:19.501 - "
        "09:00:00");
    row("and leaves the former its time", kDay,
        "2024.03.04 08:00:15 now 1.1 08:00:00-09:00:00 B; 2024.03.04 08:00:17 now 1.1 "
        "08:00:00-09:00:00 C",
        "2024.03.04 08:00:16",
        "plays B entry 0 play 0 run 0 at 1000 1.1 row 0, insertion, 08:00:15 - 08:00:17");
    row("a newer delayed one takes the place of the waiting", kDay,
        "2024.03.04 08:00:15 delayed 1.1 08:00:00-09:00:00 B; 2024.03.04 08:00:17 delayed 1.1 "
        "08:00:00-09:00:00 C",
        "2024.03.04 08:00:20",
        "plays C entry 0 play 0 run 0 at 0 1.1 row 0, insertion, 08:00:20 - 08:00:22.501 - "
        "09:00:00");
    row("delayed behind a play of an insertion", kDay,
        "2024.03.04 08:00:15 now 1.1 08:00:00-09:00:00 B; 2024.03.04 08:00:17 delayed 1.1 "
        "08:00:00-09:00:00 C",
        "2024.03.04 08:00:19",
        "plays C entry 0 play 0 run 0 at 0 1.1 row 0, insertion, 08:00:19 - 08:00:21.501 - "
        "09:00:00");
    row("goes on over the change of the clock", "1 2024.10.27-2024.10.27 / 00:00:00-05:00:00 A",
        "2024.10.27 02:59:55 2 now 1.1 00:00:00-05:00:00 A", "2024.10.27 02:00:02 1",
        "plays A entry 0 play 0 run 0 at 7000 1.1 row 0, insertion, 02:59:55+2 - 02:00:05 - "
        "05:00:00");
    row("ends at the first of the doubled times", "1 2024.10.27-2024.10.27 / 00:00:00-05:00:00 A",
        "2024.10.27 01:30:00 now 1.1 00:00:00-02:30:00 H", "2024.10.27 02:10:00 2",
        "plays H entry 0 play 0 run 0 at 2400000 1.1 row 0, insertion, 01:30:00 - 02:30:00");
    row("begun in the second ends in the second", "1 2024.10.27-2024.10.27 / 00:00:00-05:00:00 A",
        "2024.10.27 02:10:00 1 now 1.1 00:00:00-02:30:00 H", "2024.10.27 02:20:00 1",
        "plays H entry 0 play 0 run 0 at 600000 1.1 row 0, insertion, 02:10:00 - 02:30:00");
    row("ends where the clock leaps over its end", "1 2024.03.31-2024.03.31 / 00:00:00-05:00:00 A",
        "2024.03.31 01:30:00 now 1.1 00:00:00-02:30:00 H", "2024.03.31 01:50:00",
        "plays H entry 0 play 0 run 0 at 1200000 1.1 row 0, insertion, 01:30:00 - 03:00:00+2");
}

void tst_ScreenTimeline::showsWhatIsCutIn()
{
    QFETCH(QString, schedule);
    QFETCH(QString, requests);
    QFETCH(QString, moment);
    QFETCH(QString, line);

    const ScreenTimeline timeline(scheduleFromText(schedule), lettersCatalogue(), berlin());
    const Instant asked = momentFromText(moment, berlin());
    const ScreenInsertions insertions = afterRequests(timeline, requests);
    QCOMPARE(lineOf(timeline.at(asked, insertions), timeline, asked), line);
}

void tst_ScreenTimeline::keepsTheOneOnScreenAndTheOneThatWaits()
{
    const ScreenTimeline timeline(scheduleFromText(QString::fromLatin1(kDay)), lettersCatalogue(),
                                  berlin());
    ScreenInsertions insertions = afterRequests(
        timeline, QStringLiteral("2024.03.04 08:00:15 now 1.1 08:00:00-09:00:00 B; "
                                 "2024.03.04 08:00:16 delayed 1.1 08:00:00-09:00:00 A; "
                                 "2024.03.04 08:00:17 delayed 1.1 08:00:00-09:00:00 C"));
    QCOMPARE(insertions.size(), std::size_t{2});
    QCOMPARE(insertions.front().plan.programs.front().progIndex, programOf(QLatin1Char('B')));
    QCOMPARE(insertions.front().ends, insertions.back().begins);
    QCOMPARE(insertions.back().plan.programs.front().progIndex, programOf(QLatin1Char('C')));
    QVERIFY(insertions.back().isWaitingAt(insertions.back().requested));

    insertions = afterRequest(timeline, insertions,
                              QStringLiteral("2024.03.04 08:30:00 now 1.1 08:00:00-08:10:00 A"));
    QCOMPARE(insertions.size(), std::size_t{2});
    QCOMPARE(insertions.front().ends, insertions.back().begins);
    QCOMPARE(insertions.back().begins, insertions.back().ends);
}

void tst_ScreenTimeline::aDateThatIsNoneIsNever()
{
    const ScreenTimeline timeline({}, lettersCatalogue(), berlin());
    QCOMPARE(timeline.instant(QDate(), QTime(8, 0)), kNever);
    QCOMPARE(timeline.instant(QDate(2024, 3, 4), QTime()), kNever);
    QCOMPARE(timeline.instant(QDate(2024, 3, 4), QTime(8, 0)),
             momentFromText(QStringLiteral("2024.03.04 08:00:00"), berlin()));
}

// Thousands of years, twice as many changes of the clock and ten thousand tasks without a plan lie
// between two plans: all that a question may look at are the places at their two ends.
void tst_ScreenTimeline::doesNotWalkOverGaps()
{
    std::map<int, PlayTask> tasks =
        scheduleFromText(QStringLiteral("1 1999.12.31-1999.12.31 / 08:00:00-09:00:00 A freeze | "
                                        "2 9998.01.01-9999.12.31 / 08:00:00-09:00:00 B"));
    const PlayTask idle = scheduleFromText(QStringLiteral("3 2000.01.01-9000.01.01 / "
                                                          "08:00:00-09:00:00 A on=8"))
                              .at(3);
    for (int id = 3; id < 10'000; ++id) {
        tasks[id] = idle;
        tasks[id].id = id;
    }
    const PlainScreen screen(tasks, lettersCatalogue(), berlin());
    const Instant asked = momentFromText(QStringLiteral("5000.06.01 00:00:00"), berlin());
    const ScreenState state = screen.at(asked).state;
    QCOMPARE(momentText(state.since, berlin()), QStringLiteral("1999.12.31 09:00:00.000 1"));
    QCOMPARE(momentText(state.until, berlin()), QStringLiteral("9998.01.01 08:00:00.000 1"));
    QVERIFY2(screen.offsets().knownPeriods() <= 6, "changes of the clock were walked");
    QVERIFY2(screen.calendar().knownDays() <= 2, "days of other tasks were worked out");
}

TREL_TEST(tst_ScreenTimeline, trel::tests::NoApplication)
#include "tst_ScreenTimeline.moc"
