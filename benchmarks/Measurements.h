#pragma once

#include <cstddef>
#include <vector>

namespace bench {

/// What takes long to build is built a few times only, everything about it is measured then, and
/// all rows of the table that ask for it share the measurements, in turn.
template <typename Cost>
class Measurements
{
public:
    /// Measures until there are so many measurements, and hands them out again afterwards.
    template <typename Measure>
    const Cost& next(std::size_t kept, Measure measure)
    {
        if (m_costs.size() < kept) {
            m_costs.push_back(measure());
            return m_costs.back();
        }
        return m_costs[m_next++ % m_costs.size()];
    }

private:
    std::vector<Cost> m_costs;
    std::size_t m_next = 0;
};

} // namespace bench
