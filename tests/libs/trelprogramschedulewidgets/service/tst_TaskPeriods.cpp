#include "LiteralRules.h"
#include "support/TestProgram.h"

#include "service/TaskPeriods.h"

#include <QTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;

void add(Tasks& tasks, int id, const std::string& startDate, const std::string& endDate)
{
    PlayTask task;
    task.id = id;
    task.startDate = startDate;
    task.endDate = endDate;
    tasks[id] = task;
}

QString line(const std::vector<TaskOverlap>& overlaps)
{
    QStringList texts;
    for (const TaskOverlap& overlap : overlaps) {
        texts.append(QStringLiteral("%1-%2").arg(overlap.first).arg(overlap.second));
    }
    return texts.join(QLatin1Char(' '));
}

QString firstLine(const Tasks& tasks)
{
    const std::optional<TaskOverlap> first = firstTaskOverlap(tasks);
    return first ? line({*first}) : QString();
}

QByteArray described(const Tasks& tasks)
{
    QByteArray text;
    for (const auto& [key, task] : tasks) {
        text += "\n  " + QByteArray::number(key) + ": id " + QByteArray::number(task.id) + " \"" +
                QByteArray::fromStdString(task.startDate) + "\" to \"" +
                QByteArray::fromStdString(task.endDate) + '"';
    }
    return text;
}

std::string randomDate(std::mt19937& random)
{
    if (random() % 15 == 0) {
        return random() % 2 == 0 ? "" : "2024.1.1";
    }
    const std::string day = std::to_string(random() % 30);
    return "2024.01." + (day.size() < 2 ? '0' + day : day);
}

} // namespace

class tst_TaskPeriods : public QObject
{
    Q_OBJECT

private slots:
    void noTask();
    void oneTaskNeverOverlapsItself();
    void oneSharedDay();
    void neighboursPass();
    void firstInAscendingOrder();
    void firstPartnerInAscendingOrder();
    void emptyDates();
    void invertedPeriods();
    void allInTheOrderOfTheWalk();
    void tasksOfOneId();
    void followsTheWalkOverAllPairs();
    void manyPeriodsWithoutAnOverlap();
};

void tst_TaskPeriods::noTask()
{
    QVERIFY(!firstTaskOverlap({}));
    QCOMPARE(line(allTaskOverlaps({})), QString());
}

void tst_TaskPeriods::oneTaskNeverOverlapsItself()
{
    Tasks tasks;
    add(tasks, 1, "2024.01.01", "2024.01.31");
    QCOMPARE(firstLine(tasks), QString());
    QCOMPARE(line(allTaskOverlaps(tasks)), QString());
}

void tst_TaskPeriods::oneSharedDay()
{
    Tasks tasks;
    add(tasks, 1, "2024.01.01", "2024.01.31");
    add(tasks, 2, "2024.01.31", "2024.02.10");
    QCOMPARE(firstLine(tasks), QStringLiteral("1-2"));
}

void tst_TaskPeriods::neighboursPass()
{
    Tasks tasks;
    add(tasks, 1, "2024.01.01", "2024.01.31");
    add(tasks, 2, "2024.02.01", "2024.02.10");
    QCOMPARE(firstLine(tasks), QString());
}

void tst_TaskPeriods::firstInAscendingOrder()
{
    Tasks tasks;
    add(tasks, 1, "2024.06.01", "2024.06.30");
    add(tasks, 2, "2024.01.01", "2024.01.31");
    add(tasks, 5, "2024.01.10", "2024.01.11");
    add(tasks, 9, "2024.06.30", "2024.07.31");
    QCOMPARE(firstLine(tasks), QStringLiteral("1-9"));
    QCOMPARE(line(allTaskOverlaps(tasks)), QStringLiteral("1-9 2-5"));
}

void tst_TaskPeriods::firstPartnerInAscendingOrder()
{
    Tasks tasks;
    add(tasks, 3, "2024.01.01", "2024.12.31");
    add(tasks, 4, "2024.11.01", "2024.11.02");
    add(tasks, 6, "2024.02.01", "2024.02.02");
    QCOMPARE(firstLine(tasks), QStringLiteral("3-4"));
}

void tst_TaskPeriods::emptyDates()
{
    Tasks tasks;
    add(tasks, 1, "", "");
    add(tasks, 2, "2024.01.01", "2024.12.31");
    QCOMPARE(firstLine(tasks), QString());
    add(tasks, 3, "", "");
    QCOMPARE(firstLine(tasks), QStringLiteral("1-3"));
}

void tst_TaskPeriods::invertedPeriods()
{
    Tasks tasks;
    add(tasks, 1, "2024.03.01", "2024.02.01");
    add(tasks, 2, "2024.01.01", "2024.12.31");
    add(tasks, 3, "2024.02.10", "2024.02.20");
    QCOMPARE(line(allTaskOverlaps(tasks)), QStringLiteral("1-2 2-3"));
}

void tst_TaskPeriods::allInTheOrderOfTheWalk()
{
    Tasks tasks;
    add(tasks, 7, "2024.01.01", "2024.01.02");
    add(tasks, 2, "2024.01.02", "2024.01.03");
    add(tasks, 4, "2024.01.02", "2024.01.02");
    add(tasks, -1, "2024.01.03", "2024.01.09");
    QCOMPARE(line(allTaskOverlaps(tasks)), QStringLiteral("-1-2 2-4 2-7 4-7"));
}

void tst_TaskPeriods::tasksOfOneId()
{
    Tasks tasks;
    add(tasks, 1, "2024.01.01", "2024.01.31");
    add(tasks, 2, "2024.01.01", "2024.01.31");
    tasks[2].id = 1;
    QCOMPARE(firstLine(tasks), QString());
}

void tst_TaskPeriods::followsTheWalkOverAllPairs()
{
    std::mt19937 random(12);
    for (int i = 0; i < 20000; ++i) {
        Tasks tasks;
        const bool isBusy = random() % 2 == 0;
        for (std::size_t left = random() % 14; left > 0; --left) {
            const int id = static_cast<int>(random() % 40) - 2;
            std::string startDate = randomDate(random);
            std::string endDate = isBusy ? randomDate(random) : startDate;
            if (random() % 5 != 0 && endDate < startDate) {
                std::swap(startDate, endDate);
            }
            add(tasks, id, startDate, endDate);
            tasks[id].id = random() % 30 == 0 ? 1 : id;
        }
        const std::vector<TaskOverlap> expected = literal::taskOverlaps(tasks);
        const std::vector<TaskOverlap> found = allTaskOverlaps(tasks);
        const std::optional<TaskOverlap> first = firstTaskOverlap(tasks);
        const QByteArray message =
            "case " + QByteArray::number(i) + ": " + line(found).toLatin1() + described(tasks);
        QVERIFY2(found == expected, message.constData());
        QVERIFY2(first.has_value() == !expected.empty() && (!first || *first == expected.front()),
                 message.constData());
    }
}

// A walk over all pairs of these would not come back.
void tst_TaskPeriods::manyPeriodsWithoutAnOverlap()
{
    Tasks tasks;
    for (int i = 0; i < 200000; ++i) {
        const std::string day = std::to_string(1000000 + (i * 7919LL) % 200000);
        add(tasks, i, day, day);
    }
    QCOMPARE(firstLine(tasks), QString());
    tasks[199999].startDate = tasks[1].startDate;
    tasks[199999].endDate = tasks[1].startDate;
    QCOMPARE(line(allTaskOverlaps(tasks)), QStringLiteral("1-199999"));
}

TREL_TEST(tst_TaskPeriods, trel::tests::NoApplication)
#include "tst_TaskPeriods.moc"
