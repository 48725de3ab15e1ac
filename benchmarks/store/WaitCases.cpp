#include "WaitCases.h"

#include "Comparison.h"
#include "HostWindows.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QCoreApplication>

#include <numeric>
#include <string>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kTenTimes = 11.67;
constexpr double kFarLess = 0.1;
constexpr double kNoMore = 1.3;
constexpr double kAgainstNoPlans = 1.5;
constexpr double kFrameSeconds = 0.016;
constexpr int kTasks = 100;
constexpr int kManyTasks = 1000;
constexpr int kPlansOfTask = 5;
constexpr int kProgramsInUse = 1000;

std::vector<int> firstIndexes(int count)
{
    std::vector<int> indexes(static_cast<std::size_t>(count));
    std::iota(indexes.begin(), indexes.end(), 1);
    return indexes;
}

/// Takes programs out of the catalogue of a host whose editor has not been opened.
double remove(int programs, int removed, bool atOnce)
{
    HostWindows windows;
    windows.fill(programs, false, sampleTasks(kTasks, kPlansOfTask));
    const std::vector<int> indexes = firstIndexes(removed);
    return wallSeconds([&] {
        ScheduleHost& host = ScheduleHost::instance();
        if (atOnce) {
            host.removePrograms(indexes);
        } else {
            for (const int index : indexes) {
                host.removeProgram(index);
            }
        }
        QCoreApplication::processEvents();
    });
}

/// Opens a store, without what the thread of the watch does then.
double open(int programs, bool areFiles)
{
    HostWindows windows;
    windows.fill(programs, areFiles, sampleTasks(kTasks, kPlansOfTask));
    return wallSeconds([&windows] { windows.reopen(); });
}

enum class Edit { None, OneTask, EveryTask };

void edit(Edit what, int tasks)
{
    scheduleManage& manager = scheduleManage::getInstance();
    if (what == Edit::OneTask) {
        manager.addTask(sampleTask(tasks + 1, kPlansOfTask, TimeMode));
    }
    if (what == Edit::EveryTask) {
        for (const auto& [id, task] : manager.getAllTask()) {
            PlayTask edited = task;
            edited.plans.front().times = 2;
            manager.addTask(edited);
        }
    }
}

/// Saves what an open editor shows.
double save(int tasks, Edit what)
{
    HostWindows windows;
    windows.fill(kProgramsInUse, false, sampleTasks(tasks, kPlansOfTask));
    windows.showEditor();
    // The samples do not say which plans collide; the first save keeps what the cards say of it.
    scheduleManage::getInstance().save();
    edit(what, tasks);
    return wallSeconds([] { scheduleManage::getInstance().save(); });
}

/// Puts a schedule into effect.
double start(int plans)
{
    HostWindows windows;
    windows.fill(kProgramsInUse, false, sampleTasks(plans / kPlansOfTask, kPlansOfTask));
    return wallSeconds([] { scheduleManage::getInstance().slotOpen(); });
}

/// Opens the editor until it has painted its first picture.
template <typename Measure>
double openEditor(int plans, const Measure& measure)
{
    HostWindows windows;
    windows.fill(kProgramsInUse, false, sampleTasks(kManyTasks, plans));
    return measure([&windows] { windows.showEditor(); });
}

} // namespace

void addWaitCases()
{
    const std::string plans = "1,000 tasks of 5 plans";
    add({"Open the editor, against tasks without plans", plans, kAgainstNoPlans,
         [] { return openEditor(kPlansOfTask, processorSeconds); },
         [] { return openEditor(0, processorSeconds); }, 3});
    add({"Memory of the open editor, against tasks without plans", plans, kAgainstNoPlans,
         [] { return openEditor(kPlansOfTask, heapBytes); },
         [] { return openEditor(0, heapBytes); }, 1});

    add({"Remove programs, against one by one", "100 of 10,000 programs", kFarLess,
         [] { return remove(10000, 100, true); }, [] { return remove(10000, 100, false); }, 3});
    add({"Remove programs, against fewer", "1,000 of 10,000 against 100 of 1,000", kTenTimes,
         [] { return remove(10000, 1000, true); }, [] { return remove(1000, 100, true); }, 9});
    add({"Open a store of files, against live sources", "10,000 programs", kNoMore,
         [] { return open(10000, true); }, [] { return open(10000, false); }, 9});
    const auto addSave = [](const std::string& name, Edit what) {
        add({name + ", against fewer tasks", "1,000 tasks of 5 plans against 100 tasks", kTenTimes,
             [what] { return save(1000, what); }, [what] { return save(100, what); }, 5});
        add({name + ", against fewer tasks and a frame", "1,000 tasks of 5 plans against 10 tasks",
             1.0, [what] { return save(1000, what); },
             [what] { return save(10, what) + kFrameSeconds; }, 5});
    };
    addSave("Save what was not edited", Edit::None);
    addSave("Save one task of all", Edit::OneTask);
    addSave("Save every task", Edit::EveryTask);
    add({"Put a schedule into effect, against fewer plans", "50,000 against 5,000 plans", kTenTimes,
         [] { return start(50000); }, [] { return start(5000); }, 9});
    add({"Put a schedule into effect, against fewer plans and a frame", "50,000 against 500 plans",
         1.0, [] { return start(50000); }, [] { return start(500) + kFrameSeconds; }, 9});
}

} // namespace bench
