#include "ListCases.h"

#include "Comparison.h"
#include "Fixture.h"
#include "PlainList.h"
#include "PlanList.h"
#include "QuietService.h"

#include <QCoreApplication>
#include <QScrollArea>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kAgainstPlain = 1.15;
constexpr int kPlansOfTask = 5;

/// A list in a window on show, as it is in the editor. It is laid out and painted as part of what
/// is measured.
template <typename List>
class ListWindow
{
public:
    ListWindow()
        : m_list(new List)
    {
        setLook(Look::Plain);
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

struct Cost
{
    double seconds = 0.0;
    double bytes = 0.0;
};

/// A schedule that is shown as a list, by the editor and by plain widgets. A long one takes too
/// long to be built for each row of the table anew; it keeps what it has cost the first time.
class Schedule
{
public:
    Schedule(int tasks, int plans)
        : m_tasks(tasks)
        , m_plans(plans)
        , m_isLong(tasks >= 1000)
    {}

    bool isLong() const { return m_isLong; }
    int tasks() const { return m_tasks; }
    std::string size() const
    {
        return count(m_tasks, "tasks of ") + std::to_string(m_plans) + " plans";
    }

    Cost editor()
    {
        return once(m_editorCost, [this] {
            ListWindow<PlanList> window;
            QuietService::instance().tasks = sampleTasks(m_tasks, m_plans);
            const Cost cost = measure([&] { window.list().refreshPlanList(); });
            window.list().slotclearPlanList();
            return cost;
        });
    }

    Cost plain()
    {
        return once(m_plainCost, [this] {
            ListWindow<PlainList> window;
            const TaskMap tasks = sampleTasks(m_tasks, m_plans);
            const Cost cost = measure([&] { window.list().build(tasks); });
            window.list().clear();
            return cost;
        });
    }

private:
    Cost once(std::optional<Cost>& kept, const std::function<Cost()>& run) const
    {
        if (!kept || !m_isLong) {
            kept = run();
        }
        return *kept;
    }

    static Cost measure(const std::function<void()>& build)
    {
        Cost cost;
        cost.bytes = heapBytes([&] {
            cost.seconds = processorSeconds([&] {
                build();
                QCoreApplication::processEvents();
            });
        });
        return cost;
    }

    int m_tasks;
    int m_plans;
    bool m_isLong;
    std::optional<Cost> m_editorCost;
    std::optional<Cost> m_plainCost;
};

using SharedSchedule = std::shared_ptr<Schedule>;

void addSize(const SharedSchedule& schedule)
{
    const int rounds = schedule->isLong() ? 1 : 9;
    add({"Refresh the list, against plain widgets", schedule->size(), kAgainstPlain,
         [=] { return schedule->editor().seconds; }, [=] { return schedule->plain().seconds; },
         rounds, schedule->isLong()});
    add({"Memory of the list, against plain widgets", schedule->size(), kAgainstPlain,
         [=] { return schedule->editor().bytes; }, [=] { return schedule->plain().bytes; }, 1,
         schedule->isLong()});
}

void addGrowth(const SharedSchedule& few, const SharedSchedule& many)
{
    const std::string size = many->size() + " against " + count(few->tasks(), "tasks");
    const double target = linear(static_cast<double>(many->tasks()) / few->tasks());
    add({"Refresh the list, against fewer tasks", size, target,
         [=] { return many->editor().seconds; }, [=] { return few->editor().seconds; },
         many->isLong() ? 1 : 9, many->isLong()});
    add({"Memory of the list, against fewer tasks", size, target,
         [=] { return many->editor().bytes; }, [=] { return few->editor().bytes; }, 1,
         many->isLong()});
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
}

} // namespace bench
