#pragma once

#include "service/PlanTiming.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

/// The rules of times, days and conflicts spelled out step by step, with no thought of speed. The
/// tests hold the quick ones against them.
namespace literal {

std::vector<std::string> split(const std::string& text);
bool parseWeeks(std::string weeks, std::vector<int>& numbers);
bool weeksOverlap(const std::string& a, const std::string& b);

std::string addDuration(const std::string& start, int seconds);
std::string plannedEnd(const trel::mediadispatch::PlayPlan& plan,
                       const std::map<int, trel::mediadispatch::ProgramIten>& catalogue,
                       const trel::mediadispatch::NoDurationTest& hasNoDuration);

/// For each plan whether the walk over all pairs marks it.
std::vector<bool> collidingPlans(const std::vector<trel::mediadispatch::PlayPlan>& plans,
                                 const std::map<int, trel::mediadispatch::ProgramIten>& catalogue,
                                 const trel::mediadispatch::NoDurationTest& hasNoDuration);

/// The overlaps that the walk over all pairs meets, each once.
std::vector<std::pair<int, int>>
taskOverlaps(const std::map<int, trel::mediadispatch::PlayTask>& tasks);

} // namespace literal
