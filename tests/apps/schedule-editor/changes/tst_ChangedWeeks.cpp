#include "changes/ChangedWeeks.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QtTest>

#include <map>
#include <vector>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

PlayTask task(int id, const char* begins, const char* ends)
{
    PlayTask task;
    task.id = id;
    task.startDate = begins;
    task.endDate = ends;
    return task;
}

std::map<int, PlayTask> tasks(const std::vector<PlayTask>& list)
{
    std::map<int, PlayTask> tasks;
    for (const PlayTask& task : list) {
        tasks.emplace(task.id, task);
    }
    return tasks;
}

const PlayTask kPast = task(1, "2026.01.01", "2026.01.31");
const PlayTask kOlder = task(2, "2025.01.01", "2025.01.31");
const PlayTask kNow = task(3, "2026.03.01", "2026.03.31");
const PlayTask kSoon = task(4, "2026.05.01", "2026.05.31");
const PlayTask kLater = task(5, "2026.08.01", "2026.08.31");
const PlayTask kNoDates = task(6, "", "tomorrow");
const PlayTask kReversed = task(7, "2026.03.31", "2026.03.01");

} // namespace

Q_DECLARE_METATYPE(std::vector<trel::mediadispatch::PlayTask>)

/// Two states of a schedule beside each other begin where something differs.
class tst_ChangedWeeks : public QObject
{
    Q_OBJECT

private slots:
    void beginsWhereSomethingDiffers_data();
    void beginsWhereSomethingDiffers();
};

void tst_ChangedWeeks::beginsWhereSomethingDiffers_data()
{
    using Tasks = std::vector<PlayTask>;
    QTest::addColumn<Tasks>("former");
    QTest::addColumn<Tasks>("later");
    QTest::addColumn<QDate>("day");
    const QDate today(2026, 3, 4);
    QTest::newRow("nothing") << Tasks{kPast, kSoon} << Tasks{kPast, kSoon} << today;
    QTest::newRow("today") << Tasks{kPast} << Tasks{kNow, kSoon} << today;
    QTest::newRow("what comes first") << Tasks{kPast} << Tasks{kLater, kSoon} << QDate(2026, 5, 1);
    QTest::newRow("what has gone") << Tasks{kSoon} << Tasks{} << QDate(2026, 5, 1);
    QTest::newRow("the last that was") << Tasks{kOlder, kPast} << Tasks{} << QDate(2026, 1, 31);
    PlayTask other = kSoon;
    other.plans.resize(1);
    QTest::newRow("what has changed")
        << Tasks{kNow, kSoon} << Tasks{kNow, other} << QDate(2026, 5, 1);
    QTest::newRow("what is never valid") << Tasks{} << Tasks{kNoDates, kReversed} << today;
}

void tst_ChangedWeeks::beginsWhereSomethingDiffers()
{
    QFETCH(const std::vector<PlayTask>, former);
    QFETCH(const std::vector<PlayTask>, later);
    QTEST(changes::nearestChangedDay(tasks(former), tasks(later), QDate(2026, 3, 4)), "day");
}

TREL_TEST(tst_ChangedWeeks, QApplication)
#include "tst_ChangedWeeks.moc"
