#pragma once

#include <functional>
#include <string>

namespace bench {

/// Does one of the two things that are compared, once, and tells what it cost: in seconds, or in
/// bytes. What has to be made ready or cleared away around it is its own business and not counted.
using Lane = std::function<double()>;

/// One row of the table: a ratio of two costs, and how large it may be.
struct Comparison
{
    std::string name; ///< What is done, and against what it is held. No slash.
    std::string size; ///< How much of it. No slash.
    double target = 1.0;
    Lane subject;
    Lane floor;
    int rounds = 15; ///< Both lanes run once in each.
    /// Left out of the quick run, which takes a third of the rounds.
    bool isLong = false;
    /// Comparisons of one group share a process, as they share what they measure. Without a group
    /// each has a process of its own: what the memory has been used for before makes a difference.
    std::string group = {};
};

/// Reads the options out of the command line: those of the benchmark library, and
///   --quick        fewer rounds, and nothing that is long
///   --groups       has run() print the names of the groups, a line each, and measure nothing
///   --group=NAME   only what is in that group
/// To be called before the first add(). Unknown options end the program.
void initialize(int& argc, char** argv);
bool isQuick();

/// Enters a comparison. In each round the lanes run one after the other, in turns of who is first,
/// so that whatever else the machine is doing falls on both. The ratio is that of the medians.
void add(const Comparison& comparison);

/// Runs what has been entered and what the options ask for, which may be nothing. What is measured
/// goes by on the error stream.
void run();

/// The seconds of processor time that something takes. A machine that works for others as well
/// does not show in them.
double processorSeconds(const std::function<void()>& action);
/// The same of the thread that calls alone.
double threadSeconds(const std::function<void()>& action);
/// The processor time that the thread that calls has taken so far, in seconds.
double threadTime();
/// The seconds that pass meanwhile, which is what waiting for a disk or another process costs.
double wallSeconds(const std::function<void()>& action);
/// The bytes on the heap that something leaves behind.
double heapBytes(const std::function<void()>& action);

} // namespace bench
