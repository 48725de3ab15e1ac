#include "DraftWalk.h"

#include "support/SampleSchedule.h"

#include <random>

namespace {

constexpr int kTasks = 20;
constexpr int kNewTasks = 10;

} // namespace

DraftStep draftStep(unsigned seed, int step)
{
    std::mt19937 random(seed * 100003U + static_cast<unsigned>(step));
    const int id = 1 + static_cast<int>(random() % (kTasks + kNewTasks));
    if (random() % 8 == 0) {
        return {id, std::nullopt};
    }
    trel::mediadispatch::PlayTask task = everyFieldTask(id);
    task.plans.front().serviceCount = step;
    return {id, task};
}

std::map<int, trel::mediadispatch::PlayTask> draftWalkStart()
{
    return sampleSchedule(kTasks, 2, 2);
}
