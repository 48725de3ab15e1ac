#include "KeystrokeCases.h"

#include "Comparison.h"
#include "HostWindows.h"
#include "service/DateText.h"
#include "service/scheduleManage.h"

#include <QCoreApplication>
#include <QDate>
#include <QThreadPool>

#include <memory>
#include <string>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kTenTimes = 11.67;
constexpr double kFrame = 0.016;
constexpr int kProgramsInUse = 1000;
constexpr int kKeys = 10;
constexpr int kRounds = 5;

/// A day for each task, from the day before yesterday on, so that the week holds some of them.
TaskMap tasksFromNowOn(int count, int plans)
{
    TaskMap tasks = sampleTasks(count, plans);
    for (auto& [id, task] : tasks) {
        task.startDate = dateToText(QDate::currentDate().addDays(id - 3));
        task.endDate = task.startDate;
    }
    return tasks;
}

/// One task for good.
TaskMap taskWithPlans(int plans)
{
    TaskMap tasks = sampleTasks(1, plans);
    tasks.begin()->second.startDate = "2024.01.01";
    tasks.begin()->second.endDate = "2099.12.31";
    return tasks;
}

/// Another minute in the start of a plan, as a key in its field makes it.
void pressKey(PlayTask& task)
{
    std::string& start = task.plans.front().startTime;
    start[4] = start[4] == '9' ? '0' : static_cast<char>(start[4] + 1);
    scheduleManage::getInstance().addTask(task);
}

/// Until every picture shows the edit.
void settle()
{
    QCoreApplication::processEvents();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

/// What a key costs in a task of the week that is shown.
class Keys
{
public:
    explicit Keys(TaskMap tasks)
        : m_tasks(std::move(tasks))
    {}

    /// Whether what is not saved is written down meanwhile.
    enum class Draft { IsKept, IsNotKept };

    template <typename Measure>
    double measure(const Measure& measure, Draft draft = Draft::IsKept) const
    {
        HostWindows windows;
        windows.fill(kProgramsInUse, false, m_tasks);
        windows.showPanels();
        settle();
        if (draft == Draft::IsKept) {
            windows.journal().begin();
        }
        PlayTask task = m_tasks.size() > 2 ? m_tasks.at(3) : m_tasks.begin()->second;
        pressKey(task);
        settle();
        return measure([&task] {
                   for (int key = 0; key < kKeys; ++key) {
                       pressKey(task);
                       settle();
                   }
               }) /
               kKeys;
    }

private:
    TaskMap m_tasks;
};

void addKeys(const std::string& size, const TaskMap& many, const TaskMap& few, bool isLong)
{
    const auto ofMany = std::make_shared<const Keys>(many);
    const auto ofFew = std::make_shared<const Keys>(few);
    add({"A key, clocks and week shown, against fewer", size, kTenTimes,
         [ofMany] { return ofMany->measure(processorSeconds); },
         [ofFew] { return ofFew->measure(processorSeconds); }, kRounds, isLong});
    add({"A key on the interface thread, against fewer", size, kTenTimes,
         [ofMany] { return ofMany->measure(threadSeconds); },
         [ofFew] { return ofFew->measure(threadSeconds); }, kRounds, isLong});
    add({"A key on the interface thread, against fewer and a frame", size, 1.0,
         [ofMany] { return ofMany->measure(threadSeconds); },
         [ofFew] { return ofFew->measure(threadSeconds) + kFrame; }, kRounds, isLong});
}

/// The keys come as fast as they can, and so the journal writes as often as it ever does.
void addDrafts(const std::string& size, const TaskMap& tasks)
{
    const auto keys = std::make_shared<const Keys>(tasks);
    add({"A key with its draft on the interface thread, against one without", size, 1.05,
         [keys] { return keys->measure(threadSeconds); },
         [keys] { return keys->measure(threadSeconds, Keys::Draft::IsNotKept); }});
}

} // namespace

void addKeystrokeCases()
{
    addDrafts("100 tasks of 5 plans", tasksFromNowOn(100, 5));
    addDrafts("1,000 tasks of 5 plans", tasksFromNowOn(1000, 5));
    addKeys("1,000 tasks of 5 plans against 100 tasks", tasksFromNowOn(1000, 5),
            tasksFromNowOn(100, 5), false);
    addKeys("1,000 tasks of 60 plans against 100 tasks", tasksFromNowOn(1000, 60),
            tasksFromNowOn(100, 60), true);
    addKeys("9,998 tasks of 5 plans against 1,000 tasks", tasksFromNowOn(9998, 5),
            tasksFromNowOn(1000, 5), true);
    addKeys("1,000 plans in force for good against 100 plans", taskWithPlans(1000),
            taskWithPlans(100), false);
}

} // namespace bench
