#include "problems/ProblemModel.h"
#include "support/PlanRecords.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <random>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

const QDate kToday(2027, 3, 10);

/// Two plans of which the second is hidden where it is short, in a task of one week.
PlayTask task(int id, int week, const char* end)
{
    PlayTask result =
        taskWithPlans({timePlan(1, "08:00:00", "12:00:00"), timePlan(2, "10:00:00", end)});
    result.id = id;
    const QDate first = kToday.addDays(7 * week);
    result.startDate = first.toString(kDateFormat).toStdString();
    result.endDate = first.addDays(6).toString(kDateFormat).toStdString();
    return result;
}

follow::ScheduleEdits editsOf(const std::map<int, PlayTask>& tasks, bool isWhole)
{
    follow::ScheduleEdits edits;
    edits.isWhole = isWhole;
    edits.catalogue = isWhole ? std::make_shared<const std::map<int, ProgramIten>>() : nullptr;
    for (const auto& [id, each] : tasks) {
        edits.tasks[id] = std::make_shared<const PlayTask>(each);
    }
    return edits;
}

QStringList linesOf(const ProblemModel& model)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < ProblemModel::ColumnCount; ++column) {
            cells.append(model.index(row, column).data().toString());
        }
        lines.append(cells.join(QStringLiteral(" | ")));
    }
    return lines;
}

/// A model with the work that feeds it.
struct Fed
{
    Fed() { model.retranslate(QLocale::c()); }

    void order(const std::map<int, PlayTask>& tasks, bool isWhole)
    {
        work.order(editsOf(tasks, isWhole), QTimeZone::utc(), kToday);
    }
    void remove(int id)
    {
        follow::ScheduleEdits edits;
        edits.tasks[id] = nullptr;
        work.order(edits, QTimeZone::utc(), kToday);
    }
    void take()
    {
        const auto changes = work.find(follow::Cancellation());
        QVERIFY(changes);
        work.taken(changes->number);
        model.take(*changes);
    }

    ProblemWork work;
    ProblemModel model;
};

} // namespace

class tst_ProblemModel : public QObject
{
    Q_OBJECT

private slots:
    void saysWhatIsWrongAndWhatToDo();
    void keepsRowsThatAnEditDoesNotConcern();
    void followsRandomEdits();
    void whatWasNotTakenIsToldAgain();
    void cancelledWorkTellsNothing();
};

void tst_ProblemModel::saysWhatIsWrongAndWhatToDo()
{
    Fed fed;
    const QAbstractItemModelTester tester(&fed.model);
    fed.order({{3, task(3, 1, "13:00:00")}}, true);
    fed.take();
    QCOMPARE(
        linesOf(fed.model),
        QStringList(
            {QStringLiteral(
                 "Task 3, row 1 | 2027.03.17 | Plan 1 contains no programs. | Choose the "
                 "programs of the plan anew."),
             QStringLiteral("Task 3, row 2 | 2027.03.17 | Plan 2 is in conflict with plan 1 in row "
                            "1 from 2027.03.17 on. | Change the days or times of one of the "
                            "plans."),
             QStringLiteral(
                 "Task 3, row 2 | 2027.03.17 | Plan 2 contains no programs. | Choose the "
                 "programs of the plan anew."),
             QStringLiteral(
                 "Task 3 | 2027.03.17 | No picture from 00:00:00 to 24:00:00, every day. "
                 "| Add a plan, or let the plan before it end with its last frame.")}));
    for (int column = 0; column < ProblemModel::ColumnCount; ++column) {
        QVERIFY(
            !fed.model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().isEmpty());
    }
    const QModelIndex first = fed.model.index(0, ProblemModel::PlaceColumn);
    QCOMPARE(first.data(Qt::AccessibleTextRole).toString(),
             QStringLiteral("Error · Task 3, row 1"));
    QVERIFY(!first.data(Qt::DecorationRole).value<QIcon>().isNull());
}

void tst_ProblemModel::keepsRowsThatAnEditDoesNotConcern()
{
    Fed fed;
    const QAbstractItemModelTester tester(&fed.model);
    fed.order({{1, task(1, 1, "13:00:00")}, {2, task(2, 2, "13:00:00")}}, true);
    fed.take();
    QCOMPARE(fed.model.rowCount(), 8);
    const QPersistentModelIndex last(fed.model.index(7, 0));
    const QPersistentModelIndex conflict(fed.model.index(1, 0));
    QCOMPARE(fed.model.problem(1).kind, ProblemKind::PlansCollide);
    const QSignalSpy reset(&fed.model, &QAbstractItemModel::modelReset);
    const QSignalSpy removed(&fed.model, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy inserted(&fed.model, &QAbstractItemModel::rowsInserted);

    // The second plan begins where the first one ends.
    PlayTask other = task(1, 1, "13:00:00");
    other.plans[1].startTime = "12:00:00";
    fed.order({{1, other}}, false);
    fed.take();
    QCOMPARE(reset.count(), 0);
    QCOMPARE(removed.count(), 2); // The conflict, and what is told with the start of the plan.
    QCOMPARE(inserted.count(), 1);
    QVERIFY(!conflict.isValid());
    QVERIFY(last.isValid());
    QCOMPARE(fed.model.problem(last.row()).taskId, 2);

    fed.remove(2);
    fed.take();
    QVERIFY(!last.isValid());
    QCOMPARE(fed.model.rowCount(), 3);
}

void tst_ProblemModel::followsRandomEdits()
{
    std::mt19937 random(2250);
    Fed fed;
    const QAbstractItemModelTester tester(&fed.model);
    std::map<int, PlayTask> tasks;
    fed.order(tasks, true);
    for (int step = 0; step < 300; ++step) {
        const int id = 1 + static_cast<int>(random() % 12);
        if (random() % 4 == 0) {
            tasks.erase(id);
            fed.remove(id);
        } else {
            const char* const ends[] = {"11:00:00", "13:00:00", "09:00:00", "10:00:00"};
            tasks[id] = task(id, static_cast<int>(random() % 6) - 1, ends[random() % 4]);
            fed.order({{id, tasks[id]}}, false);
        }
        if (random() % 3 == 0) {
            continue;
        }
        fed.take();
        Fed whole;
        whole.order(tasks, true);
        whole.take();
        QCOMPARE(linesOf(fed.model), linesOf(whole.model));
        for (int row = 1; row < fed.model.rowCount(); ++row) {
            QVERIFY(!comesBefore(fed.model.problem(row), fed.model.problem(row - 1)));
        }
    }
}

void tst_ProblemModel::whatWasNotTakenIsToldAgain()
{
    Fed fed;
    fed.order({{1, task(1, 1, "13:00:00")}}, true);
    QVERIFY(fed.work.find(follow::Cancellation()));
    // Its outcome did not arrive.
    fed.order({{2, task(2, 2, "13:00:00")}}, false);
    const auto changes = fed.work.find(follow::Cancellation());
    QVERIFY(changes);
    QVERIFY(changes->isWhole);
    QCOMPARE(changes->lists.size(), std::size_t(2));
    fed.work.taken(changes->number);
    const auto next = fed.work.find(follow::Cancellation());
    QVERIFY(next);
    QVERIFY(!next->isWhole);
    QVERIFY(next->lists.empty());
}

void tst_ProblemModel::cancelledWorkTellsNothing()
{
    Fed fed;
    fed.order({{1, task(1, 1, "13:00:00")}}, true);
    const auto newest = std::make_shared<std::atomic<int>>(2);
    QVERIFY(!fed.work.find(follow::Cancellation(newest, 1)));
    fed.take();
    QCOMPARE(fed.model.rowCount(), 4);
}

TREL_TEST(tst_ProblemModel, QApplication)
#include "tst_ProblemModel.moc"
