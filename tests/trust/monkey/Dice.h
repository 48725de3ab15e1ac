#pragma once

#include <cstdint>
#include <iterator>
#include <random>

/// What one action is drawn from. Each action has dice of its own, made of the seed and its number:
/// one that finds other windows than in another run does not change what the next ones draw.
class Dice
{
public:
    Dice(std::uint64_t seed, std::int64_t action)
        : m_engine(seed * 0x9E3779B97F4A7C15ULL + static_cast<std::uint64_t>(action))
    {
        m_engine.discard(1);
    }

    /// 0 to count - 1; 0 when there is nothing to choose from.
    int below(int count)
    {
        // Not a distribution of the library: what that draws is left to each implementation.
        return count < 1 ? 0 : static_cast<int>(m_engine() % static_cast<std::uint64_t>(count));
    }
    int between(int first, int last) { return first + below(last - first + 1); }
    /// True once in so many.
    bool oneIn(int count) { return below(count) == 0; }

    template <typename List>
    const auto& of(const List& list)
    {
        return *std::next(list.begin(), below(static_cast<int>(list.size())));
    }

private:
    std::mt19937_64 m_engine;
};
