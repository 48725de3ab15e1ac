#include "TaskSets.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// "removed 1 2 written 2 dated 3 plans 4:0 4:2".
QString line(const TaskEdits& edits)
{
    QStringList words;
    const auto add = [&words](const char* what, const auto& list, const auto& text) {
        if (!list.empty()) {
            words.append(QLatin1String(what));
        }
        for (const auto& one : list) {
            words.append(text(one));
        }
    };
    const auto idOf = [](const PlayTask* task) { return QString::number(task->id); };
    add("removed", edits.removed, [](int id) { return QString::number(id); });
    add("written", edits.written, idOf);
    add("dated", edits.dated, idOf);
    add("plans", edits.plans, [](const PlanEdit& edit) {
        return QStringLiteral("%1:%2").arg(edit.taskId).arg(edit.position);
    });
    return words.join(QLatin1Char(' '));
}

TaskSets setsOf(const TaskMap& tasks)
{
    TaskSets sets;
    sets.setStored(tasks);
    sets.resetWorking();
    return sets;
}

using Edit = void (*)(PlayTask&);

} // namespace

Q_DECLARE_METATYPE(Edit)

/// What the store is asked to write after an edit.
class tst_TaskSets : public QObject
{
    Q_OBJECT

private slots:
    void writesNoMoreThanAnEditNeeds_data();
    void writesNoMoreThanAnEditNeeds();
    void writesWholeWhatTheStoreHoldsOtherwise();
    void writesMarksWithAnEditAlone();
};

void tst_TaskSets::writesNoMoreThanAnEditNeeds_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("edits");
    const auto row = [](const char* name, Edit edit, const char* edits) {
        QTest::newRow(name) << edit << QString::fromLatin1(edits);
    };
    row(
        "nothing", [](PlayTask&) {}, "");
    row(
        "a date", [](PlayTask& task) { task.endDate = "2030.01.01"; }, "dated 2");
    row(
        "a field", [](PlayTask& task) { task.plans[1].times += 1; }, "plans 2:1");
    row(
        "fields of two plans",
        [](PlayTask& task) {
            task.plans[0].weeks = "7";
            task.plans[2].isConflict = !task.plans[2].isConflict;
        },
        "plans 2:0 2:2");
    row(
        "an entry", [](PlayTask& task) { task.plans[0].programs[0].playCount += 1; },
        "removed 2 written 2");
    row(
        "a list of the service", [](PlayTask& task) { task.plans[0].serviceList.push_back(1); },
        "removed 2 written 2");
    row(
        "a plan more", [](PlayTask& task) { task.plans.emplace_back(); }, "removed 2 written 2");
    row(
        "a plan less", [](PlayTask& task) { task.plans.pop_back(); }, "removed 2 written 2");
}

void tst_TaskSets::writesNoMoreThanAnEditNeeds()
{
    QFETCH(const Edit, edit);
    QFETCH(const QString, edits);
    TaskSets sets = setsOf(sampleSchedule(3, 3, 2));
    PlayTask task = sets.working().at(2);
    edit(task);
    sets.putTask(task);
    QCOMPARE(line(sets.edits()), edits);
    sets.commitWorking();
    QCOMPARE(line(sets.edits()), QString());
}

void tst_TaskSets::writesWholeWhatTheStoreHoldsOtherwise()
{
    TaskSets sets = setsOf(sampleSchedule(3, 3, 2));
    sets.updateTasks([](PlayTask& task) {
        task.plans[0].endTime = "23:00:00";
        return task.id == 3;
    });
    QCOMPARE(line(sets.edits()), QStringLiteral("removed 3 written 3"));
    sets.commitWorking();
    QCOMPARE(line(sets.edits()), QString());
}

// A mark follows from the catalogue and is no edit, but an edited task is saved with its marks.
void tst_TaskSets::writesMarksWithAnEditAlone()
{
    TaskSets sets = setsOf(sampleSchedule(3, 3, 2));
    sets.markLostEntries([](int) { return false; });
    sets.resetWorking();
    QCOMPARE(line(sets.edits()), QString());
    PlayTask task = sets.working().at(1);
    QVERIFY(task.plans[0].programs[0].isInvalid);
    task.plans[0].times += 1;
    sets.putTask(task);
    QCOMPARE(line(sets.edits()), QStringLiteral("removed 1 written 1"));
}

TREL_TEST(tst_TaskSets, trel::tests::NoApplication)

#include "tst_TaskSets.moc"
