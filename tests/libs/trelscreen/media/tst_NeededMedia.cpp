#include "support/TestProgram.h"
#include "trelscreen/media/NeededMedia.h"

#include <QtTest>

#include <initializer_list>

using namespace trel::mediadispatch;
using namespace trel::screen;

/// In which order a screen needs what it plays.
class tst_NeededMedia : public QObject
{
    Q_OBJECT

private slots:
    void soonestFirst();
    void fromTheMomentOn();
    void whatIsNotThereIsNeeded();
    void whatIsCutInComesFirst();
    void laterTasksAreNeededLast();
    void nothingInEffectNeedsNothing();
    void filesAreToldByWhatTheyHold();
};

namespace {

const QTimeZone kZone("Europe/Berlin");

PlayPlan plan(int id, const char* start, const char* end, std::initializer_list<int> programs)
{
    PlayPlan made;
    made.id = id;
    made.startTime = start;
    made.endTime = end;
    for (const int index : programs) {
        struProgInfo entry;
        entry.progIndex = index;
        made.programs.push_back(entry);
    }
    return made;
}

PlayTask task(int id, const char* start, const char* end, std::vector<PlayPlan> plans)
{
    PlayTask made;
    made.id = id;
    made.startDate = start;
    made.endDate = end;
    made.plans = std::move(plans);
    return made;
}

/// Programs 1 to 9, of a minute each.
std::map<int, ProgramIten> programs()
{
    std::map<int, ProgramIten> made;
    for (int index = 1; index < 10; ++index) {
        ProgramIten program;
        program.progIndex = index;
        program.progName = "program " + std::to_string(index);
        program.durationMs = 60'000;
        program.kind = ProgramKind::Video;
        made.emplace(index, program);
    }
    return made;
}

ScreenSchedule schedule(const std::vector<PlayTask>& tasks,
                        const std::map<int, ProgramIten>& catalogue = programs())
{
    std::map<int, PlayTask> filed;
    for (const PlayTask& one : tasks) {
        filed.emplace(one.id, one);
    }
    ScreenSchedule made;
    made.tasks = std::make_shared<const std::map<int, PlayTask>>(filed);
    made.catalogue = std::make_shared<const std::map<int, ProgramIten>>(catalogue);
    made.timeline = std::make_shared<const ScreenTimeline>(filed, catalogue, kZone);
    made.zone = kZone;
    made.start = EffectStart();
    return made;
}

Instant at(int hour, int day = 8)
{
    return QDateTime(QDate(2024, 1, day), QTime(hour, 0), kZone).toMSecsSinceEpoch();
}

/// A morning, a noon and an evening.
std::vector<PlayTask> day()
{
    return {task(1, "2024.01.01", "2024.01.31",
                 {plan(1, "12:00:00", "13:00:00", {3, 1}), plan(2, "08:00:00", "09:00:00", {2}),
                  plan(3, "20:00:00", "21:00:00", {1, 4})})};
}

using Indexes = std::vector<int>;

} // namespace

void tst_NeededMedia::soonestFirst()
{
    QVERIFY(programsNeeded(schedule(day()), at(7)) == (Indexes{2, 3, 1, 4}));
}

void tst_NeededMedia::fromTheMomentOn()
{
    QVERIFY(programsNeeded(schedule(day()), at(15)) == (Indexes{1, 4, 2, 3}));
}

void tst_NeededMedia::whatIsNotThereIsNeeded()
{
    std::map<int, ProgramIten> catalogue = programs();
    for (auto& [index, program] : catalogue) {
        program.isNull = true;
    }
    QVERIFY(programsNeeded(schedule(day(), catalogue), at(7)) == (Indexes{2, 3, 1, 4}));
}

void tst_NeededMedia::whatIsCutInComesFirst()
{
    ScreenSchedule made = schedule(day());
    ScreenInsertion cutIn;
    cutIn.number = 1;
    cutIn.taskId = 1;
    cutIn.planId = 1;
    cutIn.requested = at(7);
    cutIn.begins = at(7);
    cutIn.ends = at(8);
    cutIn.plan = plan(1, "07:00:00", "08:00:00", {9});
    made.insertions = {cutIn};
    QVERIFY(programsNeeded(made, at(7)) == (Indexes{9, 2, 3, 1, 4}));
}

void tst_NeededMedia::laterTasksAreNeededLast()
{
    std::vector<PlayTask> tasks = day();
    tasks.push_back(task(2, "2024.05.01", "2024.05.31", {plan(1, "08:00:00", "09:00:00", {7})}));
    tasks.push_back(task(3, "2024.03.01", "2024.03.31", {plan(1, "08:00:00", "09:00:00", {6, 2})}));
    tasks.push_back(task(4, "2023.03.01", "2023.03.31", {plan(1, "08:00:00", "09:00:00", {8})}));
    QVERIFY(programsNeeded(schedule(tasks), at(7)) == (Indexes{2, 3, 1, 4, 6, 7}));
}

void tst_NeededMedia::nothingInEffectNeedsNothing()
{
    ScreenSchedule made = schedule({});
    made.start.reset();
    QVERIFY(programsNeeded(made, at(7)).empty());
}

void tst_NeededMedia::filesAreToldByWhatTheyHold()
{
    ProgramContents contents;
    for (const int index : {1, 2, 3}) {
        ProgramContent content;
        content.size = index;
        // Two programs have the same file, and of one nothing is known.
        content.sha256 = QByteArray(64, index == 3 ? '2' : static_cast<char>('0' + index));
        contents.emplace(index, content);
    }
    const NeededFiles files = filesNeeded(schedule(day()), contents, at(7));
    QCOMPARE(files.size(), std::size_t(2));
    QCOMPARE(files[0].program, QStringLiteral("program 2"));
    QCOMPARE(files[1].content.sha256, QByteArray(64, '1'));
}

TREL_TEST(tst_NeededMedia, trel::tests::NoApplication)
#include "tst_NeededMedia.moc"
