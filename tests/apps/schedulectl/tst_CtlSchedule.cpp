#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QtTest>

using namespace trel::mediadispatch;

/// The commands show and check.
class tst_CtlSchedule : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void emptyScheduleIsSaid();
    void showListsTasksAndPlans();
    void showAsJson();
    void showWorksOutEndsFromThePrograms();
    void showMarksWhatPlansHaveLost();
    void showTakesNumbersAsTheyAre();
    void checkFindsNothing();
    void checkNamesPairsAndPlans();
    void checkAsJson();
    void checkUsesTheEndsInForce();
    void remarksLeaveTheStatusAlone();

private:
    static PlayPlan runsOfClip(int id, const char* start, int times, const char* staleEnd);

    QSharedPointer<CtlFixture> m_fixture;
};

namespace {

const QString kShow = QStringLiteral("show");
const QString kCheck = QStringLiteral("check");
const QString kJson = QStringLiteral("--json");

/// Two tasks that share the last day of January.
CtlFixture::Schedule overlappingTasks()
{
    PlayTask second = januaryTask(2);
    second.startDate = "2024.01.31";
    second.endDate = "2024.02.10";
    return {{1, januaryTask(1)}, {2, second}};
}

} // namespace

/// Every test has a database with one program, a clip of a minute and a half.
void tst_CtlSchedule::init()
{
    m_fixture = QSharedPointer<CtlFixture>::create();
    m_fixture->writeClip(QStringLiteral("\u65b0\u95fb.wav"), 90000);
    QCOMPARE(m_fixture->onDatabase({QStringLiteral("import"), QStringLiteral("\u65b0\u95fb.wav")})
                 .status,
             0);
}

PlayPlan tst_CtlSchedule::runsOfClip(int id, const char* start, int times, const char* staleEnd)
{
    PlayPlan plan = timePlan(id, start, staleEnd, "0", 1);
    plan.mode = FrequencyMode;
    plan.times = times;
    return plan;
}

void tst_CtlSchedule::emptyScheduleIsSaid()
{
    const CtlResult text = m_fixture->onDatabase({kShow});
    QCOMPARE(text.status, 0);
    QCOMPARE(text.lines(), QStringList{QStringLiteral("There are no tasks.")});
    const CtlResult json = m_fixture->onDatabase({kShow, kJson});
    QCOMPARE(json.status, 0);
    QVERIFY(json.json()[QStringLiteral("tasks")].isArray());
}

void tst_CtlSchedule::showListsTasksAndPlans()
{
    PlayPlan first = timePlan(1, "08:00:00", "09:00:00", "", 1);
    first.programs.push_back({1, false, "again", 3});
    PlayPlan second = runsOfClip(4, "08:30:00", 2, "08:33:00");
    second.weeks = "3,1,7";
    second.endAction = FreezeCurrentFrame;
    PlayTask third = januaryTask(30);
    third.startDate = "2024.02.01";
    third.endDate = "2024.02.02";
    m_fixture->store({{1, januaryTask(1, {first, second})}, {30, third}});

    const CtlResult result = m_fixture->onDatabase({kShow});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    QCOMPARE(
        result.lines(),
        (QStringList{
            QStringLiteral("Task 1: 2024.01.01 \u2013 2024.01.31"),
            QStringLiteral("  Row  Plan  Days         From      To        Plays          "
                           "At the end    State                Programs"),
            QStringLiteral("    1     1  every day    08:00:00  09:00:00  until the end  "
                           "black screen  normal               \u65b0\u95fb, \u65b0\u95fb \u00d73"),
            QStringLiteral("    2     4  Wed,Mon,Sun  08:30:00  08:33:00  2 times        "
                           "last frame    collides with row 1  \u65b0\u95fb"),
            QString(),
            QStringLiteral("Task 30: 2024.02.01 \u2013 2024.02.02"),
            QStringLiteral("  no plans"),
        }));
}

void tst_CtlSchedule::showAsJson()
{
    PlayPlan second = runsOfClip(4, "08:30:00", 2, "00:00:00");
    second.weeks = "1,3";
    second.endAction = FreezeCurrentFrame;
    second.programs[0].playCount = 2;
    m_fixture->store({{1, januaryTask(1, {timePlan(1, "08:00:00", "09:00:00", "", 1), second})}});

    const CtlResult result = m_fixture->onDatabase({kShow, kJson});
    QCOMPARE(result.status, 0);
    const auto entries = [](int playCount) {
        return QJsonArray{QJsonObject{{QStringLiteral("index"), 1},
                                      {QStringLiteral("name"), QStringLiteral("\u65b0\u95fb")},
                                      {QStringLiteral("playCount"), playCount},
                                      {QStringLiteral("isInvalid"), false}}};
    };
    const QJsonObject firstPlan = {
        {QStringLiteral("row"), 1},
        {QStringLiteral("id"), 1},
        {QStringLiteral("mode"), 0},
        {QStringLiteral("days"), QJsonArray{0}},
        {QStringLiteral("startTime"), QStringLiteral("08:00:00")},
        {QStringLiteral("endTime"), QStringLiteral("09:00:00")},
        {QStringLiteral("times"), 1},
        {QStringLiteral("endAction"), 0},
        {QStringLiteral("programs"), entries(1)},
        {QStringLiteral("collidesWithRow"), QJsonValue::Null},
    };
    const QJsonObject secondPlan = {
        {QStringLiteral("row"), 2},
        {QStringLiteral("id"), 4},
        {QStringLiteral("mode"), 1},
        {QStringLiteral("days"), QJsonArray{1, 3}},
        {QStringLiteral("startTime"), QStringLiteral("08:30:00")},
        {QStringLiteral("endTime"), QStringLiteral("08:36:00")},
        {QStringLiteral("times"), 2},
        {QStringLiteral("endAction"), 1},
        {QStringLiteral("programs"), entries(2)},
        {QStringLiteral("collidesWithRow"), 1},
    };
    const QJsonObject task = {
        {QStringLiteral("id"), 1},
        {QStringLiteral("startDate"), QStringLiteral("2024.01.01")},
        {QStringLiteral("endDate"), QStringLiteral("2024.01.31")},
        {QStringLiteral("plans"), QJsonArray{firstPlan, secondPlan}},
    };
    QCOMPARE(result.json(), (QJsonObject{{QStringLiteral("database"), m_fixture->database()},
                                         {QStringLiteral("tasks"), QJsonArray{task}}}));
}

void tst_CtlSchedule::showWorksOutEndsFromThePrograms()
{
    m_fixture->store({{1, januaryTask(1, {runsOfClip(1, "23:59:00", 1, "00:00:00")})}});
    QVERIFY(m_fixture->onDatabase({kShow}).lines().last().contains(
        QStringLiteral("23:59:00  23:59:59  1 time ")));
}

void tst_CtlSchedule::showMarksWhatPlansHaveLost()
{
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", "", 1);
    plan.programs.push_back({1, true, "broken", 1});
    plan.programs.push_back({65536, true, "tomb (invalid)", 2});
    m_fixture->store({{1, januaryTask(1, {plan})}});
    QVERIFY(QFile::remove(m_fixture->path(QStringLiteral("\u65b0\u95fb.wav"))));
    QVERIFY(m_fixture->onDatabase({kShow}).lines().last().endsWith(
        QStringLiteral("\u65b0\u95fb (gone), broken (invalid), tomb (invalid) \u00d72")));
}

void tst_CtlSchedule::showTakesNumbersAsTheyAre()
{
    PlayPlan plan = timePlan(-1, "08:00:00", "09:00:00", "8,-2,3", 1);
    plan.mode = 7;
    plan.endAction = -7;
    m_fixture->store({{-5, januaryTask(-5, {plan})}});
    const CtlResult result = m_fixture->onDatabase({kShow});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.lines().first(), QStringLiteral("Task -5: 2024.01.01 \u2013 2024.01.31"));
    QVERIFY(result.text().contains(QStringLiteral(" day 8,day -2,Wed ")));
    // What they count as on screen; the numbers themselves are for programs.
    QVERIFY(result.text().contains(QStringLiteral(" 1 time  last frame ")));
    const QByteArray json = m_fixture->onDatabase({kShow, QStringLiteral("--json")}).out;
    QVERIFY(json.contains("\"mode\": 7,"));
    QVERIFY(json.contains("\"endAction\": -7,"));
}

void tst_CtlSchedule::checkFindsNothing()
{
    CtlResult result = m_fixture->onDatabase({kCheck});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.lines(), QStringList{QStringLiteral("No problems in 0 tasks with 0 plans.")});

    PlayTask second = januaryTask(2, {timePlan(1, "00:00:00", "23:59:59", "", 1)});
    second.startDate = "2024.02.01";
    second.endDate = "2024.02.10";
    PlayPlan night = timePlan(2, "09:00:00", "10:00:00", "", 1);
    night.endAction = FreezeCurrentFrame;
    m_fixture->store(
        {{1, januaryTask(1, {timePlan(1, "08:00:00", "09:00:00", "", 1), night})}, {2, second}});
    result = m_fixture->onDatabase({kCheck});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.lines(), QStringList{QStringLiteral("No problems in 2 tasks with 3 plans.")});
}

// In the words of the editor's list of problems.
void tst_CtlSchedule::checkNamesPairsAndPlans()
{
    CtlFixture::Schedule schedule = overlappingTasks();
    schedule[1].plans = {timePlan(3, "08:00:00", "09:00:00", "1,2", 1),
                         timePlan(5, "08:30:00", "09:30:00", "2,3", 1)};
    m_fixture->store(schedule);
    const CtlResult result = m_fixture->onDatabase({kCheck});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.err, QString());
    const QStringList lines = result.lines();
    QCOMPARE(
        lines.mid(0, 6),
        (QStringList{
            QStringLiteral("A save would be refused:"),
            QStringLiteral("  Task 2, as of 2024.01.31: The validity overlaps that of task 1 "
                           "from 2024.01.31 to 2024.01.31. Change the dates of one of the two "
                           "tasks. Until then nothing can be saved."),
            QString(),
            QStringLiteral("Errors:"),
            QStringLiteral("  Task 1, row 2, as of 2024.01.02: Plan 5 is in conflict with plan "
                           "3 in row 1 from 2024.01.02 on. Change the days or times of one of "
                           "the plans."),
            QString(),
        }));
    QCOMPARE(lines.value(6), QStringLiteral("Hints:"));
    QVERIFY(lines.contains(QStringLiteral(
        "  Task 1, as of 2024.01.01: No picture from 00:00:00 to 08:00:00 on: Mon, Tue. Add a "
        "plan, or let the plan before it end with its last frame.")));
}

void tst_CtlSchedule::checkAsJson()
{
    CtlFixture::Schedule schedule = overlappingTasks();
    schedule[2].plans = {timePlan(3, "08:00:00", "09:00:00", "1,2", 1),
                         timePlan(5, "8:30", "09:30:00", "2,3", 1)};
    m_fixture->store(schedule);
    const CtlResult result = m_fixture->onDatabase({kCheck, kJson});
    QCOMPARE(result.status, 1);
    QJsonObject found = result.json();
    const QJsonArray problems = found.take(QStringLiteral("problems")).toArray();
    QCOMPARE(problems.first().toObject(),
             (QJsonObject{
                 {QStringLiteral("kind"), QStringLiteral("tasksOverlap")},
                 {QStringLiteral("gravity"), QStringLiteral("refusal")},
                 {QStringLiteral("task"), 2},
                 {QStringLiteral("row"), QJsonValue(QJsonValue::Null)},
                 {QStringLiteral("plan"), QJsonValue(QJsonValue::Null)},
                 {QStringLiteral("otherTask"), 1},
                 {QStringLiteral("otherRow"), QJsonValue(QJsonValue::Null)},
                 {QStringLiteral("otherPlan"), QJsonValue(QJsonValue::Null)},
                 {QStringLiteral("entry"), QJsonValue(QJsonValue::Null)},
                 {QStringLiteral("program"), QJsonValue(QJsonValue::Null)},
                 {QStringLiteral("firstDate"), QStringLiteral("2024.01.31")},
                 {QStringLiteral("lastDate"), QStringLiteral("2024.01.31")},
                 {QStringLiteral("wrong"),
                  QStringLiteral("The validity overlaps that of task 1 from 2024.01.31 to "
                                 "2024.01.31.")},
                 {QStringLiteral("remedy"),
                  QStringLiteral("Change the dates of one of the two tasks. Until then nothing can "
                                 "be saved.")},
             }));
    QCOMPARE(problems.at(1).toObject().value(QStringLiteral("kind")).toString(),
             QStringLiteral("planNeverPlays"));
    QCOMPARE(problems.last().toObject().value(QStringLiteral("gravity")).toString(),
             QStringLiteral("hint"));
    QCOMPARE(
        found,
        (QJsonObject{
            {QStringLiteral("database"), m_fixture->database()},
            {QStringLiteral("saveWouldBeRefused"), true},
            {QStringLiteral("changedFiles"), QJsonArray()},
            {QStringLiteral("overlaps"),
             QJsonArray{QJsonObject{{QStringLiteral("tasks"), QJsonArray{1, 2}}}}},
            // As a byte string "8:30" comes behind every time of the day, so the plan is inverted.
            {QStringLiteral("collisions"),
             QJsonArray{QJsonObject{{QStringLiteral("task"), 2},
                                    {QStringLiteral("row"), 2},
                                    {QStringLiteral("plan"), 5},
                                    {QStringLiteral("collidesWithRow"), 1},
                                    {QStringLiteral("collidesWithPlan"), 3}}}},
            {QStringLiteral("remarks"),
             QJsonArray{QJsonObject{{QStringLiteral("task"), 2},
                                    {QStringLiteral("row"), 2},
                                    {QStringLiteral("field"), QStringLiteral("startTime")},
                                    {QStringLiteral("code"), QStringLiteral("notATime")},
                                    {QStringLiteral("value"), QStringLiteral("8:30")},
                                    {QStringLiteral("taken"), QJsonValue(QJsonValue::Null)}}}},
        }));
}

void tst_CtlSchedule::checkUsesTheEndsInForce()
{
    // Three runs of a minute and a half end at 08:04:30, whatever the plan has stored.
    m_fixture->store({{1, januaryTask(1, {runsOfClip(1, "08:00:00", 3, "08:00:01"),
                                          timePlan(2, "08:04:29", "08:10:00", "", 1)})}});
    const CtlResult late = m_fixture->onDatabase({kCheck});
    QCOMPARE(late.status, 1);
    QVERIFY(late.text().contains(QStringLiteral("Plan 2 is in conflict with plan 1 in row 1")));
    m_fixture->store({{1, januaryTask(1, {runsOfClip(1, "08:00:00", 3, "09:00:00"),
                                          timePlan(2, "08:04:30", "08:10:00", "", 1)})}});
    QCOMPARE(m_fixture->onDatabase({kCheck}).status, 0);
}

void tst_CtlSchedule::remarksLeaveTheStatusAlone()
{
    PlayTask task = januaryTask(4);
    task.endDate = "2023.12.31";
    m_fixture->store({{4, task}});
    const CtlResult result = m_fixture->onDatabase({kCheck});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.lines(),
             (QStringList{
                 QStringLiteral("Errors:"),
                 QStringLiteral("  Task 4: The task is never valid: “2024.01.01” to “2023.12.31” "
                                "is not a period. Choose a start date, and an end date that is not "
                                "before it."),
                 QString(),
                 QStringLiteral("Remarks:"),
                 QStringLiteral("  task 4, endDate: \"2023.12.31\" lies before the start date"),
             }));
}

TREL_TEST(tst_CtlSchedule, QCoreApplication)
#include "tst_CtlSchedule.moc"
