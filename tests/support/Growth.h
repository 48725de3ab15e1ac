#pragma once

#include <algorithm>
#include <ctime>
#include <functional>

/// Processor time of this thread, in seconds. What else the machine does hardly shows in it.
inline double processorTime()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// How much more a thing costs in a large number than in a small one: 1 where the time grows with
/// the number, and as much as the number where it grows with its square. The work is done once with
/// the large number and three times with the small one, of which the least counts; it tells its
/// processor time.
inline double growth(int few, int many, const std::function<double(int)>& work)
{
    const double less = std::min({work(few), work(few), work(few)}) / few;
    return work(many) / many / less;
}
