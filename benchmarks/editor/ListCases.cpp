#include "ListCases.h"

#include "Comparison.h"
#include "Fixture.h"
#include "Measurements.h"
#include "PlainList.h"
#include "PlanList.h"
#include "QuietService.h"
#include "clock/Clock.h"

#include <QCoreApplication>
#include <QScrollArea>

#include <functional>
#include <memory>
#include <vector>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kAgainstPlain = 1.15;
constexpr double kAgainstNoPlans = 1.5;
constexpr double kManyAgainstNoPlans = 2.5;
constexpr int kPlansOfTask = 5;

/// A list in a window on show, as it is in the editor. It is laid out and painted as part of what
/// is measured.
template <typename List>
class ListWindow
{
public:
    explicit ListWindow(Look look)
        : m_list(new List)
    {
        setLook(look);
        m_area.setWidgetResizable(true);
        m_area.setWidget(m_list);
        m_area.resize(1140, 600);
        m_area.show();
        QCoreApplication::processEvents();
    }

    List& list() { return *m_list; }

private:
    QScrollArea m_area;
    List* m_list;
};

/// The machine's clock put forward, as the list adds nothing in the first second after a refresh.
class LaterClock : public Clock
{
public:
    LaterClock()
        : m_former(install(this))
    {}
    ~LaterClock() override { install(m_former); }

    QDateTime now() const override { return Clock::now().addSecs(60); }

private:
    const Clock* m_former;
};

/// What a list costs, in seconds but for the bytes.
struct Cost
{
    double refresh = 0.0;
    double bytes = 0.0;
    double add = 0.0;
    double remove = 0.0;
    double clear = 0.0;
};

/// What is done, and with it what follows in the event loop.
double seconds(const std::function<void()>& action)
{
    return processorSeconds([&] {
        action();
        QCoreApplication::processEvents();
    });
}

constexpr int kRounds = 9;
constexpr std::size_t kLongRounds = 3;
/// Plain widgets take so long for a long schedule that they build it once.
constexpr std::size_t kLongPlainRounds = 1;

/// A schedule that is shown as a list, by the editor and by plain widgets.
class Schedule
{
public:
    Schedule(int tasks, int plans, Look look = Look::Plain)
        : m_tasks(tasks)
        , m_plans(plans)
        , m_look(look)
    {}

    bool isLong() const { return m_tasks >= 1000; }
    /// What long schedules measure serves all rows of a group. Those of another begin afresh, with
    /// memory that no plain widgets have been in.
    std::string group(const std::string& what) const
    {
        return isLong() ? what + " of a list of " + size() : std::string();
    }
    int tasks() const { return m_tasks; }
    /// What a copy of its records takes.
    double recordBytes() const
    {
        TaskMap tasks;
        return heapBytes([&] { tasks = sampleTasks(m_tasks, m_plans); });
    }
    std::string size() const
    {
        return count(m_tasks, "tasks") +
               (m_plans == 0 ? " without plans" : " of " + std::to_string(m_plans) + " plans");
    }

    Cost editor()
    {
        return isLong() ? m_editor.next(kLongRounds, [this] { return measureEditor(); })
                        : measureEditor();
    }

    Cost plain()
    {
        return isLong() ? m_plain.next(kLongPlainRounds, [this] { return measurePlain(); })
                        : measurePlain();
    }

private:
    Cost measureEditor() const
    {
        ListWindow<PlanList> window(m_look);
        PlanList& list = window.list();
        QuietService::instance().tasks = sampleTasks(m_tasks, m_plans);
        Cost cost;
        cost.bytes = heapBytes([&] { cost.refresh = seconds([&] { list.refreshPlanList(); }); });
        const LaterClock later;
        cost.add = seconds([&] { list.slotAddOutput(); });
        cost.remove = seconds([&] { list.slotDeleteTask(1); });
        cost.clear = seconds([&] { list.slotclearPlanList(); });
        return cost;
    }

    Cost measurePlain() const
    {
        ListWindow<PlainList> window(m_look);
        const TaskMap tasks = sampleTasks(m_tasks, m_plans);
        Cost cost;
        cost.bytes =
            heapBytes([&] { cost.refresh = seconds([&] { window.list().build(tasks); }); });
        window.list().clear();
        return cost;
    }

    int m_tasks;
    int m_plans;
    Look m_look;
    Measurements<Cost> m_editor;
    Measurements<Cost> m_plain;
};

using SharedSchedule = std::shared_ptr<Schedule>;

int roundsOf(const Schedule& schedule)
{
    return schedule.isLong() ? static_cast<int>(kLongRounds) : kRounds;
}

void addSize(const SharedSchedule& schedule)
{
    const bool isLong = schedule->isLong();
    add({"Refresh the list, against plain widgets", schedule->size(), kAgainstPlain,
         [=] { return schedule->editor().refresh; }, [=] { return schedule->plain().refresh; },
         roundsOf(*schedule), isLong, schedule->group("floor")});
    add({"Memory of the list, against plain widgets", schedule->size(), kAgainstPlain,
         [=] { return schedule->editor().bytes; }, [=] { return schedule->plain().bytes; }, 1,
         isLong, schedule->group("floor")});
}

void addGrowth(const std::string& what, double Cost::*part, const SharedSchedule& few,
               const SharedSchedule& many)
{
    const int rounds = part == &Cost::bytes ? 1 : roundsOf(*many);
    add({what + ", against fewer tasks", many->size() + " against " + count(few->tasks(), "tasks"),
         linear(static_cast<double>(many->tasks()) / few->tasks()),
         [=] { return many->editor().*part; }, [=] { return few->editor().*part; }, rounds,
         many->isLong(), many->group("growth")});
}

void addGrowth(const SharedSchedule& few, const SharedSchedule& many)
{
    addGrowth("Refresh the list", &Cost::refresh, few, many);
    addGrowth("Memory of the list", &Cost::bytes, few, many);
    addGrowth("Clear the list", &Cost::clear, few, many);
    addGrowth("Add a task to the list", &Cost::add, few, many);
    addGrowth("Delete a task from the list", &Cost::remove, few, many);
}

/// All cards of a refreshed list are folded: what the plans of a schedule cost there.
void addPlans(int tasks, int plans, double target, bool withMemory)
{
    const auto bare = std::make_shared<Schedule>(tasks, 0);
    const auto full = std::make_shared<Schedule>(tasks, plans);
    add({"Refresh the list, against tasks without plans", full->size(), target,
         [=] { return full->editor().refresh; }, [=] { return bare->editor().refresh; }, kRounds});
    if (withMemory) {
        add({"Memory of the list less its records, against tasks without plans", full->size(),
             kAgainstNoPlans, [=] { return full->editor().bytes - full->recordBytes(); },
             [=] { return bare->editor().bytes - bare->recordBytes(); }, 1});
    }
}

} // namespace

void addListCases()
{
    std::vector<SharedSchedule> schedules;
    for (const int tasks : {10, 100, 1000}) {
        schedules.push_back(std::make_shared<Schedule>(tasks, kPlansOfTask));
        addSize(schedules.back());
    }
    addGrowth(schedules[0], schedules[1]);
    addGrowth(schedules[1], schedules[2]);
    // As many cards as the list takes.
    const auto bare = std::make_shared<Schedule>(1000, 0);
    const auto full = std::make_shared<Schedule>(9998, 0);
    addSize(full);
    addGrowth(bare, full);
    addPlans(100, 20, kAgainstNoPlans, false);
    addPlans(300, 60, kManyAgainstNoPlans, true);
    const auto someUnderTheme = std::make_shared<Schedule>(1000, kPlansOfTask, Look::Theme);
    const auto fullUnderTheme = std::make_shared<Schedule>(9998, kPlansOfTask, Look::Theme);
    addGrowth("Refresh the list under the theme", &Cost::refresh, someUnderTheme, fullUnderTheme);
}

} // namespace bench
