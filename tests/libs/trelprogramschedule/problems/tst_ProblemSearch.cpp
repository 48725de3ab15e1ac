#include "../dispatch/ScheduleWriting.h"
#include "LiteralProblems.h"
#include "ProblemLines.h"
#include "RandomTasks.h"
#include "support/Growth.h"
#include "support/TestProgram.h"

#include "service/DateText.h"
#include "service/TimeText.h"
#include "trelprogramschedule/problems/ProblemSearch.h"

#include <QTest>

#include <algorithm>
#include <set>

using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;
using Programs = std::map<int, ProgramIten>;

const QTimeZone& berlin()
{
    static const QTimeZone zone("Europe/Berlin");
    return zone;
}

QDate today()
{
    return {2027, 3, 10};
}

/// A search with what it has told so far.
class Follower
{
public:
    Follower() { search.setDays(today(), today(), berlin()); }

    void put(const PlayTask& task)
    {
        search.setTask(task.id, std::make_shared<const PlayTask>(task));
    }

    void take(const std::function<bool()>& goesOn = {})
    {
        changed.clear();
        for (auto& [id, list] : search.next(goesOn)) {
            changed.insert(id);
            if (list) {
                told[id] = list;
            } else {
                told.erase(id);
            }
        }
    }

    QStringList lines() const
    {
        std::vector<ScheduleProblem> all;
        for (const auto& [id, list] : told) {
            all.insert(all.end(), list->begin(), list->end());
        }
        std::sort(all.begin(), all.end(), comesBefore);
        return linesOf(all);
    }

    ProblemSearch search;
    std::map<int, ProblemSearch::List> told;
    std::set<int> changed;
};

PlayTask taskFrom(const char* text)
{
    return scheduleFromText(QString::fromLatin1(text)).begin()->second;
}

std::shared_ptr<const Programs> shared(const Programs& programs)
{
    return std::make_shared<const Programs>(programs);
}

} // namespace

class tst_ProblemSearch : public QObject
{
    Q_OBJECT

private slots:
    void followsEdits();
    void overlapsFollowTheWalkOverAllPairs();
    void tellsOnlyWhatIsOther();
    void goesOnWhereItWasStopped();
    void looksAtWhatUsesAProgram();
    void anotherDay();
    void whatIsOverOverlapsStill();
    void editsCostWhatTheyTouch();
};

void tst_ProblemSearch::followsEdits()
{
    std::mt19937 random(2240);
    Tasks tasks;
    Programs programs = lettersCatalogue();
    Follower follower;
    follower.search.setCatalogue(shared(programs));
    for (int step = 0; step < 700; ++step) {
        const int id = 1 + static_cast<int>(random() % 9);
        switch (random() % 8) {
        case 0:
            tasks.erase(id);
            follower.search.setTask(id, nullptr);
            break;
        case 1: {
            ProgramIten& program = programs[programOf(QLatin1Char("HIN"[random() % 3]))];
            program.isNull = !program.isNull;
            follower.search.setCatalogue(shared(programs));
            break;
        }
        default:
            tasks[id] = randomTask(random, id);
            follower.put(tasks[id]);
        }
        int steps = static_cast<int>(random() % 4);
        if (random() % 3 == 0) {
            follower.take([&steps] { return steps-- > 0; });
            continue;
        }
        follower.take();
        QCOMPARE(follower.lines(),
                 linesOf(scheduleProblems(tasks, programs, today(), today(), berlin())));
    }
}

void tst_ProblemSearch::overlapsFollowTheWalkOverAllPairs()
{
    std::mt19937 random(2241);
    for (int i = 0; i < 200; ++i) {
        Tasks tasks;
        for (int id = 1; id < 2 + static_cast<int>(random() % 50); ++id) {
            tasks[id] = randomTask(random, id);
            tasks[id].plans.clear();
        }
        QStringList found;
        for (const ScheduleProblem& problem : scheduleProblems(tasks, {}, {}, today(), berlin())) {
            if (problem.kind == ProblemKind::TasksOverlap) {
                found.append(lineOf(problem));
            }
        }
        found.sort();
        QCOMPARE(found, literal::overlaps(tasks));
    }
}

void tst_ProblemSearch::tellsOnlyWhatIsOther()
{
    Follower follower;
    follower.search.setCatalogue(shared(lettersCatalogue()));
    follower.put(taskFrom("1 2027.03.01-2027.03.20 / 00:00:00-12:00:00 A freeze"));
    follower.put(taskFrom("2 2027.03.20-2027.03.27 / 00:00:00-12:00:00 A"));
    follower.put(taskFrom("3 2027.04.01-2027.04.30 / 00:00:00-12:00:00 A freeze"));
    follower.take();
    QCOMPARE(follower.changed, std::set<int>({2}));
    QCOMPARE(follower.lines(),
             QStringList({QStringLiteral("overlaps 2 with 1, 2027.03.20-2027.03.20"),
                          QStringLiteral("black 2 12:00-24:00 on 1,2,3,4,5,6,7, "
                                         "2027.03.20-2027.03.27")}));
    follower.take();
    QCOMPARE(follower.changed, std::set<int>());
    follower.put(taskFrom("1 2027.03.01-2027.03.20 / 00:00:00-13:00:00 B freeze"));
    follower.take();
    QCOMPARE(follower.changed, std::set<int>());
    follower.put(taskFrom("1 2027.03.01-2027.03.21 / 00:00:00-13:00:00 B freeze"));
    follower.take();
    QCOMPARE(follower.changed, std::set<int>({2}));
    QCOMPARE(follower.lines().first(), QStringLiteral("overlaps 2 with 1, 2027.03.20-2027.03.21"));
    follower.search.setTask(2, nullptr);
    follower.take();
    QCOMPARE(follower.changed, std::set<int>({2}));
    QCOMPARE(follower.lines(), QStringList());
}

void tst_ProblemSearch::goesOnWhereItWasStopped()
{
    Follower follower;
    for (int id = 1; id <= 5; ++id) {
        PlayTask task = taskFrom("1 2027.03.11-2027.03.11");
        task.id = id;
        task.startDate = task.endDate = dateToText(today().addDays(id));
        follower.put(task);
    }
    int steps = 2;
    follower.take([&steps] { return steps-- > 0; });
    QCOMPARE(follower.lines().size(), 2);
    follower.take([] { return false; });
    QCOMPARE(follower.lines().size(), 2);
    follower.take();
    QCOMPARE(follower.lines().size(), 5);
    QCOMPARE(follower.search.lookedAt(), std::size_t(5));
}

void tst_ProblemSearch::looksAtWhatUsesAProgram()
{
    Programs programs = lettersCatalogue();
    Follower follower;
    follower.search.setCatalogue(shared(programs));
    follower.put(taskFrom("1 2027.03.01-2027.03.20 / 00:00:00-12:00:00 A freeze"));
    follower.put(taskFrom("2 2027.03.21-2027.03.31 / 00:00:00-12:00:00 B freeze"));
    follower.take();
    QCOMPARE(follower.search.lookedAt(), std::size_t(2));
    follower.search.setCatalogue(shared(programs));
    follower.take();
    QCOMPARE(follower.search.lookedAt(), std::size_t(2));
    programs[programOf(QLatin1Char('B'))].isNull = true;
    follower.search.setCatalogue(shared(programs));
    follower.take();
    QCOMPARE(follower.search.lookedAt(), std::size_t(3));
    QCOMPARE(follower.lines().first(), QStringLiteral("missing 2/1, entry 0, 1 of them"));
    programs.erase(programOf(QLatin1Char('A')));
    follower.search.setCatalogue(shared(programs));
    follower.take();
    QCOMPARE(follower.search.lookedAt(), std::size_t(4));
    QVERIFY(follower.lines().contains(QStringLiteral("invalid 1/1, entry 0, 1 of them")));
}

void tst_ProblemSearch::anotherDay()
{
    Follower follower;
    follower.search.setCatalogue(shared(lettersCatalogue()));
    follower.put(taskFrom("1 2027.03.01-2027.03.28 / 02:00:00-12:00:00 A N freeze"));
    follower.take();
    QCOMPARE(follower.lines(),
             QStringList({QStringLiteral("missing 1/1, entry 1, 1 of them"),
                          QStringLiteral("clock 1/1, 2027.03.28-2027.03.28, effect 1")}));
    follower.search.setDays(today(), today(), berlin());
    follower.take();
    QCOMPARE(follower.search.lookedAt(), std::size_t(1));
    follower.search.setDays(today(), today(), QTimeZone("Asia/Tokyo"));
    follower.take();
    QCOMPARE(follower.lines().size(), 1);
    const QDate later(2027, 3, 29);
    follower.search.setDays(later, later, berlin());
    follower.take();
    QCOMPARE(follower.lines(), QStringList());
}

void tst_ProblemSearch::whatIsOverOverlapsStill()
{
    Follower follower;
    follower.put(taskFrom("1 2026.03.01-2026.03.28"));
    follower.put(taskFrom("2 2026.03.01-2026.03.28 / 02:00:00-12:00:00 !A"));
    follower.take();
    QCOMPARE(follower.lines(),
             QStringList({QStringLiteral("overlaps 2 with 1, 2026.03.01-2026.03.28")}));
}

// Ten plans a task, as a schedule of 10,000 plans has them.
void tst_ProblemSearch::editsCostWhatTheyTouch()
{
    const auto edits = [](int count) {
        Follower follower;
        follower.search.setCatalogue(shared(lettersCatalogue()));
        std::vector<PlayTask> tasks;
        for (int id = 1; id <= count; ++id) {
            PlayTask task = taskFrom("1 2027.03.11-2027.03.11");
            task.id = id;
            task.startDate = dateToText(today().addDays(id * 7));
            task.endDate = dateToText(today().addDays(id * 7 + (id % 5 == 0 ? 7 : 6)));
            PlayPlan plan = planFromText(QStringLiteral("00:00:00-01:00:00 A N B"));
            for (int row = 0; row < 10; ++row) {
                plan.id = row + 1;
                plan.startTime = timeToText(QTime(8 + row, 0));
                plan.endTime = timeToText(QTime(9 + row, row % 3));
                task.plans.push_back(plan);
            }
            follower.put(task);
            tasks.push_back(std::move(task));
        }
        follower.take();
        const double start = processorTime();
        for (int edit = 0; edit < 300; ++edit) {
            PlayTask& task = tasks[static_cast<std::size_t>(edit * 37 % count)];
            task.plans[3].endTime = timeToText(QTime(12, edit % 60));
            task.endDate = dateToText(dateFromText(task.endDate).addDays(edit % 2 == 0 ? 1 : -1));
            follower.put(task);
            follower.take();
        }
        return processorTime() - start;
    };
    const double few = std::min({edits(100), edits(100), edits(100)});
    const double many = std::min({edits(1000), edits(1000), edits(1000)});
    qInfo("an edit of 1,000 tasks costs %.2f times one of 100", many / few);
    QVERIFY2(many < 2 * few, "an edit costs what there is");
}

TREL_TEST(tst_ProblemSearch, trel::tests::NoApplication)
#include "tst_ProblemSearch.moc"
