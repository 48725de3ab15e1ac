#include "Comparison.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <ctime>
#include <iostream>
#include <vector>

namespace bench {

namespace {

bool quick = false;

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

int roundsOf(const Comparison& comparison)
{
    return quick ? std::max(1, comparison.rounds / 3) : comparison.rounds;
}

void measure(benchmark::State& state, const Comparison& comparison)
{
    std::vector<double> subject;
    std::vector<double> floor;
    bool isSubjectFirst = false;
    while (state.KeepRunning()) {
        if (isSubjectFirst) {
            subject.push_back(comparison.subject());
        }
        floor.push_back(comparison.floor());
        if (!isSubjectFirst) {
            subject.push_back(comparison.subject());
        }
        isSubjectFirst = !isSubjectFirst;
    }
    state.counters["subject"] = median(subject);
    state.counters["floor"] = median(floor);
    state.counters["ratio"] = median(subject) / median(floor);
    state.counters["target"] = comparison.target;
}

double seconds(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

} // namespace

void initialize(int& argc, char** argv)
{
    char** const end = argv + argc;
    char** const rest = std::remove_if(
        argv + 1, end, [](const char* text) { return !std::strcmp(text, "--quick"); });
    quick = rest != end;
    argc = static_cast<int>(rest - argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        std::exit(2);
    }
}

bool isQuick()
{
    return quick;
}

void add(const Comparison& comparison)
{
    if (quick && comparison.isLong) {
        return;
    }
    const std::string name = comparison.name + '/' + comparison.size;
    benchmark::RegisterBenchmark(
        name.c_str(), [comparison](benchmark::State& state) { measure(state, comparison); })
        ->Iterations(roundsOf(comparison))
        ->Unit(benchmark::kMillisecond);
}

void run()
{
    // What goes by while it runs is news for whoever waits; the table is made of the results.
    benchmark::ConsoleReporter console(benchmark::ConsoleReporter::OO_None);
    console.SetOutputStream(&std::cerr);
    console.SetErrorStream(&std::cerr);
    benchmark::RunSpecifiedBenchmarks(&console);
    // What lanes have kept goes while the application is still there.
    benchmark::ClearRegisteredBenchmarks();
}

double processorSeconds(const std::function<void()>& action)
{
    const double start = seconds(CLOCK_PROCESS_CPUTIME_ID);
    action();
    return seconds(CLOCK_PROCESS_CPUTIME_ID) - start;
}

double threadSeconds(const std::function<void()>& action)
{
    const double start = seconds(CLOCK_THREAD_CPUTIME_ID);
    action();
    return seconds(CLOCK_THREAD_CPUTIME_ID) - start;
}

double wallSeconds(const std::function<void()>& action)
{
    const double start = seconds(CLOCK_MONOTONIC);
    action();
    return seconds(CLOCK_MONOTONIC) - start;
}

double heapBytes(const std::function<void()>& action)
{
    const double before = bytesInUse();
    action();
    return bytesInUse() - before;
}

} // namespace bench
