#include "schedule/ScheduleCheck.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::console;
using namespace trel::mediadispatch;

namespace {

PlayPlan plan(int id, const char* start, const char* end, const char* weeks = "")
{
    PlayPlan made;
    made.id = id;
    made.startTime = start;
    made.endTime = end;
    made.weeks = weeks;
    return made;
}

/// A plan in FrequencyMode of one program of ten seconds.
PlayPlan runs(int id, const char* start, int times, const char* staleEnd)
{
    PlayPlan made = plan(id, start, staleEnd);
    made.mode = FrequencyMode;
    made.times = times;
    made.programs = {{1, false, "ten seconds", 1}};
    return made;
}

std::map<int, PlayTask> oneTask(const std::vector<PlayPlan>& plans)
{
    PlayTask task;
    task.id = 3;
    task.startDate = "2024.01.01";
    task.endDate = "2024.01.31";
    task.plans = plans;
    return {{3, task}};
}

Catalogue catalogue()
{
    ProgramIten program;
    program.progIndex = 1;
    program.durationMs = 10000.0;
    ProgramIten image;
    image.progIndex = 2;
    return {{{1, program}, {2, image}}, [](int progIndex) { return progIndex == 2; }};
}

/// The end of each plan and, behind a blank, the row that it collides with.
QStringList lines(const std::vector<PlanState>& states)
{
    QStringList all;
    for (const PlanState& state : states) {
        const QString end = QString::fromStdString(state.end);
        all.append(state.collides() ? QStringLiteral("%1 %2").arg(end).arg(state.collidingRow)
                                    : end);
    }
    return all;
}

QStringList remarks(const ScheduleCheck& check)
{
    QStringList all;
    for (const ScheduleRemark& remark : check.remarks) {
        all.append(QStringLiteral("%1/%2 %3: %4")
                       .arg(QString::number(remark.taskId), QString::number(remark.row),
                            remark.field, remark.sentence));
    }
    return all;
}

} // namespace

class tst_ScheduleCheck : public QObject
{
    Q_OBJECT

private slots:
    void touchingPlansAreNormal();
    void laterPlanIsNamedWithTheFirstThatItMeets();
    void endsAreWorkedOutFromTheCatalogue();
    void overlapsAreListed();
    void remarksNameTaskRowAndField();
    void remarksNameWhatCannotPlay();
    void remarksNameWhatIsTakenForSomethingElse();
    void remarksHaveCodesForMachines();
    void remarksDoNotSpoilACheck();
    void emptyScheduleIsClean();
};

void tst_ScheduleCheck::touchingPlansAreNormal()
{
    QCOMPARE(lines(planStates({plan(1, "08:00:00", "09:00:00"), plan(2, "09:00:00", "10:00:00")},
                              catalogue())),
             (QStringList{QStringLiteral("09:00:00"), QStringLiteral("10:00:00")}));
}

void tst_ScheduleCheck::laterPlanIsNamedWithTheFirstThatItMeets()
{
    const std::vector<PlayPlan> plans = {
        plan(1, "08:00:00", "09:00:00", "1"), plan(2, "08:00:00", "09:00:00", "2"),
        plan(3, "08:30:00", "08:40:00", "2,3"), plan(4, "08:35:00", "08:50:00", "0")};
    QCOMPARE(lines(planStates(plans, catalogue())),
             (QStringList{QStringLiteral("09:00:00"), QStringLiteral("09:00:00"),
                          QStringLiteral("08:40:00 1"), QStringLiteral("08:50:00 0")}));
    const ScheduleCheck check = checkSchedule(oneTask(plans), catalogue());
    QVERIFY(!check.isClean());
    QCOMPARE(check.collisions.size(), std::size_t(2));
    QCOMPARE(check.collisions[1].taskId, 3);
    QCOMPARE(check.collisions[1].row, 3);
    QCOMPARE(check.collisions[1].earlierRow, 0);
}

void tst_ScheduleCheck::endsAreWorkedOutFromTheCatalogue()
{
    // The stored ends are stale: by them the first pair would not collide and the second would.
    QCOMPARE(lines(planStates({runs(1, "08:00:00", 3, "08:00:10"), plan(2, "08:00:20", "08:00:25")},
                              catalogue())),
             (QStringList{QStringLiteral("08:00:30"), QStringLiteral("08:00:25 0")}));
    QCOMPARE(lines(planStates({runs(1, "08:00:00", 1, "09:00:00"), plan(2, "08:00:20", "08:00:25")},
                              catalogue())),
             (QStringList{QStringLiteral("08:00:10"), QStringLiteral("08:00:25")}));
    PlayPlan withImage = runs(1, "08:00:00", 1, "09:00:00");
    withImage.programs[0].progIndex = 2;
    QCOMPARE(lines(planStates({withImage}, catalogue())),
             (QStringList{QStringLiteral("23:59:59")}));
}

void tst_ScheduleCheck::overlapsAreListed()
{
    std::map<int, PlayTask> tasks = oneTask({});
    tasks[5] = tasks[3];
    tasks[5].id = 5;
    tasks[7] = tasks[3];
    tasks[7].id = 7;
    tasks[7].startDate = "2024.02.01";
    tasks[7].endDate = "2024.02.10";
    const ScheduleCheck check = checkSchedule(tasks, catalogue());
    QVERIFY(check.overlaps == (std::vector<TaskOverlap>{{3, 5}}));
    QVERIFY(!check.isClean());
}

void tst_ScheduleCheck::remarksNameTaskRowAndField()
{
    std::map<int, PlayTask> tasks =
        oneTask({plan(1, "08:00:00", "09:00:00"), plan(2, "8:00:00", "24:00:00")});
    tasks[3].startDate = "2024.02.30";
    tasks[4].id = 4;
    tasks[4].startDate = "2024.02.02";
    tasks[4].endDate = "2024.02.01";
    tasks[5].id = 5;
    // A date that is none lies before no other.
    tasks[6].id = 6;
    tasks[6].startDate = "2024.02.02";
    tasks[6].endDate = "2024.02.00";
    QCOMPARE(
        remarks(checkSchedule(tasks, catalogue())),
        (QStringList{
            QStringLiteral("3/-1 startDate: \"2024.02.30\" is not a date in the form yyyy.MM.dd"),
            QStringLiteral("3/1 startTime: \"8:00:00\" is not a time in the form hh:mm:ss"),
            QStringLiteral("3/1 endTime: \"24:00:00\" is not a time in the form hh:mm:ss"),
            QStringLiteral("4/-1 endDate: \"2024.02.01\" lies before the start date"),
            QStringLiteral("5/-1 startDate: \"\" is not a date in the form yyyy.MM.dd"),
            QStringLiteral("5/-1 endDate: \"\" is not a date in the form yyyy.MM.dd"),
            QStringLiteral("6/-1 endDate: \"2024.02.00\" is not a date in the form yyyy.MM.dd"),
        }));
}

void tst_ScheduleCheck::remarksNameWhatCannotPlay()
{
    PlayPlan ofAnotherMode = runs(5, "10:00:00", -1, "11:00:00");
    ofAnotherMode.mode = 7;
    ofAnotherMode.endAction = 9;
    QCOMPARE(
        remarks(checkSchedule(oneTask({plan(4, "08:00:00", "09:00:00", "8"),
                                       runs(6, "09:00:00", 0, "09:00:00"), ofAnotherMode}),
                              catalogue())),
        (QStringList{
            QStringLiteral("3/0 weeks: Plan 4 never plays: none of its days is a day of the week"),
            QStringLiteral("3/1 times: Plan 6 never plays: its list is to run less than once"),
            QStringLiteral("3/2 mode: 7 is neither 0 nor 1; the list runs as often as with 1, and "
                           "the end is the one that is set, as with 0"),
            QStringLiteral("3/2 times: Plan 5 never plays: its list is to run less than once"),
            QStringLiteral("3/2 endAction: 9 is neither 0 nor 1; the last frame stays, as with 1"),
        }));
}

void tst_ScheduleCheck::remarksNameWhatIsTakenForSomethingElse()
{
    std::map<int, PlayTask> tasks =
        oneTask({plan(1, "+8:00:00", "09:00:00", "abc"), plan(2, "09:00:00", "10:00:00", "1;2"),
                 plan(3, "10:00:00", "11:00:00", "1,8"), plan(4, "11:00:00", "12:00:00", "0,7,1")});
    tasks[3].startDate = "2024.+1.02";
    QCOMPARE(remarks(checkSchedule(tasks, catalogue())),
             (QStringList{
                 QStringLiteral("3/-1 startDate: \"2024.+1.02\" is not a date in the form "
                                "yyyy.MM.dd; the screen takes it for 2024.01.02, but what collides "
                                "is found by the text as it is"),
                 QStringLiteral("3/0 startTime: \"+8:00:00\" is not a time in the form hh:mm:ss; "
                                "the screen takes it for 08:00:00, but what collides is found by "
                                "the text as it is"),
                 QStringLiteral("3/0 weeks: \"abc\" is not a list of days from 0 to 7; it counts "
                                "as every day"),
                 QStringLiteral("3/1 weeks: \"1;2\" is not a list of days from 0 to 7; it counts "
                                "as Mon"),
                 QStringLiteral("3/2 weeks: \"1,8\" is not a list of days from 0 to 7; it counts "
                                "as Mon,day 8"),
             }));
}

void tst_ScheduleCheck::remarksHaveCodesForMachines()
{
    PlayPlan odd = runs(5, "+8:00:00", 0, "25:00:00");
    odd.mode = 7;
    odd.endAction = 9;
    odd.weeks = "1;2";
    std::map<int, PlayTask> tasks = oneTask({odd, plan(6, "08:00:00", "09:00:00", "8")});
    tasks[3].startDate = "2024.02.02";
    tasks[3].endDate = "2024.02.01";
    tasks[4].id = 4;
    QStringList codes;
    for (const ScheduleRemark& remark : checkSchedule(tasks, catalogue()).remarks) {
        codes.append(QStringLiteral("%1 %2>%3").arg(remark.code, remark.value, remark.taken));
    }
    QCOMPARE(codes, (QStringList{
                        QStringLiteral("endBeforeStart 2024.02.01>"),
                        QStringLiteral("notATime +8:00:00>08:00:00"),
                        QStringLiteral("notATime 25:00:00>"),
                        QStringLiteral("notAListOfDays 1;2>1"),
                        QStringLiteral("unknownMode 7>"),
                        QStringLiteral("runsLessThanOnce 0>"),
                        QStringLiteral("unknownEndAction 9>"),
                        QStringLiteral("noDay 8>"),
                        QStringLiteral("notADate >"),
                        QStringLiteral("notADate >"),
                    }));
}

void tst_ScheduleCheck::remarksDoNotSpoilACheck()
{
    const ScheduleCheck check = checkSchedule(oneTask({plan(1, "8:00", "9:00:00")}), catalogue());
    QCOMPARE(check.remarks.size(), std::size_t(2));
    QVERIFY(check.isClean());
}

void tst_ScheduleCheck::emptyScheduleIsClean()
{
    const ScheduleCheck check = checkSchedule({}, catalogue());
    QVERIFY(check.isClean());
    QVERIFY(check.remarks.empty());
}

TREL_TEST(tst_ScheduleCheck, trel::tests::NoApplication)
#include "tst_ScheduleCheck.moc"
