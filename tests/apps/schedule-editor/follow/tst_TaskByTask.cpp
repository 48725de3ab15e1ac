#include "clock/ClockChangeWork.h"
#include "support/AllocationCount.h"
#include "support/PlanRecords.h"
#include "week/WeekWork.h"

#include <QtTest>

#include <random>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;

namespace {

using Tasks = std::map<int, PlayTask>;
using Catalogue = std::map<int, ProgramIten>;

constexpr int kMostChanges = 24;

QString textOf(const WeekBlock& block)
{
    return QStringLiteral("%1/%2 %3-%4 %5 %6 %7%8%9 ")
               .arg(block.planId)
               .arg(block.row)
               .arg(block.from)
               .arg(block.to)
               .arg(static_cast<int>(block.never))
               .arg(block.listOver.value_or(-1))
               .arg(block.collides)
               .arg(block.hasNothing)
               .arg(block.hasMorePrograms) +
           block.start + block.end + block.programs.join(QLatin1Char(','));
}

QString textOf(const DayPiece& piece)
{
    return QStringLiteral("%1 %2 %3-%4 %5/%6 %7")
        .arg(piece.state)
        .arg(piece.claim)
        .arg(piece.from)
        .arg(piece.to)
        .arg(piece.lane)
        .arg(piece.lanes)
        .arg(piece.count);
}

QString textOf(const WeekStretch& stretch)
{
    return QStringLiteral("%1 %2-%3 %4 %5 ")
               .arg(stretch.kind)
               .arg(stretch.from)
               .arg(stretch.to)
               .arg(static_cast<int>(stretch.pass))
               .arg(stretch.row) +
           stretch.program;
}

/// Everything that stands in a week, a line a day.
QString textOf(const WeekLayout& week)
{
    QStringList days;
    for (const WeekColumn& day : week.days) {
        QStringList parts{day.date.toString(Qt::ISODate), QString::number(day.task.value_or(-1))};
        for (const WeekBlock& block : day.blocks) {
            parts.append(textOf(block));
        }
        for (const std::vector<DayPiece>& lane : day.lanes) {
            parts.append(QStringLiteral("lane"));
            for (const DayPiece& piece : lane) {
                parts.append(textOf(piece));
            }
        }
        for (const WeekStretch& stretch : day.stretches) {
            parts.append(textOf(stretch));
        }
        parts.append(QString::number(day.changes.size()));
        days.append(parts.join(QStringLiteral("; ")));
    }
    return days.join(QLatin1Char('\n'));
}

QString textOf(const ScreenState& state)
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8")
        .arg(static_cast<int>(state.reason))
        .arg(static_cast<int>(state.picture))
        .arg(state.taskId)
        .arg(state.planRow)
        .arg(state.progIndex)
        .arg(state.since)
        .arg(state.until)
        .arg(state.spanUntil);
}

follow::Cancellation cancelled()
{
    return {std::make_shared<const std::atomic<int>>(2), 1};
}

/// A schedule that is edited by chance, with the edits as a follower is told of them.
class EditedByChance
{
public:
    explicit EditedByChance(unsigned seed)
        : m_random(seed)
    {
        for (int index = 1; index <= 6; ++index) {
            changeProgram(index);
        }
        for (int id = 1; id <= 5; ++id) {
            putTask(id);
        }
        pending.isWhole = true;
    }

    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    void edit()
    {
        switch (below(12)) {
        case 0:
            changeProgram(1 + below(6));
            break;
        case 1:
            removeTask(1 + below(8));
            break;
        case 2:
            begin = QDate(2026, 3, 20).addDays(below(14));
            break;
        case 3:
            zone = QTimeZone(below(2) == 0 ? "Europe/Berlin" : "America/Sao_Paulo");
            tellAll();
            break;
        case 4:
            tellAll();
            break;
        case 5:
            movePlan(1 + below(8));
            break;
        default:
            putTask(1 + below(8));
            break;
        }
    }

    Tasks tasks;
    Catalogue programs;
    QTimeZone zone{"Europe/Berlin"};
    QDate begin{2026, 3, 23};
    follow::ScheduleEdits pending; ///< What was not told yet.

private:
    std::string time()
    {
        const int hour = below(24);
        return {char('0' + hour / 10),
                char('0' + hour % 10),
                ':',
                char('0' + below(6)),
                '0',
                ':',
                '0',
                '0'};
    }

    std::string date()
    {
        return below(20) == 0 ? "never"
                              : QDate(2026, 3, 18)
                                    .addDays(below(25))
                                    .toString(QStringLiteral("yyyy.MM.dd"))
                                    .toStdString();
    }

    PlayPlan plan(int id)
    {
        const std::vector<std::string> days{"0", "1,2", "3", "5,6,7", "7"};
        std::vector<struProgInfo> list;
        for (int i = below(4); i > 0; --i) {
            const int program = 1 + below(8);
            const int plays = 1 + below(3);
            list.push_back(entry(program, plays));
        }
        const std::string weeks = days[static_cast<std::size_t>(below(5))];
        // One draw a statement: the order of arguments is the compiler's.
        const bool isCounted = below(3) == 0;
        const std::string start = time();
        const std::string end = time();
        const int times = below(4);
        PlayPlan result = isCounted ? frequencyPlan(id, start, times, list, weeks)
                                    : timePlan(id, start, end, weeks);
        result.programs = list;
        result.endAction = below(2) == 0 ? BlackScreen : FreezeCurrentFrame;
        return result;
    }

    void tell(int id)
    {
        const auto task = tasks.find(id);
        pending.tasks[id] =
            task == tasks.end() ? nullptr : std::make_shared<const PlayTask>(task->second);
    }

    void tellAll()
    {
        pending.isWhole = true;
        pending.tasks.clear();
        for (const auto& [id, task] : tasks) {
            tell(id);
        }
    }

    void putTask(int id)
    {
        PlayTask task;
        task.id = id;
        task.startDate = date();
        task.endDate = below(8) == 0 ? "2026.11.30" : date();
        for (int i = below(6); i > 0; --i) {
            task.plans.push_back(plan(i));
        }
        tasks[id] = task;
        tell(id);
    }

    void movePlan(int id)
    {
        const auto task = tasks.find(id);
        if (task != tasks.end() && !task->second.plans.empty()) {
            task->second.plans.front().startTime = time();
            tell(id);
        }
    }

    void removeTask(int id)
    {
        if (tasks.erase(id) > 0) {
            tell(id);
        }
    }

    void changeProgram(int index)
    {
        ProgramIten& program = programs[index];
        program.progIndex = index;
        program.progName = "program " + std::to_string(below(100));
        program.durationMs = below(5) == 0 ? -1.0 : 60'000.0 * below(90);
        program.kind = below(6) == 0 ? ProgramKind::Image : ProgramKind::Video;
        program.isNull = below(6) == 0;
        pending.catalogue = std::make_shared<const Catalogue>(programs);
    }

    std::mt19937 m_random;
};

/// So many tasks of four plans, a day each from a Monday on.
follow::ScheduleEdits dailyTasks(int count)
{
    follow::ScheduleEdits all;
    all.isWhole = true;
    all.catalogue = std::make_shared<const Catalogue>();
    for (int id = 1; id <= count; ++id) {
        PlayTask task = taskWithPlans(
            {timePlan(1, "01:00:00", "02:30:00"), timePlan(2, "08:00:00", "09:00:00"),
             timePlan(3, "08:30:00", "10:00:00"), timePlan(4, "20:00:00", "21:00:00")},
            id);
        task.startDate =
            QDate(2026, 3, 22).addDays(id).toString(QStringLiteral("yyyy.MM.dd")).toStdString();
        task.endDate = task.startDate;
        all.tasks.emplace(id, std::make_shared<const PlayTask>(task));
    }
    return all;
}

/// The task of that Sunday, on which the clocks go forward, with another start.
follow::ScheduleEdits sundayMoved(const follow::ScheduleEdits& all)
{
    PlayTask task = *all.tasks.at(7);
    task.plans.front().startTime = "01:15:00";
    follow::ScheduleEdits edits;
    edits.tasks.emplace(7, std::make_shared<const PlayTask>(task));
    return edits;
}

struct Costs
{
    std::size_t first = 0;
    std::size_t edit = 0;
};

WeekFrame weekOfMarch()
{
    return {QDate(2026, 3, 23), QTimeZone("Europe/Berlin"), {}};
}

Costs costsOfWeek(int tasks)
{
    const follow::ScheduleEdits all = dailyTasks(tasks);
    WeekWork work;
    Costs costs;
    const AllocationCount first;
    work.order(all, weekOfMarch());
    work.make({});
    costs.first = first.count();
    work.order(sundayMoved(all), weekOfMarch());
    const AllocationCount edit;
    work.make({});
    costs.edit = edit.count();
    return costs;
}

Costs costsOfClocks(int tasks)
{
    const follow::ScheduleEdits all = dailyTasks(tasks);
    const QTimeZone berlin("Europe/Berlin");
    ClockChangeWork work;
    Costs costs;
    const AllocationCount first;
    work.order(all, berlin, QDate(2026, 3, 23));
    work.find(1, {});
    costs.first = first.count();
    work.order(sundayMoved(all), berlin, QDate(2026, 3, 23));
    const AllocationCount edit;
    work.find(1, {});
    costs.edit = edit.count();
    return costs;
}

} // namespace

/// What the panels keep of a schedule from edit to edit.
class tst_TaskByTask : public QObject
{
    Q_OBJECT

private slots:
    void picturesAreThoseMadeAfresh();
    void clockChangesAreThoseFoundAfresh();
    void cancelledWorkServesTheNext();
    void anEditCostsItsTask();
    void aPictureStaysAsItWas();
};

void tst_TaskByTask::picturesAreThoseMadeAfresh()
{
    for (unsigned seed = 1; seed <= 12; ++seed) {
        EditedByChance schedule(seed);
        WeekWork work;
        for (int step = 0; step < 80; ++step) {
            const WeekFrame frame{schedule.begin, schedule.zone, {}};
            work.order(std::exchange(schedule.pending, {}), frame);
            if (schedule.below(3) == 0) {
                QVERIFY(!work.make(cancelled()));
            }
            const std::optional<WeekPicture> picture = work.make({});
            QVERIFY(picture);
            const WeekSchedule afresh(schedule.tasks, schedule.programs, {}, schedule.zone);
            const QString where = QStringLiteral("seed %1, step %2\n").arg(seed).arg(step);
            QCOMPARE(where + textOf(*picture->layout),
                     where + textOf(afresh.layout(schedule.begin)));
            const Instant moment =
                QDateTime(schedule.begin, {}, schedule.zone).toMSecsSinceEpoch() +
                schedule.below(7 * 86'400) * qint64{1000};
            QCOMPARE(textOf(picture->schedule->at(moment)), textOf(afresh.at(moment)));
            schedule.edit();
        }
    }
}

void tst_TaskByTask::clockChangesAreThoseFoundAfresh()
{
    int found = 0;
    for (unsigned seed = 1; seed <= 36; ++seed) {
        EditedByChance schedule(seed);
        ClockChangeWork work;
        for (int step = 0; step < 80; ++step) {
            work.order(std::exchange(schedule.pending, {}), schedule.zone, schedule.begin);
            if (schedule.below(3) == 0) {
                QVERIFY(!work.find(kMostChanges, cancelled()));
            }
            const auto changes = work.find(kMostChanges, {});
            QVERIFY(changes);
            QVERIFY(*changes == nextClockChanges(schedule.tasks, schedule.programs, schedule.zone,
                                                 schedule.begin, kMostChanges));
            for (const TaskClockChange& change : *changes) {
                found += static_cast<int>(change.plans.size());
            }
            schedule.edit();
        }
    }
    QVERIFY(found > 100);
}

void tst_TaskByTask::cancelledWorkServesTheNext()
{
    const follow::ScheduleEdits all = dailyTasks(50);
    WeekWork work;
    work.order(all, weekOfMarch());
    QVERIFY(!work.make(cancelled()));
    work.order(sundayMoved(all), weekOfMarch());
    const std::optional<WeekPicture> picture = work.make({});
    QVERIFY(picture);
    QCOMPARE(picture->layout->days[0].blocks.size(), std::size_t{4});
    QCOMPARE(picture->layout->days[6].blocks[0].start, QStringLiteral("01:15:00"));
}

void tst_TaskByTask::anEditCostsItsTask()
{
    for (const auto& costsOf : {costsOfWeek, costsOfClocks}) {
        const Costs few = costsOf(40);
        const Costs many = costsOf(400);
        // The first look takes all tasks in, with an object for each at the least.
        QVERIFY2(many.first >= few.first + 360,
                 qPrintable(QStringLiteral("%1, with less %2").arg(many.first).arg(few.first)));
        QVERIFY2(many.edit < few.edit + 10,
                 qPrintable(QStringLiteral("%1, with less %2").arg(many.edit).arg(few.edit)));
    }
}

void tst_TaskByTask::aPictureStaysAsItWas()
{
    const follow::ScheduleEdits all = dailyTasks(20);
    WeekWork work;
    work.order(all, weekOfMarch());
    const std::optional<WeekPicture> former = work.make({});
    const QString before = textOf(*former->layout);
    work.order(sundayMoved(all), weekOfMarch());
    const std::optional<WeekPicture> next = work.make({});
    QCOMPARE(textOf(*former->layout), before);
    QCOMPARE(textOf(former->schedule->layout(weekOfMarch().first)), before);
    QVERIFY(textOf(*next->layout) != before);
}

QTEST_APPLESS_MAIN(tst_TaskByTask)
#include "tst_TaskByTask.moc"
