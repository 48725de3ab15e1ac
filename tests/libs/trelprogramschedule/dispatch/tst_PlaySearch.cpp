#include "ScheduleWriting.h"
#include "StateWriting.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/PlainScreen.h"
#include "trelprogramschedule/dispatch/PlaySearch.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QtTest>

#include <random>

using namespace trel::mediadispatch;

/// The next play of a program, or of another one.
class tst_PlaySearch : public QObject
{
    Q_OBJECT

private slots:
    void playsShorterThanAMillisecond();
    void playsThatMeetNoMillisecond();
    void runsPastThirtyTwoBits();
    void aChangeOfTheClockHidesNoPlay();
    void plansAreFoundByTheirIds();
    void looksAtOneWeekOfATask();
    void looksAtOneWeekOfEachStretch();
    void passesOverChangesOfTheClock();
    void anInsertionPlaysFirst();
    void tellsWhenAListIsOver();
    void tellsWhenAListIsOverInNightsOfChange();
    void aListThatIsOverInNightsOfChange();
    void asAWalkFindsIt_data();
    void asAWalkFindsIt();
};

namespace {

constexpr Instant kHour = 3'600'000;

using Schedule = std::map<int, PlayTask>;
using Found = std::optional<ScreenState>;

Schedule schedule(const char* text)
{
    return scheduleFromText(QString::fromLatin1(text));
}

SoughtPlay only(char letter)
{
    return {programOf(QLatin1Char(letter)), false};
}

SoughtPlay notThis(char letter)
{
    return {programOf(QLatin1Char(letter)), true};
}

Instant moment(const char* text, const QTimeZone& zone = QTimeZone::utc())
{
    return momentFromText(QString::fromLatin1(text), zone);
}

QString lineOf(const Found& found, const QTimeZone& zone)
{
    return found ? QStringLiteral("%1 to %2 %3 entry %4 play %5 run %6 at %7")
                       .arg(momentText(found->since, zone), momentText(found->until, zone),
                            letterOf(found->progIndex))
                       .arg(found->entry)
                       .arg(found->play)
                       .arg(found->run)
                       .arg(found->position)
                 : QStringLiteral("none");
}

/// Play by play, from the first to the one that is sought.
Found walk(const ScreenTimeline& timeline, Instant from, Instant to,
           const ScreenInsertions& insertions, const SoughtPlay& sought)
{
    Found found;
    timeline.visitPlays(from, to, insertions, [&](const ScreenState& state) {
        if (state.isPlaying() && sought.isOf(state.progIndex)) {
            found = state;
        }
        return !found;
    });
    return found;
}

/// Sixty plans a day that follow each other, all of one program.
PlayTask sixtyPlans(const char* dates)
{
    PlayTask task = scheduleFromText(QStringLiteral("1 ") + QLatin1String(dates)).at(1);
    for (int i = 0; i < 60; ++i) {
        const QTime start(i / 3, i % 3 * 20);
        task.plans.push_back(planFromText(QStringLiteral("%1-%2 A").arg(
            start.toString(QStringLiteral("hh:mm:ss")),
            start.addSecs(20 * 60).toString(QStringLiteral("hh:mm:ss")))));
        task.plans.back().id = i + 1;
    }
    return task;
}

PlanCalendar calendarOf(const Schedule& tasks)
{
    return PlanCalendar(tasks, lettersCatalogue());
}

} // namespace

// C lasts for 2,500.5 ms and E for 0.4 ms. Of the first two runs of E none meets a millisecond;
// only the third begins on one.
void tst_PlaySearch::playsShorterThanAMillisecond()
{
    const Schedule tasks = schedule("1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 C E");
    const ScreenTimeline timeline(tasks, lettersCatalogue(), QTimeZone::utc());
    const Instant from = moment("2024.03.04 08:00:01");
    const Found found = timeline.nextPlay(from, kNever, {}, notThis('C'));
    QVERIFY(found);
    QCOMPARE(lineOf(found, QTimeZone::utc()),
             lineOf(walk(timeline, from, kNever, {}, notThis('C')), QTimeZone::utc()));
    QCOMPARE(letterOf(found->progIndex), QStringLiteral("E"));
    QVERIFY2(found->run > 1, "the case is too easy");
    QVERIFY(!timeline.nextPlay(from, found->since, {}, notThis('C')));
}

// A run of D and E together takes 1,400.4 us; one of a whole number of milliseconds repeats at
// once.
void tst_PlaySearch::playsThatMeetNoMillisecond()
{
    std::map<int, ProgramIten> catalogue = lettersCatalogue();
    catalogue[programOf(QLatin1Char('D'))].durationMs = 1.6;
    const Schedule tasks = schedule("1 2024.03.04-9999.12.31 / 00:00:00-23:59:59 D E");
    const ScreenTimeline timeline(tasks, catalogue, QTimeZone::utc());
    QVERIFY(!timeline.nextPlay(moment("2024.03.04 08:00:00"), kNever, {}, only('E')));
    QVERIFY(timeline.nextPlay(moment("2024.03.04 08:00:00"), kNever, {}, only('D')));
}

void tst_PlaySearch::runsPastThirtyTwoBits()
{
    std::map<int, ProgramIten> catalogue = lettersCatalogue();
    catalogue[programOf(QLatin1Char('E'))].durationMs = 0.001;
    const Schedule tasks = schedule("1 2024.03.04-2024.03.04 / 00:00:00-23:59:59 E / "
                                    "23:00:00-23:59:59 A");
    const ScreenTimeline timeline(tasks, catalogue, QTimeZone::utc());
    const ScreenState state = timeline.at(moment("2024.03.04 22:00:00"));
    QCOMPARE(state.run, qint64{22} * 3'600'000'000);
    QVERIFY(!timeline.nextPlay(moment("2024.03.04 22:00:00"), kNever, {}, notThis('E')));
}

// The clock goes from 02:00 to 03:00, and from the first run of the list into its second, past B.
void tst_PlaySearch::aChangeOfTheClockHidesNoPlay()
{
    const QTimeZone berlin("Europe/Berlin");
    const Schedule tasks = schedule("1 2024.03.31-2024.03.31 / 01:00:00-06:00:00 H B*450 H*2 | "
                                    "2 2024.10.27-2024.10.27 / 00:00:00-05:00:00 H*3 B");
    const ScreenTimeline timeline(tasks, lettersCatalogue(), berlin);
    const auto find = [&](const char* from, const char* to) {
        const Found found =
            timeline.nextPlay(moment(from, berlin), moment(to, berlin), {}, notThis('H'));
        return found ? momentText(found->since, berlin) : QStringLiteral("none");
    };
    QCOMPARE(find("2024.03.31 01:30:00", "2024.03.31 04:30:00"), QStringLiteral("none"));
    QCOMPARE(find("2024.03.31 01:30:00", "2024.04.01 04:30:00"),
             QStringLiteral("2024.03.31 05:30:00.000 2"));
    QCOMPARE(find("2024.10.27 00:30:00", "2024.10.28 00:00:00"),
             QStringLiteral("2024.10.27 03:00:00.000 1"));
}

void tst_PlaySearch::plansAreFoundByTheirIds()
{
    const PlanCalendar calendar = calendarOf(
        schedule("2 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A id=7 / 09:00:00-10:00:00 A id=5 | "
                 "4 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A id=5"));
    QCOMPARE(calendar.rowOf(2, 7), 0);
    QCOMPARE(calendar.rowOf(2, 5), 1);
    QCOMPARE(calendar.rowOf(4, 5), 0);
    QCOMPARE(calendar.rowOf(4, 7), -1);
    for (const int task : {1, 3, 5}) {
        QCOMPARE(calendar.rowOf(task, 5), -1);
    }
}

void tst_PlaySearch::looksAtOneWeekOfATask()
{
    const auto lookedAt = [](const char* dates) {
        const PlanCalendar calendar = calendarOf({{1, sixtyPlans(dates)}});
        PlaySearch search(calendar, notThis('A'));
        const auto found = search.firstFrom(timeOn(dayNumber(QDate(2024, 1, 3)), 8 * 3600 + 1));
        return found ? std::size_t{0} : search.lookedAt();
    };
    // From the rest of the third of January on.
    QCOMPARE(lookedAt("2024.01.01-2024.01.04"), std::size_t{60 - 24 + 60});
    QCOMPARE(lookedAt("2024.01.01-2024.01.10"), std::size_t{60 - 24 + 7 * 60});
    QCOMPARE(lookedAt("2024.01.01-9999.12.31"), std::size_t{60 - 24 + 7 * 60});
}

// A task of a lower id breaks the days of another into two stretches; the last day has something.
void tst_PlaySearch::looksAtOneWeekOfEachStretch()
{
    Schedule tasks = schedule("1 5000.01.01-5000.12.31 / 08:00:00-09:00:00 A on=1 | "
                              "3 9999.12.31-9999.12.31 / 08:00:00-09:00:00 A B");
    tasks[2] = sixtyPlans("2024.01.01-9999.12.30");
    const PlanCalendar calendar = calendarOf(tasks);
    PlaySearch search(calendar, only('B'));
    const LocalTime last = timeOn(dayNumber(QDate(9999, 12, 31)), 8 * 3600 + 10);
    QCOMPARE(search.firstFrom(timeOn(dayNumber(QDate(2024, 1, 1)), 0)), std::optional(last));
    QCOMPARE(search.lookedAt(), std::size_t{7 * 60 + 1 + 7 * 60 + 1});
}

// The one play lies in an hour that is left out; then nothing comes for thousands of years.
void tst_PlaySearch::passesOverChangesOfTheClock()
{
    Schedule tasks = schedule("1 2024.03.31-2024.03.31 / 02:00:00-03:00:00 B | "
                              "3 9999.12.31-9999.12.31 / 08:00:00-09:00:00 B");
    tasks[2] = sixtyPlans("2024.01.01-9999.12.30");
    const QTimeZone berlin("Europe/Berlin");
    const PlainScreen screen(tasks, lettersCatalogue(), berlin);
    QCOMPARE(screen.nextPlay(moment("2024.01.03 08:00:00", berlin), only('B')),
             moment("9999.12.31 08:00:00", berlin));
    QVERIFY2(screen.offsets().knownPeriods() <= 6, "changes of the clock were walked");
    QCOMPARE(screen.nextPlay(moment("2024.01.03 08:00:00", berlin), only('C')), kNever);
}

void tst_PlaySearch::anInsertionPlaysFirst()
{
    const Schedule tasks = schedule("1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A");
    const ScreenTimeline timeline(tasks, lettersCatalogue(), QTimeZone::utc());
    ScreenInsertion insertion;
    insertion.taskId = 1;
    insertion.planId = 1;
    insertion.plan = planFromText(QStringLiteral("08:00:00-08:30:00 A B"));
    const ScreenInsertions insertions =
        timeline.withInsertion({}, insertion, moment("2024.03.04 08:10:00"), false);
    const Found found =
        timeline.nextPlay(moment("2024.03.04 08:00:00"), kNever, insertions, notThis('A'));
    QVERIFY(found);
    QCOMPARE(momentText(found->since, QTimeZone::utc()),
             QStringLiteral("2024.03.04 08:10:10.000 0"));
    QVERIFY(found->isInserted());
    QVERIFY(!timeline.nextPlay(moment("2024.03.04 08:30:00"), kNever, insertions, notThis('A')));
}

void tst_PlaySearch::tellsWhenAListIsOver()
{
    const Schedule tasks = schedule("1 2024.03.04-2024.03.04 / 08:00:00-09:00:00 A mode=7 times=2 "
                                    "freeze / 10:00:00 x2 A / 11:00:00-12:00:00 A");
    const ScreenTimeline timeline(tasks, lettersCatalogue(), QTimeZone::utc());
    const auto after = [&](const char* asked, const ScreenInsertions& insertions = {}) {
        const Found found = timeline.afterList(timeline.at(moment(asked), insertions), insertions);
        return found ? momentText(found->since, QTimeZone::utc()) +
                           QLatin1String(found->picture == ScreenPicture::Frozen ? " frozen"
                                                                                 : " black")
                     : QStringLiteral("none");
    };
    QCOMPARE(after("2024.03.04 08:00:05"), QStringLiteral("2024.03.04 08:00:20.000 0 frozen"));
    QCOMPARE(after("2024.03.04 08:00:25"), QStringLiteral("none"));
    QCOMPARE(after("2024.03.04 10:00:05"), QStringLiteral("none"));
    QCOMPARE(after("2024.03.04 11:00:05"), QStringLiteral("none"));
    ScreenInsertion insertion;
    insertion.taskId = 1;
    insertion.planId = 3;
    insertion.plan = planFromText(QStringLiteral("11:00:00-12:00:00 A B mode=7 times=1"));
    const ScreenInsertions insertions =
        timeline.withInsertion({}, insertion, moment("2024.03.04 11:10:00"), false);
    QCOMPARE(after("2024.03.04 11:10:00", insertions),
             QStringLiteral("2024.03.04 11:10:14.000 0 black"));
    QCOMPARE(after("2024.03.04 11:09:00", insertions), QStringLiteral("none"));
    QVERIFY(!timeline.nextPlay(moment("2024.03.04 11:10:00"), moment("2024.03.04 11:30:00"),
                               insertions, only('C')));
    // Nothing comes behind the last plan of all, and so nothing ends this.
    insertion.plan = planFromText(QStringLiteral("11:00:00-12:00:00 I"));
    insertion.plan.serviceFlagB = true;
    QCOMPARE(after("2024.03.04 13:00:00",
                   timeline.withInsertion({}, insertion, moment("2024.03.04 13:00:00"), false)),
             QStringLiteral("none"));
}

// A list of ten minutes that the clock is put back at the end of is over in its second pass alone;
// one of twenty that the clock leaps past is over where the gap ends.
void tst_PlaySearch::tellsWhenAListIsOverInNightsOfChange()
{
    const QTimeZone berlin("Europe/Berlin");
    const Schedule tasks = schedule("1 2024.03.31-2024.03.31 / 01:50:00-03:10:00 A*120 mode=7 "
                                    "times=1 | 2 2024.10.27-2024.10.27 / 02:50:00-03:10:00 A*60 "
                                    "mode=7 times=1 | 3 2025.10.26-2025.10.26 / 01:50:00-03:10:00 "
                                    "A*420 mode=7 times=1");
    const ScreenTimeline timeline(tasks, lettersCatalogue(), berlin);
    const auto after = [&](const char* asked) {
        const Found found = timeline.afterList(timeline.at(moment(asked, berlin)), {});
        return found ? momentText(found->since, berlin) : QStringLiteral("none");
    };
    QCOMPARE(after("2024.03.31 01:55:00"), QStringLiteral("2024.03.31 03:00:00.000 2"));
    QCOMPARE(after("2024.10.27 02:55:00 2"), QStringLiteral("none"));
    QCOMPARE(after("2024.10.27 02:55:00 1"), QStringLiteral("2024.10.27 03:00:00.000 1"));
    // As the clock is put back the list is over, and so it is played on from where it was at two.
    QCOMPARE(after("2025.10.26 01:55:00 2"), QStringLiteral("2025.10.26 03:00:00.000 1"));
}

// What was over before the clock leapt stays so; what is put back into the list plays once more.
void tst_PlaySearch::aListThatIsOverInNightsOfChange()
{
    const QTimeZone berlin("Europe/Berlin");
    const Schedule tasks = schedule("1 2024.03.31-2024.03.31 / 01:59:57-04:00:00 C D*498 mode=7 "
                                    "times=1 freeze | 2 2026.10.25-2026.10.25 / 01:50:00-03:10:00 "
                                    "A*390 mode=7 times=1 freeze");
    const ScreenTimeline timeline(tasks, lettersCatalogue(), berlin);
    const auto at = [&](const char* asked) {
        const ScreenState state = timeline.at(moment(asked, berlin));
        return QLatin1String(state.picture == ScreenPicture::Frozen ? "frozen from " : "from ") +
               momentText(state.since, berlin) + QStringLiteral(" to ") +
               momentText(state.until, berlin);
    };
    QCOMPARE(at("2024.03.31 03:10:00"),
             QStringLiteral("frozen from 2024.03.31 01:59:59.999 1 to 2024.03.31 04:00:00.000 2"));
    QCOMPARE(at("2026.10.25 02:57:00 2"),
             QStringLiteral("frozen from 2026.10.25 02:55:00.000 2 to 2026.10.25 02:00:00.000 1"));
    QCOMPARE(at("2026.10.25 02:00:00 1"),
             QStringLiteral("from 2026.10.25 02:00:00.000 1 to 2026.10.25 02:00:10.000 1"));
    QCOMPARE(at("2026.10.25 02:57:00 1"),
             QStringLiteral("frozen from 2026.10.25 02:55:00.000 1 to 2026.10.25 03:10:00.000 1"));
}

void tst_PlaySearch::asAWalkFindsIt_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("hour");
    QTest::newRow("days of even run") << QByteArray("UTC") << QDate(2024, 3, 4) << 8;
    QTest::newRow("an hour is left out") << QByteArray("Europe/Berlin") << QDate(2024, 3, 30) << 1;
    QTest::newRow("an hour comes twice") << QByteArray("Europe/Berlin") << QDate(2024, 10, 26) << 1;
    QTest::newRow("the evening before comes twice")
        << QByteArray("America/St_Johns") << QDate(2010, 11, 5) << 22;
}

// Short spans of short plays on three days, so that a literal walk is to be had.
void tst_PlaySearch::asAWalkFindsIt()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    QFETCH(int, hour);
    const QTimeZone ofCase(zone);
    std::mt19937 engine(7);
    const auto below = [&engine](int limit) {
        return static_cast<int>(engine() % static_cast<unsigned>(limit));
    };
    int finds = 0;
    for (int round = 0; round < 400; ++round) {
        Schedule tasks;
        for (int id = 1; id <= 2; ++id) {
            const QDate first = day.addDays(below(3));
            QString text = QStringLiteral("%1 %2-%3")
                               .arg(id)
                               .arg(first.toString(kDateFormat),
                                    first.addDays(below(3)).toString(kDateFormat));
            for (int plan = below(4); plan >= 0; --plan) {
                const QTime start(hour, 0);
                const int begin = below(7200 - 4);
                text += QStringLiteral(" / %1-%2 %3 ")
                            .arg(start.addSecs(begin).toString(kTimeFormat),
                                 start.addSecs(begin + 1 + below(3)).toString(kTimeFormat),
                                 QLatin1String(below(3) == 0 ? "mode=2 times=300" : ""));
                for (int entry = below(4); entry >= 0; --entry) {
                    text += QStringLiteral("%1*%2 ")
                                .arg(QLatin1Char("CDEEDIN"[below(7)]))
                                .arg(1 + below(4));
                }
            }
            tasks.merge(scheduleFromText(text));
        }
        const ScreenTimeline timeline(tasks, lettersCatalogue(), ofCase);
        const Instant begin = timeline.instant(day, QTime(hour, 0)) - kHour;
        const Instant to = begin + 80 * kHour;
        for (int question = 0; question < 4; ++question) {
            const Instant from = begin + qint64{below(80 * 3600)} * 1000 + below(1000);
            const SoughtPlay sought = {programOf(QLatin1Char("CDEIN"[below(5)])), below(2) == 0};
            const Found walked = walk(timeline, from, to, {}, sought);
            QVERIFY2(
                lineOf(timeline.nextPlay(from, to, {}, sought), ofCase) == lineOf(walked, ofCase),
                qPrintable(textOf(tasks) + QLatin1Char('\n') + momentText(from, ofCase) +
                           QLatin1Char(' ') + letterOf(sought.progIndex) +
                           (sought.isOther ? QStringLiteral(" or other: ") : QStringLiteral(": ")) +
                           lineOf(walked, ofCase) + QStringLiteral(" and not ") +
                           lineOf(timeline.nextPlay(from, to, {}, sought), ofCase)));
            finds += walked ? 1 : 0;
        }
    }
    QVERIFY2(finds > 200, "hardly anything was found");
}

TREL_TEST(tst_PlaySearch, trel::tests::NoApplication)
#include "tst_PlaySearch.moc"
