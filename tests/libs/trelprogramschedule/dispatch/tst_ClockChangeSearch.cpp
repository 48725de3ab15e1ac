#include "ScheduleWriting.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/ClockChanges.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

std::shared_ptr<const PlayTask> task(const char* text)
{
    return std::make_shared<PlayTask>(scheduleFromText(QString::fromLatin1(text)).begin()->second);
}

std::shared_ptr<const std::map<int, ProgramIten>> catalogue(double lengthOfA)
{
    auto programs = lettersCatalogue();
    programs[programOf(QLatin1Char('A'))].durationMs = lengthOfA;
    return std::make_shared<std::map<int, ProgramIten>>(std::move(programs));
}

/// A search in Berlin, where the clock is changed on 2027-03-28 and 2027-10-31.
class Search : public ClockChangeSearch
{
public:
    Search()
        : ClockChangeSearch(QTimeZone("Europe/Berlin"))
    {
        setCatalogue(catalogue(10000.0));
    }

    /// Such as "03-28 1", with the number of the task, and with "*" for each plan that is touched.
    QStringList found(int count = 9, const std::function<bool()>& goesOn = {})
    {
        QStringList result;
        for (const TaskClockChange& change : next(QDate(2027, 1, 1), count, goesOn)) {
            result.append(change.change.date.toString(QStringLiteral("MM-dd ")) +
                          QString::number(change.taskId) +
                          QString(int(change.plans.size()), QLatin1Char('*')));
        }
        return result;
    }
};

QStringList split(const char* text)
{
    return QString::fromLatin1(text).split(QStringLiteral(", "), Qt::SkipEmptyParts);
}

} // namespace

/// A schedule that is edited task by task is known as well as one that is read whole.
class tst_ClockChangeSearch : public QObject
{
    Q_OBJECT

private slots:
    void tasksComeAndGo();
    void aTaskThatMovesIsFoundWhereItIs();
    void plansOfATaskThatStays();
    void aNewCatalogueMovesTheEndsOfRuns();
    void stopsWhenItIsTold();
    void theDayItselfCounts_data();
    void theDayItselfCounts();
};

void tst_ClockChangeSearch::tasksComeAndGo()
{
    Search search;
    QCOMPARE(search.found(), split(""));
    search.setTask(2, task("2 2027.01.01-2027.12.31"));
    QCOMPARE(search.found(), split("03-28 2, 10-31 2"));
    search.setTask(1, task("1 2027.10.01-2027.12.31"));
    QCOMPARE(search.found(), split("03-28 2, 10-31 1"));
    search.setTask(1, nullptr);
    QCOMPARE(search.found(), split("03-28 2, 10-31 2"));
    search.setTask(7, nullptr);
    QCOMPARE(search.found(), split("03-28 2, 10-31 2"));
    search.setTask(2, nullptr);
    QCOMPARE(search.found(), split(""));
}

void tst_ClockChangeSearch::aTaskThatMovesIsFoundWhereItIs()
{
    Search search;
    search.setTask(1, task("1 2027.01.01-2027.06.30"));
    QCOMPARE(search.found(), split("03-28 1"));
    search.setTask(1, task("1 2027.07.01-2027.12.31"));
    QCOMPARE(search.found(), split("10-31 1"));
    search.setTask(1, task("1 2027.01.01-2027.12.31"));
    QCOMPARE(search.found(), split("03-28 1, 10-31 1"));
}

void tst_ClockChangeSearch::plansOfATaskThatStays()
{
    Search search;
    search.setTask(1, task("1 2027.01.01-2027.12.31 / 02:00:00-04:00:00 A"));
    QCOMPARE(search.found(), split("03-28 1*, 10-31 1*"));
    search.setTask(1, task("1 2027.01.01-2027.12.31 / 04:00:00-05:00:00 A"));
    QCOMPARE(search.found(), split("03-28 1, 10-31 1"));
    search.setTask(1, task("1 2027.01.01-2027.12.31 / 01:00:00-05:00:00 A / 01:00:00-02:00:01 A"));
    QCOMPARE(search.found(), split("03-28 1**, 10-31 1**"));
}

void tst_ClockChangeSearch::aNewCatalogueMovesTheEndsOfRuns()
{
    Search search;
    search.setTask(1, task("1 2027.01.01-2027.12.31 / 01:00:00 x1 A"));
    QCOMPARE(search.found(), split("03-28 1, 10-31 1"));
    search.setCatalogue(catalogue(3600.0 * 2 * 1000));
    QCOMPARE(search.found(), split("03-28 1*, 10-31 1*"));
}

void tst_ClockChangeSearch::stopsWhenItIsTold()
{
    Search search;
    search.setTask(1, task("1 2027.01.01-2029.12.31"));
    QCOMPARE(search.found(9, [] { return false; }), split(""));
    int steps = 2;
    QCOMPARE(search.found(9, [&steps] { return steps-- > 0; }).size(), 2);
    QCOMPARE(search.found(9, [] { return true; }).size(), 6);
    QCOMPARE(search.found(3).size(), 3);
}

// East of Greenwich a local day, and a change on it, begins on the day before in universal time.
void tst_ClockChangeSearch::theDayItselfCounts_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::newRow("a Sunday") << QByteArray("Europe/Berlin") << QDate(2027, 3, 28);
    QTest::newRow("a Monday") << QByteArray("Asia/Tehran") << QDate(2021, 3, 22);
    QTest::newRow("from midnight on") << QByteArray("Asia/Beirut") << QDate(2026, 3, 29);
    QTest::newRow("far in the east") << QByteArray("Australia/Lord_Howe") << QDate(2026, 10, 4);
    QTest::newRow("a day that is left out") << QByteArray("Pacific/Apia") << QDate(2011, 12, 30);
    QTest::newRow("in the west") << QByteArray("America/Havana") << QDate(2026, 11, 1);
}

void tst_ClockChangeSearch::theDayItselfCounts()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    ClockChangeSearch search{QTimeZone(zone)};
    search.setTask(1, task("1 2000.01.01-2030.12.31"));
    const std::vector<TaskClockChange> found = search.next(day, 1);
    QCOMPARE(found.size(), std::size_t(1));
    QCOMPARE(found.front().change.date, day);
}

TREL_TEST(tst_ClockChangeSearch, QCoreApplication)
#include "tst_ClockChangeSearch.moc"
