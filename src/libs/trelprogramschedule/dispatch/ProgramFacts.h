#pragma once

#include "trelprogramschedule/dispatch/ScreenInsertion.h"

#include <map>
#include <optional>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace trel::mediadispatch {

struct PlayPlan;
struct PlayTask;
struct ProgramIten;

/// All that the plans of a schedule can tell of the catalogue on screen: for each program that they
/// use whether it can play, and for how long. Schedules with equal facts show the same.
class ProgramFacts
{
public:
    ProgramFacts() = default;
    ProgramFacts(const std::map<int, PlayTask>& tasks, const ScreenInsertions& insertions,
                 const std::map<int, ProgramIten>& programs);

    friend bool operator==(const ProgramFacts& a, const ProgramFacts& b)
    {
        return a.m_facts == b.m_facts;
    }
    friend bool operator!=(const ProgramFacts& a, const ProgramFacts& b) { return !(a == b); }

private:
    /// Whether it is null, whether it has a length of its own, and its length; nothing of a program
    /// that the catalogue lacks.
    using Fact = std::optional<std::tuple<bool, bool, double>>;

    std::unordered_map<int, Fact> m_facts;
};

} // namespace trel::mediadispatch
