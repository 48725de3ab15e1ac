#include "service/ProgramUses.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

PlayPlan plan(int id, std::initializer_list<int> programs)
{
    PlayPlan plan;
    plan.id = id;
    for (const int program : programs) {
        struProgInfo entry;
        entry.progIndex = program;
        plan.programs.push_back(entry);
    }
    return plan;
}

/// Two tasks: one filed under another number than its own, one with an entry that has gone bad.
std::map<int, PlayTask> sampleTasks()
{
    PlayTask first;
    first.id = 9;
    first.plans = {plan(4, {7, 3, 7}), plan(5, {8})};
    PlayTask second;
    second.id = 2;
    second.plans = {plan(1, {}), plan(2, {3, kInvalidProgIndex, -1}), plan(3, {7, 8})};
    second.plans[2].programs[0].isInvalid = true;
    return {{1, first}, {2, second}};
}

} // namespace

class tst_ProgramUses : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsUsedInAnEmptySchedule();
    void plansAreNamedByTaskAndRow();
    void severalProgramsAreAskedForAtOnce();
    void whatHasGoneBadPlaysNothing();
    void everyProgramInUseIsNamedOnce();
};

void tst_ProgramUses::nothingIsUsedInAnEmptySchedule()
{
    QVERIFY(usesOf({}, {1}).empty());
    QVERIFY(usesOf(sampleTasks(), {}).empty());
    QVERIFY(usesOf(sampleTasks(), {11}).empty());
    QVERIFY(programsInUse({}).empty());
}

void tst_ProgramUses::plansAreNamedByTaskAndRow()
{
    const std::vector<ProgramUse> expected{{1, 0, 4, {3}, false}, {2, 1, 2, {3}, true}};
    QVERIFY(usesOf(sampleTasks(), {3}) == expected);
}

void tst_ProgramUses::severalProgramsAreAskedForAtOnce()
{
    const std::vector<ProgramUse> expected{
        {1, 0, 4, {3, 7}, true}, {1, 1, 5, {8}, true}, {2, 1, 2, {3}, true}, {2, 2, 3, {8}, true}};
    QVERIFY(usesOf(sampleTasks(), {8, 7, 3, 7}) == expected);
}

void tst_ProgramUses::whatHasGoneBadPlaysNothing()
{
    QVERIFY(usesOf(sampleTasks(), {-1, kInvalidProgIndex}).empty());
    const std::vector<ProgramUse> expected{{1, 0, 4, {7}, false}};
    QVERIFY(usesOf(sampleTasks(), {7}) == expected);
}

void tst_ProgramUses::everyProgramInUseIsNamedOnce()
{
    QCOMPARE(programsInUse(sampleTasks()), (std::vector<int>{3, 7, 8}));
}

TREL_TEST(tst_ProgramUses, trel::tests::NoApplication)
#include "tst_ProgramUses.moc"
