#include "support/Growth.h"
#include "support/TestProgram.h"

#include "service/DateText.h"
#include "trelprogramschedule/problems/TaskOverlaps.h"

#include <QTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

std::string day(int number)
{
    return dateToText(QDate(2027, 1, 1).addDays(number));
}

Period randomPeriod(std::mt19937& random)
{
    if (random() % 15 == 0) {
        return {"", random() % 2 == 0 ? "" : "x"};
    }
    const int start = static_cast<int>(random() % 200);
    return {day(start), day(start + static_cast<int>(random() % 12) - 1)};
}

int firstOfAll(const std::map<int, Period>& periods, int id)
{
    const auto own = periods.find(id);
    for (const auto& [other, period] : periods) {
        if (own != periods.end() && other < id && period.start <= own->second.end &&
            own->second.start <= period.end) {
            return other;
        }
    }
    return -1;
}

} // namespace

class tst_TaskOverlaps : public QObject
{
    Q_OBJECT

private slots:
    void followsTheWalkOverAllPairs_data();
    void followsTheWalkOverAllPairs();
    void tellsOfThoseThatMove();
    void theTreeFindsWhatOverlaps();
    void growsWithTheTasks_data();
    void growsWithTheTasks();
    void aMoveCostsWhatItTouches();
};

void tst_TaskOverlaps::followsTheWalkOverAllPairs_data()
{
    QTest::addColumn<int>("tasks");
    QTest::addColumn<int>("edits");
    QTest::newRow("few tasks") << 8 << 1;
    QTest::newRow("many tasks") << 90 << 1;
    QTest::newRow("many at a time") << 90 << 40;
}

void tst_TaskOverlaps::followsTheWalkOverAllPairs()
{
    QFETCH(int, tasks);
    QFETCH(int, edits);
    std::mt19937 random(2220);
    TaskOverlaps overlaps;
    std::map<int, Period> periods;
    std::map<int, int> told;
    for (int step = 0; step < 600; ++step) {
        for (int left = edits; left > 0; --left) {
            const int id = 1 + static_cast<int>(random() % static_cast<unsigned>(tasks));
            if (random() % 4 == 0) {
                periods.erase(id);
                overlaps.setPeriod(id, std::nullopt);
            } else {
                periods[id] = randomPeriod(random);
                overlaps.setPeriod(id, periods[id]);
            }
        }
        for (const int id : overlaps.update()) {
            told[id] = overlaps.firstOf(id);
        }
        for (int id = 1; id <= tasks; ++id) {
            QCOMPARE(overlaps.firstOf(id), firstOfAll(periods, id));
            const auto known = told.find(id);
            QCOMPARE(known == told.end() ? -1 : known->second, overlaps.firstOf(id));
        }
    }
}

void tst_TaskOverlaps::tellsOfThoseThatMove()
{
    TaskOverlaps overlaps;
    overlaps.setPeriod(1, Period{day(0), day(5)});
    overlaps.setPeriod(2, Period{day(5), day(9)});
    QCOMPARE(overlaps.update(), std::set<int>({2}));
    QCOMPARE(overlaps.update(), std::set<int>());
    overlaps.setPeriod(1, Period{day(0), day(5)});
    QCOMPARE(overlaps.update(), std::set<int>());
    // It is the same task still, but other days.
    overlaps.setPeriod(1, Period{day(0), day(6)});
    QCOMPARE(overlaps.update(), std::set<int>({2}));
    overlaps.setPeriod(1, std::nullopt);
    QCOMPARE(overlaps.update(), std::set<int>({2}));
    QCOMPARE(overlaps.firstOf(2), -1);
}

void tst_TaskOverlaps::theTreeFindsWhatOverlaps()
{
    std::mt19937 random(2221);
    PeriodTree tree;
    std::map<int, Period> periods;
    for (int step = 0; step < 2000; ++step) {
        const int id = static_cast<int>(random() % 60);
        if (const auto known = periods.find(id); known != periods.end()) {
            tree.erase(id, known->second);
            periods.erase(known);
        } else {
            periods[id] = randomPeriod(random);
            tree.insert(id, periods[id]);
        }
        const Period asked = randomPeriod(random);
        std::set<int> expected;
        for (const auto& [each, period] : periods) {
            if (period.start <= asked.end && asked.start <= period.end) {
                expected.insert(each);
            }
        }
        std::set<int> found;
        std::string last;
        tree.visitOverlapping(asked, [&](int each, const Period& period) {
            found.insert(each);
            const bool isSorted = last <= period.start;
            last = period.start;
            return isSorted;
        });
        QCOMPARE(found, expected);
    }
}

void tst_TaskOverlaps::growsWithTheTasks_data()
{
    QTest::addColumn<int>("length");
    QTest::newRow("none overlap") << 1;
    QTest::newRow("all overlap") << 100000;
}

void tst_TaskOverlaps::growsWithTheTasks()
{
    QFETCH(int, length);
    const auto work = [length](int count) {
        const double start = processorTime();
        TaskOverlaps overlaps;
        for (int id = 0; id < count; ++id) {
            overlaps.setPeriod(id, Period{day(id * 2), day(id * 2 + length)});
        }
        overlaps.update();
        // The one that stands in the way of all others goes.
        overlaps.setPeriod(0, std::nullopt);
        overlaps.update();
        return processorTime() - start;
    };
    QVERIFY2(growth(500, 5000, work) < 4.0, "grows with the square");
}

void tst_TaskOverlaps::aMoveCostsWhatItTouches()
{
    const auto moves = [](int count) {
        TaskOverlaps overlaps;
        for (int id = 0; id < count; ++id) {
            overlaps.setPeriod(id, Period{day(id * 10), day(id * 10 + 10)});
        }
        overlaps.update();
        const double start = processorTime();
        for (int move = 0; move < 2000; ++move) {
            const int id = count / 2;
            overlaps.setPeriod(id, Period{day(id * 10 + move % 2), day(id * 10 + 10)});
            overlaps.update();
        }
        return processorTime() - start;
    };
    const double few = std::min({moves(100), moves(100), moves(100)});
    QVERIFY2(moves(1600) < 3 * few, "a move costs what there is");
}

TREL_TEST(tst_TaskOverlaps, trel::tests::NoApplication)
#include "tst_TaskOverlaps.moc"
