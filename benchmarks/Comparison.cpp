#include "Comparison.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <regex>
#include <vector>

namespace bench {

namespace {

struct Options
{
    bool isQuick = false;
    bool listsGroups = false;
    std::string group; ///< The only one to run; empty for all.
};

Options options;
std::vector<std::string> groups; ///< As they were entered.

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

int roundsOf(const Comparison& comparison)
{
    return options.isQuick ? std::max(1, comparison.rounds / 3) : comparison.rounds;
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

/// Whether the filter of the benchmark library lets a comparison through.
bool isAskedFor(const std::string& name)
{
    const std::string filter = benchmark::GetBenchmarkFilter();
    if (filter.empty() || filter == "all") {
        return true;
    }
    const bool isTurnedAround = filter.front() == '-';
    const std::regex pattern(filter.substr(isTurnedAround ? 1 : 0), std::regex::extended);
    return std::regex_search(name, pattern) != isTurnedAround;
}

/// What goes by while it runs is progress for the user; the table is made of the results.
class Progress : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& /*context*/) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            const benchmark::UserCounters& counters = run.counters;
            std::cerr << run.run_name.function_name << ": " << counters.at("ratio").value << " ("
                      << counters.at("subject").value << " / " << counters.at("floor").value
                      << ")\n";
        }
    }
};

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
    const std::string group = "--group=";
    char** const end = argv + argc;
    char** const rest = std::remove_if(argv + 1, end, [&group](const std::string& argument) {
        const bool isGroup = argument.compare(0, group.size(), group) == 0;
        if (isGroup) {
            options.group = argument.substr(group.size());
        }
        options.isQuick = options.isQuick || argument == "--quick";
        options.listsGroups = options.listsGroups || argument == "--groups";
        return isGroup || argument == "--quick" || argument == "--groups";
    });
    argc = static_cast<int>(rest - argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        std::exit(2);
    }
}

bool isQuick()
{
    return options.isQuick;
}

void add(const Comparison& comparison)
{
    const std::string name = comparison.name + '/' + comparison.size;
    const std::string& group = comparison.group.empty() ? name : comparison.group;
    const bool isLeftOut = options.isQuick && comparison.isLong;
    if (isLeftOut || !isAskedFor(name) || (!options.group.empty() && options.group != group)) {
        return;
    }
    if (std::find(groups.begin(), groups.end(), group) == groups.end()) {
        groups.push_back(group);
    }
    benchmark::RegisterBenchmark(
        name.c_str(), [comparison](benchmark::State& state) { measure(state, comparison); })
        ->Iterations(roundsOf(comparison))
        ->Unit(benchmark::kMillisecond);
}

void run()
{
    if (options.listsGroups) {
        for (const std::string& group : groups) {
            std::cout << group << '\n';
        }
    } else if (!groups.empty()) {
        Progress progress;
        benchmark::RunSpecifiedBenchmarks(&progress);
    }
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
    const double start = threadTime();
    action();
    return threadTime() - start;
}

double threadTime()
{
    return seconds(CLOCK_THREAD_CPUTIME_ID);
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
