#include "support/PlanRecords.h"
#include "support/TestProgram.h"
#include "undo/EditWords.h"
#include "undo/EditedField.h"

#include <QtTest>

#include <functional>

using namespace trel::desktop::undo;
using namespace trel::mediadispatch;

namespace {

using Change = std::function<void(PlayTask&)>;

PlayTask task()
{
    return taskWithPlans(
        {timePlan(1, "08:00:00", "09:00:00"), frequencyPlan(2, "10:00:00", 2, {entry(1)})}, 7);
}

TaskEdits edited(const Change& change)
{
    PlayTask after = task();
    change(after);
    return {{7, std::make_shared<const PlayTask>(task()), std::make_shared<const PlayTask>(after)}};
}

} // namespace

Q_DECLARE_METATYPE(Change)

/// What a step of the operator is taken for, and what it is called.
class tst_EditedField : public QObject
{
    Q_OBJECT

private slots:
    void ofOneTask_data();
    void ofOneTask();
    void ofWholeTasks();
    void whatFollowsIsNoEdit();
};

void tst_EditedField::ofOneTask_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isOneField");
    const auto row = [](const char* tag, const Change& change, const char* name, bool isOneField) {
        QTest::newRow(tag) << change << QString::fromUtf8(name) << isOneField;
    };
    row(
        "first day", [](PlayTask& task) { task.startDate = "2024.02.01"; },
        "Task 7: first day 2024.03.01 → 2024.02.01", true);
    row(
        "last day", [](PlayTask& task) { task.endDate = "2024.02.01"; },
        "Task 7: last day 2024.03.31 → 2024.02.01", true);
    row(
        "both days",
        [](PlayTask& task) {
            task.startDate = "2024.02.01";
            task.endDate = "2024.02.01";
        },
        "Task 7 edited", false);
    row(
        "day and plan",
        [](PlayTask& task) {
            task.startDate = "2024.02.01";
            task.plans.pop_back();
        },
        "Task 7 edited", false);
    row(
        "plan at the end",
        [](PlayTask& task) { task.plans.push_back(timePlan(9, "01:00:00", "02:00:00")); },
        "Task 7, plan 9 added", false);
    row(
        "plan in front",
        [](PlayTask& task) {
            task.plans.insert(task.plans.begin(), timePlan(9, "01:00:00", "02:00:00"));
        },
        "Task 7, plan 9 added", false);
    row(
        "plan gone from the front", [](PlayTask& task) { task.plans.erase(task.plans.begin()); },
        "Task 7, plan 1 deleted", false);
    row(
        "plan gone from the end", [](PlayTask& task) { task.plans.pop_back(); },
        "Task 7, plan 2 deleted", false);
    row(
        "all plans gone", [](PlayTask& task) { task.plans.clear(); }, "Task 7 edited", false);
    row(
        "one gone, one other",
        [](PlayTask& task) {
            task.plans.pop_back();
            task.plans[0].endTime = "12:00:00";
        },
        "Task 7 edited", false);
    row(
        "two plans",
        [](PlayTask& task) {
            task.plans[0].endAction = FreezeCurrentFrame;
            task.plans[1].endAction = FreezeCurrentFrame;
        },
        "Task 7 edited", false);
    row(
        "start", [](PlayTask& task) { task.plans[0].startTime = "08:30:00"; },
        "Task 7, plan 1: start 08:00:00 → 08:30:00", true);
    row(
        "start, which the end follows",
        [](PlayTask& task) {
            task.plans[1].startTime = "11:00:00";
            task.plans[1].endTime = "11:05:00";
        },
        "Task 7, plan 2: start 10:00:00 → 11:00:00", true);
    row(
        "end", [](PlayTask& task) { task.plans[0].endTime = "09:30:00"; },
        "Task 7, plan 1: end 09:00:00 → 09:30:00", true);
    row(
        "runs", [](PlayTask& task) { task.plans[1].times = 5; }, "Task 7, plan 2: runs 2 → 5",
        true);
    row(
        "days", [](PlayTask& task) { task.plans[0].weeks = "5,1"; },
        "Task 7, plan 1: days every day → Mon, Fri", true);
    row(
        "programs", [](PlayTask& task) { task.plans[1].programs = {entry(2)}; },
        "Task 7, plan 2: other programs", true);
    row(
        "by time",
        [](PlayTask& task) {
            task.plans[1].mode = TimeMode;
            task.plans[1].endTime = "12:00:00";
        },
        "Task 7, plan 2: ends at a set time", true);
    row(
        "by runs", [](PlayTask& task) { task.plans[0].mode = FrequencyMode; },
        "Task 7, plan 1: ends after a number of runs", true);
    row(
        "frozen", [](PlayTask& task) { task.plans[0].endAction = FreezeCurrentFrame; },
        "Task 7, plan 1: the last frame at the end", true);
    row(
        "carried", [](PlayTask& task) { task.plans[0].serviceCount = 5; }, "Task 7, plan 1 edited",
        false);
}

void tst_EditedField::ofOneTask()
{
    QFETCH(const Change, change);
    QFETCH(const QString, name);
    QFETCH(const bool, isOneField);
    QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    const TaskEdits edits = edited(change);
    QVERIFY(!isSameToOperator(edits.front().before, edits.front().after));
    const EditedField field = editedField(edits);
    QCOMPARE(EditWords::name(field, edits, QLocale::c()), name);
    QCOMPARE(field.isOneField(), isOneField);
    QVERIFY(field == editedField(edits));
}

void tst_EditedField::ofWholeTasks()
{
    const auto known = std::make_shared<const PlayTask>(task());
    const auto name = [](const TaskEdits& edits) {
        return EditWords::name(editedField(edits), edits, QLocale::c());
    };
    QCOMPARE(name({{7, nullptr, known}}), QStringLiteral("Task 7 added"));
    QCOMPARE(name({{7, known, nullptr}}), QStringLiteral("Task 7 deleted"));
    const TaskEdits both = {{7, known, nullptr}, {8, nullptr, known}};
    QCOMPARE(editedField(both).kind, EditKind::Tasks);
    QVERIFY(!editedField(both).isOneField());
    QCOMPARE(EditWords::name({EditKind::ReadAgain}, both, QLocale::c()),
             QStringLiteral("Back to what is saved"));
}

void tst_EditedField::whatFollowsIsNoEdit()
{
    const TaskEdits edits = edited([](PlayTask& task) {
        task.plans[0].isConflict = true;
        task.plans[1].endTime = "11:11:11";
    });
    QVERIFY(isSameToOperator(edits.front().before, edits.front().after));
    QVERIFY(isSameToOperator(nullptr, nullptr));
    QVERIFY(!isSameToOperator(edits.front().before, nullptr));
}

TREL_TEST(tst_EditedField, QCoreApplication)
#include "tst_EditedField.moc"
