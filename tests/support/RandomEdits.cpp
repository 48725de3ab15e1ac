#include "RandomEdits.h"

#include "SampleSchedule.h"

#include <algorithm>
#include <limits>

using namespace trel::mediadispatch;

namespace {

constexpr int kMostIds = 8;

int below(int count, std::mt19937& random)
{
    return std::uniform_int_distribution<int>(0, count - 1)(random);
}

int anyNumber(std::mt19937& random)
{
    const int numbers[] = {0,
                           1,
                           2,
                           3,
                           7,
                           -1,
                           64,
                           65536,
                           99999,
                           std::numeric_limits<int>::min(),
                           std::numeric_limits<int>::max()};
    return numbers[below(int(std::size(numbers)), random)];
}

std::string anyText(std::mt19937& random)
{
    const char* const texts[] = {"",         "08:00:00",     "09:30:00", "2030.01.01", "1,3,5",
                                 "早间新闻", "caf\xe9 100%", "a\nb",     "%1 %2",      "2"};
    std::string text = texts[below(int(std::size(texts)), random)];
    return below(20, random) == 0 ? text + std::string(500, 'x') : text;
}

template <typename Element, typename Make>
void editList(std::vector<Element>& list, std::mt19937& random, const Make& make)
{
    const auto place = [&] { return list.begin() + below(static_cast<int>(list.size()), random); };
    switch (list.empty() ? 0 : below(4, random)) {
    case 0:
        list.insert(list.empty() ? list.end() : place(), make());
        break;
    case 1:
        list.erase(place());
        break;
    case 2:
        std::iter_swap(place(), place());
        break;
    default:
        *place() = make();
        break;
    }
}

void editEntry(struProgInfo& entry, std::mt19937& random)
{
    switch (below(4, random)) {
    case 0:
        entry.progIndex = anyNumber(random);
        break;
    case 1:
        entry.isInvalid = !entry.isInvalid;
        break;
    case 2:
        entry.progName = anyText(random);
        break;
    default:
        entry.playCount = anyNumber(random);
        break;
    }
}

void editPlan(PlayPlan& plan, std::mt19937& random)
{
    int* const numbers[] = {&plan.mode, &plan.id, &plan.times, &plan.serviceCount, &plan.endAction};
    bool* const marks[] = {&plan.isConflict, &plan.hasNoDuration, &plan.serviceFlagA,
                           &plan.serviceFlagB};
    std::string* const texts[] = {&plan.startTime, &plan.endTime, &plan.weeks, &plan.serviceTime};
    switch (below(6, random)) {
    case 0:
        *numbers[below(int(std::size(numbers)), random)] = anyNumber(random);
        break;
    case 1: {
        bool& mark = *marks[below(int(std::size(marks)), random)];
        mark = !mark;
        break;
    }
    case 2:
        *texts[below(int(std::size(texts)), random)] = anyText(random);
        break;
    case 3:
        editList(plan.serviceList, random, [&] { return std::int64_t(anyNumber(random)) * 77777; });
        break;
    case 4:
        editList(plan.programs, random, [&] {
            struProgInfo entry;
            editEntry(entry, random);
            return entry;
        });
        break;
    default:
        if (!plan.programs.empty()) {
            editEntry(plan.programs[std::size_t(below(int(plan.programs.size()), random))], random);
        }
        break;
    }
}

void editTask(PlayTask& task, std::mt19937& random)
{
    switch (below(6, random)) {
    case 0:
        (below(2, random) == 0 ? task.startDate : task.endDate) = anyText(random);
        break;
    case 1:
        editList(task.plans, random,
                 [&] { return samplePlan(below(kMostIds, random), below(4, random)); });
        break;
    default:
        if (!task.plans.empty()) {
            editPlan(task.plans[std::size_t(below(int(task.plans.size()), random))], random);
        }
        break;
    }
}

} // namespace

void editAtRandom(std::map<int, PlayTask>& tasks, std::mt19937& random)
{
    const int id = below(kMostIds, random);
    switch (below(12, random)) {
    case 0:
        tasks.erase(id);
        break;
    case 1:
        tasks[id] = everyFieldTask(id);
        break;
    case 2:
        tasks = sampleSchedule(below(kMostIds, random), below(3, random), below(3, random),
                               below(3, random));
        break;
    case 3:
        break;
    default:
        tasks[id].id = id;
        editTask(tasks[id], random);
        break;
    }
}
