#include "AllocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocations = 0;

} // namespace

// The forms for arrays and those that do not throw end here too.

void* operator new(std::size_t size)
{
    ++allocations;
    if (void* const memory = std::malloc(size > 0 ? size : 1)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

AllocationCount::AllocationCount()
    : m_before(allocations)
{}

std::size_t AllocationCount::count() const
{
    return allocations - m_before;
}
