// What the conflict pass costs of its own, against a walk over all pairs in the same run.

#include "service/PlanConflicts.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"

#include <QTime>

#include <benchmark/benchmark.h>

#include <random>

using namespace trel::mediadispatch;

namespace {

/// Claims of a few minutes each, on one or two days, so that few of them meet.
std::vector<PlanClaim> claims(std::size_t count)
{
    std::mt19937 random(20240310);
    std::vector<PlanClaim> list;
    for (std::size_t i = 0; i < count; ++i) {
        const QTime start = QTime(0, 0).addSecs(static_cast<int>(random() % 86000));
        const std::string weeks =
            std::to_string(1 + random() % 7) + ',' + std::to_string(1 + random() % 7);
        list.push_back({timeToText(start), timeToText(start.addSecs(60)), weeks});
    }
    return list;
}

bool collide(const PlanClaim& a, const PlanClaim& b)
{
    return weeksOverlap(a.weeks, b.weeks) &&
           (b.end < b.start || a.end < a.start || (a.start < b.end && b.start < a.end));
}

void everyPair(benchmark::State& state)
{
    const std::vector<PlanClaim> list = claims(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        std::vector<bool> collides(list.size());
        for (std::size_t i = 0; i < list.size(); ++i) {
            for (std::size_t j = i + 1; j < list.size(); ++j) {
                collides[j] = collides[j] || collide(list[i], list[j]);
            }
        }
        benchmark::DoNotOptimize(collides);
    }
}

void pass(benchmark::State& state)
{
    const std::vector<PlanClaim> list = claims(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(collidingClaims(list));
    }
}

} // namespace

BENCHMARK(everyPair)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK(pass)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);
