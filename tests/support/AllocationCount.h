#pragma once

#include <cstddef>

/// Counts the objects that the program makes on the heap, wherever in it or in its libraries that
/// happens, by taking the place of the global operator new. Buffers of the toolkit's own texts and
/// lists are no objects and do not count.
class AllocationCount
{
public:
    /// Counts from here on.
    AllocationCount();

    std::size_t count() const;

private:
    std::size_t m_before;
};
