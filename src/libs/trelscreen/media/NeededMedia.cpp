#include "NeededMedia.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

/// What is looked at play by play: further ahead the order of the days will do.
constexpr std::chrono::milliseconds kAhead = std::chrono::hours(24);
constexpr int kMostPlays = 20'000;

/// Indexes of programs, each once, in the order in which they came.
class Order
{
public:
    void add(int index)
    {
        if (index >= 0 && m_known.insert(index).second) {
            m_indexes.push_back(index);
        }
    }
    std::vector<int> take() { return std::move(m_indexes); }

private:
    std::vector<int> m_indexes;
    std::set<int> m_known;
};

/// As if all files were there: a timeline passes over programs without one.
ScreenTimeline timelineOfAll(const ScreenSchedule& schedule)
{
    std::map<int, ProgramIten> programs = *schedule.catalogue;
    for (auto& [index, program] : programs) {
        program.isNull = false;
    }
    return {*schedule.tasks, programs, schedule.zone};
}

void addPlays(const ScreenSchedule& schedule, Instant from, Order& order)
{
    int plays = 0;
    timelineOfAll(schedule).visitPlays(from, from + kAhead.count(), schedule.insertions,
                                       [&](const ScreenState& state) {
                                           order.add(state.progIndex);
                                           return ++plays < kMostPlays;
                                       });
}

void addEntries(const std::vector<PlayPlan>& plans, Order& order)
{
    for (const PlayPlan& plan : plans) {
        for (const struProgInfo& entry : plan.programs) {
            if (!entry.isInvalid) {
                order.add(entry.progIndex);
            }
        }
    }
}

/// Those that are not over, by the day on which they begin.
void addTasks(const ScreenSchedule& schedule, Instant from, Order& order)
{
    const std::string today =
        schedule.timeline->local(from).date().toString(kDateFormat).toStdString();
    std::vector<const PlayTask*> tasks;
    for (const auto& [id, task] : *schedule.tasks) {
        if (task.endDate >= today) {
            tasks.push_back(&task);
        }
    }
    std::stable_sort(tasks.begin(), tasks.end(), [](const PlayTask* one, const PlayTask* other) {
        return one->startDate < other->startDate;
    });
    for (const PlayTask* task : tasks) {
        addEntries(task->plans, order);
    }
}

} // namespace

std::vector<int> programsNeeded(const ScreenSchedule& schedule, Instant from)
{
    Order order;
    if (schedule.start && schedule.tasks) {
        addPlays(schedule, from, order);
        for (const ScreenInsertion& insertion : schedule.insertions) {
            addEntries({insertion.plan}, order);
        }
        addTasks(schedule, from, order);
    }
    return order.take();
}

NeededFiles filesNeeded(const ScreenSchedule& schedule, const ProgramContents& contents,
                        Instant from)
{
    NeededFiles files;
    std::set<QByteArray> known;
    for (const int index : programsNeeded(schedule, from)) {
        const auto content = contents.find(index);
        const auto program = schedule.catalogue->find(index);
        if (content != contents.end() && program != schedule.catalogue->end() &&
            known.insert(content->second.sha256).second) {
            files.push_back({content->second, QString::fromStdString(program->second.progName)});
        }
    }
    return files;
}

} // namespace trel::screen
