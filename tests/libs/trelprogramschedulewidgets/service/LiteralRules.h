#pragma once

#include "service/PlanTiming.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The rules of times, days and conflicts spelled out step by step, with no thought of speed. The
/// tests and the benchmarks hold the quick ones against them.
namespace literal {

std::vector<std::string> split(const std::string& text);
bool parseWeeks(std::string weeks, std::vector<int>& numbers);
bool weeksOverlap(const std::string& a, const std::string& b);

/// Looks a program up, once for each entry; none when it is not in the catalogue.
using Lookup = std::function<std::optional<trel::mediadispatch::ProgramIten>(int progIndex)>;
Lookup lookupIn(const std::map<int, trel::mediadispatch::ProgramIten>& catalogue);

std::string addDuration(const std::string& start, int seconds);
std::string plannedEnd(const trel::mediadispatch::PlayPlan& plan, const Lookup& lookup,
                       const trel::mediadispatch::NoDurationTest& hasNoDuration);

/// For each plan whether the walk over all pairs marks it.
std::vector<bool> collidingPlans(const std::vector<trel::mediadispatch::PlayPlan>& plans,
                                 const Lookup& lookup,
                                 const trel::mediadispatch::NoDurationTest& hasNoDuration);

/// The overlaps that the walk over all pairs meets, each once.
std::vector<std::pair<int, int>>
taskOverlaps(const std::map<int, trel::mediadispatch::PlayTask>& tasks);

} // namespace literal
