#include "trelprogramschedule/dispatch/ClockChanges.h"

#include "service/DateText.h"
#include "service/TimeText.h"
#include "support/PlanRecords.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;

QTimeZone zone(const QByteArray& name)
{
    return QTimeZone(name);
}

QDate day(const std::string& text)
{
    return dateFromText(text);
}

QString timeText(int second)
{
    return second == 86400
               ? QStringLiteral("24:00:00")
               : QString::fromStdString(timeToText(QTime::fromMSecsSinceStartOfDay(second * 1000)));
}

/// Such as "2027.03.28 02:00:00-03:00:00 left out".
QString line(const ClockChange& change)
{
    return QStringLiteral("%1 %2-%3 %4")
        .arg(QString::fromStdString(dateToText(change.date)), timeText(change.begin),
             timeText(change.end),
             change.kind == ClockChangeKind::LeftOut ? QStringLiteral("left out")
                                                     : QStringLiteral("twice"));
}

QString effectText(ClockChangeEffect effect)
{
    switch (effect) {
    case ClockChangeEffect::Lost:
        return QStringLiteral("lost");
    case ClockChangeEffect::BeginsLate:
        return QStringLiteral("begins late");
    case ClockChangeEffect::EndsEarly:
        return QStringLiteral("ends early");
    case ClockChangeEffect::Skips:
        return QStringLiteral("skips");
    case ClockChangeEffect::PlaysTwice:
        return QStringLiteral("plays twice");
    case ClockChangeEffect::BeginsTwice:
        return QStringLiteral("begins twice");
    case ClockChangeEffect::EndsTwice:
        return QStringLiteral("ends twice");
    case ClockChangeEffect::RepeatsAPart:
        return QStringLiteral("repeats");
    }
    return {};
}

/// Such as "2027.03.28 02:00:00-03:00:00 left out, task 1: row 0 begins late".
QString line(const TaskClockChange& change)
{
    QStringList plans;
    for (const TouchedPlan& plan : change.plans) {
        plans.append(QStringLiteral("row %1 %2").arg(plan.row).arg(effectText(plan.effect)));
    }
    return QStringLiteral("%1, task %2: %3")
        .arg(line(change.change))
        .arg(change.taskId)
        .arg(plans.join(QLatin1String(", ")));
}

template <typename Changes>
QStringList lines(const Changes& changes)
{
    QStringList result;
    for (const auto& change : changes) {
        result.append(line(change));
    }
    return result;
}

QStringList next(const Tasks& tasks, const char* from, int count,
                 const QByteArray& name = QByteArrayLiteral("Europe/Berlin"))
{
    return lines(nextClockChanges(tasks, {}, zone(name), day(from), count));
}

PlayTask task(int id, const char* first, const char* last, std::vector<PlayPlan> plans = {})
{
    PlayTask result = makeTask(id, first, last);
    result.plans = std::move(plans);
    return result;
}

Tasks year2027(std::vector<PlayPlan> plans)
{
    return {{1, task(1, "2027.01.01", "2027.12.31", std::move(plans))}};
}

} // namespace

Q_DECLARE_METATYPE(std::string)

class tst_ClockChanges : public QObject
{
    Q_OBJECT

private slots:
    void changesOfAZone_data();
    void changesOfAZone();
    void daysWithoutAChangeHaveNone();
    void everyYearHasItsChanges();
    void whatAChangeDoesToAPlan_data();
    void whatAChangeDoesToAPlan();
    void aPlanPlaysOnItsDaysOnly_data();
    void aPlanPlaysOnItsDaysOnly();
    void theEndOfRunsIsTheOneInForce();
    void spansAndIdsOfTouchedPlansAreTold();
    void onlyDaysOfATaskInEffectCount();
    void theLowestIdIsInEffect();
    void datesThatDoNotParseHoldNoDay();
    void theDayItselfCounts();
    void theCountIsABound();
    void whatIsOverOrEmptyGivesNothing();
    void thousandsOfYearsCostNothing();
};

void tst_ClockChanges::changesOfAZone_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<std::string>("year");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const char* year,
                        std::initializer_list<const char*> changes) {
        QStringList expected;
        for (const char* change : changes) {
            expected.append(QLatin1String(change));
        }
        QTest::addRow("%s %s", name, year) << QByteArray(name) << std::string(year) << expected;
    };

    row("Europe/Berlin", "2027",
        {"2027.03.28 02:00:00-03:00:00 left out", "2027.10.31 02:00:00-03:00:00 twice"});
    row("Europe/Berlin", "7999",
        {"7999.03.28 02:00:00-03:00:00 left out", "7999.10.31 02:00:00-03:00:00 twice"});
    row("America/New_York", "2026",
        {"2026.03.08 02:00:00-03:00:00 left out", "2026.11.01 01:00:00-02:00:00 twice"});
    // Half an hour.
    row("Australia/Lord_Howe", "2026",
        {"2026.04.05 01:30:00-02:00:00 twice", "2026.10.04 02:00:00-02:30:00 left out"});
    // Two hours.
    row("Antarctica/Troll", "2026",
        {"2026.03.29 01:00:00-03:00:00 left out", "2026.10.25 01:00:00-03:00:00 twice"});
    // At midnight: what comes twice lies on the day before.
    row("America/Havana", "2026",
        {"2026.03.08 00:00:00-01:00:00 left out", "2026.11.01 00:00:00-01:00:00 twice"});
    row("Asia/Beirut", "2026",
        {"2026.03.29 00:00:00-01:00:00 left out", "2026.10.24 23:00:00-24:00:00 twice"});
    // A whole day that never was.
    row("Pacific/Apia", "2011",
        {"2011.04.02 03:00:00-04:00:00 twice", "2011.09.24 03:00:00-04:00:00 left out",
         "2011.12.30 00:00:00-24:00:00 left out"});
    // Over midnight.
    row("America/St_Johns", "2010",
        {"2010.03.14 00:01:00-01:01:00 left out", "2010.11.06 23:01:00-24:00:00 twice",
         "2010.11.07 00:00:00-00:01:00 twice"});
    // For good.
    row("America/Caracas", "2007", {"2007.12.09 02:30:00-03:00:00 twice"});
    row("Asia/Pyongyang", "2018", {"2018.05.04 23:30:00-24:00:00 left out"});
    row("Asia/Kolkata", "2026", {});
    row("Asia/Tokyo", "2026", {});
    row("UTC", "2026", {});
}

void tst_ClockChanges::changesOfAZone()
{
    QFETCH(const QByteArray, name);
    QFETCH(const std::string, year);
    QFETCH(const QStringList, expected);
    QVERIFY(zone(name).isValid());

    QCOMPARE(lines(clockChanges(day(year + ".01.01"), day(year + ".12.31"), zone(name))), expected);
}

void tst_ClockChanges::daysWithoutAChangeHaveNone()
{
    const QTimeZone berlin = zone(QByteArrayLiteral("Europe/Berlin"));
    QCOMPARE(clockChanges(day("2027.03.28"), day("2027.03.28"), berlin).size(), std::size_t(1));
    QVERIFY(clockChanges(day("2027.03.01"), day("2027.03.27"), berlin).empty());
    QVERIFY(clockChanges(day("2027.03.29"), day("2027.10.30"), berlin).empty());
    QVERIFY(clockChanges(day("2027.12.31"), day("2027.01.01"), berlin).empty());
    QVERIFY(clockChanges(QDate(), day("2027.12.31"), berlin).empty());
    QVERIFY(clockChanges(day("2027.01.01"), QDate(), berlin).empty());
    QVERIFY(clockChanges(day("2027.01.01"), day("2027.12.31"), QTimeZone()).empty());
}

/// Those in the table of a zone and those that follow it by rule, without a year between them.
void tst_ClockChanges::everyYearHasItsChanges()
{
    for (const char* name : {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe"}) {
        const QTimeZone place = zone(name);
        QVERIFY(place.isValid());
        QCOMPARE(clockChanges(day("2020.01.01"), day("2059.12.31"), place).size(), std::size_t(80));
    }
}

void tst_ClockChanges::whatAChangeDoesToAPlan_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("spring");
    QTest::addColumn<QString>("autumn");
    const auto row = [](const char* start, const char* end, const char* spring,
                        const char* autumn) {
        QTest::addRow("%s-%s", start, end)
            << QString::fromLatin1(start) << QString::fromLatin1(end) << QString::fromLatin1(spring)
            << QString::fromLatin1(autumn);
    };

    row("02:10:00", "02:50:00", "row 0 lost", "row 0 plays twice");
    row("02:00:00", "03:00:00", "row 0 lost", "row 0 plays twice");
    row("02:30:00", "05:00:00", "row 0 begins late", "row 0 begins twice");
    row("02:00:00", "03:00:01", "row 0 begins late", "row 0 begins twice");
    row("01:00:00", "02:30:00", "row 0 ends early", "row 0 ends twice");
    row("01:59:59", "03:00:00", "row 0 ends early", "row 0 ends twice");
    row("00:00:00", "23:59:59", "row 0 skips", "row 0 repeats");
    row("01:59:59", "03:00:01", "row 0 skips", "row 0 repeats");
    row("01:59:59", "02:00:01", "row 0 ends early", "row 0 ends twice");
    row("02:59:59", "03:00:01", "row 0 begins late", "row 0 begins twice");
    // Touching is not sharing.
    row("01:00:00", "02:00:00", "", "");
    row("03:00:00", "04:00:00", "", "");
    row("12:00:00", "13:00:00", "", "");
    row("02:30:00", "02:30:00", "", "");
    row("05:00:00", "02:30:00", "", "");
    row("", "02:30:00", "", "");
    row("02:30:00", "nonsense", "", "");
}

void tst_ClockChanges::whatAChangeDoesToAPlan()
{
    QFETCH(const QString, start);
    QFETCH(const QString, end);
    QFETCH(const QString, spring);
    QFETCH(const QString, autumn);
    const Tasks tasks = year2027({timePlan(7, start.toStdString(), end.toStdString())});

    QCOMPARE(
        next(tasks, "2027.01.01", 9),
        QStringList({QStringLiteral("2027.03.28 02:00:00-03:00:00 left out, task 1: ") + spring,
                     QStringLiteral("2027.10.31 02:00:00-03:00:00 twice, task 1: ") + autumn}));
}

void tst_ClockChanges::aPlanPlaysOnItsDaysOnly_data()
{
    QTest::addColumn<QString>("weeks");
    QTest::addColumn<QString>("touched");
    const auto row = [](const char* weeks, const char* touched) {
        QTest::newRow(weeks) << QString::fromLatin1(weeks) << QString::fromLatin1(touched);
    };
    // The clock changes on a Sunday.
    row("7", "row 0 lost");
    row("0", "row 0 lost");
    row("", "row 0 lost");
    row("x", "row 0 lost");
    row("1,7", "row 0 lost");
    row("1,2,3,4,5,6", "");
    row("8", "");
    row("-7", "");
}

void tst_ClockChanges::aPlanPlaysOnItsDaysOnly()
{
    QFETCH(const QString, weeks);
    QFETCH(const QString, touched);
    const Tasks tasks = year2027({timePlan(1, "02:10:00", "02:20:00", weeks.toStdString())});

    QCOMPARE(
        next(tasks, "2027.01.01", 1),
        QStringList(QStringLiteral("2027.03.28 02:00:00-03:00:00 left out, task 1: ") + touched));
}

void tst_ClockChanges::theEndOfRunsIsTheOneInForce()
{
    ProgramIten film;
    film.progIndex = 0;
    film.durationMs = 30 * 60'000.0;
    film.kind = ProgramKind::Video;
    ProgramIten image;
    image.progIndex = 1;
    image.kind = ProgramKind::Image;
    const Tasks tasks = year2027({frequencyPlan(1, "01:00:00", 2, {entry(0)}),
                                  frequencyPlan(2, "01:00:00", 3, {entry(0)}),
                                  frequencyPlan(3, "01:00:00", 1, {entry(1)})});

    QCOMPARE(
        lines(nextClockChanges(tasks, {{0, film}, {1, image}},
                               zone(QByteArrayLiteral("Europe/Berlin")), day("2027.01.01"), 1)),
        QStringList(QStringLiteral(
            "2027.03.28 02:00:00-03:00:00 left out, task 1: row 1 ends early, row 2 skips")));
}

void tst_ClockChanges::spansAndIdsOfTouchedPlansAreTold()
{
    const Tasks tasks =
        year2027({timePlan(4, "10:00:00", "11:00:00"), timePlan(9, "01:00:00", "02:30:00")});
    const std::vector<TaskClockChange> changes =
        nextClockChanges(tasks, {}, zone(QByteArrayLiteral("Europe/Berlin")), day("2027.01.01"), 1);

    QCOMPARE(changes.size(), std::size_t(1));
    QCOMPARE(changes[0].plans.size(), std::size_t(1));
    const TouchedPlan& plan = changes[0].plans[0];
    QCOMPARE(plan.planId, 9);
    QCOMPARE(plan.row, 1);
    QCOMPARE(plan.begin, 3600);
    QCOMPARE(plan.end, 9000);
}

void tst_ClockChanges::onlyDaysOfATaskInEffectCount()
{
    const Tasks tasks = {{1, task(1, "2027.04.01", "2027.10.30")},
                         {2, task(2, "2028.03.26", "2028.03.26")},
                         {3, task(3, "2035.01.01", "2035.06.30")}};

    QCOMPARE(next(tasks, "2026.11.21", 9),
             QStringList({QStringLiteral("2028.03.26 02:00:00-03:00:00 left out, task 2: "),
                          QStringLiteral("2035.03.25 02:00:00-03:00:00 left out, task 3: ")}));
}

void tst_ClockChanges::theLowestIdIsInEffect()
{
    const Tasks tasks = {{2, task(2, "2027.03.01", "2027.03.31")},
                         {5, task(5, "2027.01.01", "2027.12.31")}};

    QCOMPARE(next(tasks, "2027.01.01", 9),
             QStringList({QStringLiteral("2027.03.28 02:00:00-03:00:00 left out, task 2: "),
                          QStringLiteral("2027.10.31 02:00:00-03:00:00 twice, task 5: ")}));
}

void tst_ClockChanges::datesThatDoNotParseHoldNoDay()
{
    QVERIFY(next({{1, task(1, "", "2027.12.31")}}, "2027.01.01", 9).isEmpty());
    QVERIFY(next({{1, task(1, "2027.01.01", "31.12.2027")}}, "2027.01.01", 9).isEmpty());
    QVERIFY(next({{1, task(1, "2027.12.31", "2027.01.01")}}, "2027.01.01", 9).isEmpty());
}

void tst_ClockChanges::theDayItselfCounts()
{
    const Tasks tasks = year2027({});
    QCOMPARE(next(tasks, "2027.03.28", 9).size(), 2);
    QCOMPARE(next(tasks, "2027.03.29", 9).size(), 1);
    QCOMPARE(next(tasks, "2027.10.31", 9).size(), 1);
    QCOMPARE(next(tasks, "2027.11.01", 9).size(), 0);
    // Before the day that is asked for the clock was put back as well.
    const Tasks next2027 = {{1, task(1, "2026.01.01", "2026.03.08")},
                            {2, task(2, "2030.01.01", "2030.12.31")}};
    QCOMPARE(next(next2027, "2026.03.08", 1, QByteArrayLiteral("America/Havana")),
             QStringList(QStringLiteral("2026.03.08 00:00:00-01:00:00 left out, task 1: ")));
}

void tst_ClockChanges::theCountIsABound()
{
    const Tasks tasks = {{1, task(1, "2027.01.01", "7999.12.31")}};
    QCOMPARE(next(tasks, "2027.01.01", 3).size(), 3);
    QCOMPARE(next(tasks, "2027.01.01", 0).size(), 0);
    QCOMPARE(next(tasks, "2027.01.01", -1).size(), 0);
    QCOMPARE(next(tasks, "2027.01.01", 9, QByteArrayLiteral("Asia/Tokyo")).size(), 0);
}

void tst_ClockChanges::whatIsOverOrEmptyGivesNothing()
{
    QVERIFY(next({}, "2027.01.01", 9).isEmpty());
    QVERIFY(next(year2027({}), "2028.01.01", 9).isEmpty());
    QVERIFY(nextClockChanges(year2027({}), {}, QTimeZone(), day("2027.01.01"), 9).empty());
    QVERIFY(nextClockChanges(year2027({}), {}, zone(QByteArrayLiteral("Europe/Berlin")), QDate(), 9)
                .empty());
}

void tst_ClockChanges::thousandsOfYearsCostNothing()
{
    // Each of these walked year by year would look at some ten thousand changes.
    Tasks tasks;
    for (int id = 1; id <= 500; ++id) {
        const std::string year = std::to_string(7000 + id);
        tasks[id] = task(id, (year + ".04.01").c_str(), (year + ".09.30").c_str());
    }
    tasks[1000] = task(1000, "7900.01.01", "7999.12.31");
    QElapsedTimer timer;
    timer.start();
    const QStringList found = next(tasks, "2027.01.01", 2);
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));

    QCOMPARE(found,
             QStringList({QStringLiteral("7900.03.25 02:00:00-03:00:00 left out, task 1000: "),
                          QStringLiteral("7900.10.28 02:00:00-03:00:00 twice, task 1000: ")}));
}

TREL_TEST(tst_ClockChanges, QCoreApplication)
#include "tst_ClockChanges.moc"
