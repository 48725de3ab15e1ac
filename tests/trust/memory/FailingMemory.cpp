#include "FailingMemory.h"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <new>

// The system's own, under the names that stay when others take their place.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier)
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)
}

namespace {

struct State
{
    bool isArmed;
    bool isForGood;
    bool hasFailed;
    bool isForObjects;
    long nth;
    long count;
    const void* refused;
};

// Known before any code runs, so that asking for it allocates nothing.
__attribute__((tls_model("initial-exec"))) thread_local State state = {};

bool fails(const void* caller, bool isObject = false)
{
    if (!state.isArmed || (state.isForObjects && !isObject)) {
        return false;
    }
    ++state.count;
    const bool isDue = state.isForGood ? state.count >= state.nth : state.count == state.nth;
    if (isDue) {
        state.refused = state.hasFailed ? state.refused : caller;
        state.hasFailed = true;
        errno = ENOMEM;
    }
    return isDue;
}

} // namespace

#define TRUST_EXPORT __attribute__((visibility("default")))

extern "C" {

TRUST_EXPORT void* malloc(std::size_t size)
{
    return fails(__builtin_return_address(0)) ? nullptr : __libc_malloc(size);
}

TRUST_EXPORT void* calloc(std::size_t count, std::size_t size)
{
    return fails(__builtin_return_address(0)) ? nullptr : __libc_calloc(count, size);
}

TRUST_EXPORT void* realloc(void* memory, std::size_t size)
{
    return fails(__builtin_return_address(0)) ? nullptr : __libc_realloc(memory, size);
}

TRUST_EXPORT void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return fails(__builtin_return_address(0)) ? nullptr : __libc_memalign(alignment, size);
}

TRUST_EXPORT int posix_memalign(void** memory, std::size_t alignment, std::size_t size)
{
    if (fails(__builtin_return_address(0))) {
        return ENOMEM;
    }
    *memory = __libc_memalign(alignment, size);
    return *memory == nullptr ? ENOMEM : 0;
}

} // extern "C"

TRUST_EXPORT void* operator new(std::size_t size)
{
    void* const memory =
        fails(__builtin_return_address(0), true) ? nullptr : __libc_malloc(size > 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

TRUST_EXPORT void operator delete(void* memory) noexcept
{
    std::free(memory);
}

TRUST_EXPORT void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void FailingMemory::failAt(long nth, Lasting lasting, Kind kind)
{
    state = {true, lasting == Lasting::ForGood, false, kind == Kind::Objects, nth, 0, nullptr};
}

void FailingMemory::heal()
{
    state.isArmed = false;
}

long FailingMemory::count()
{
    return state.count;
}

bool FailingMemory::hasFailed()
{
    return state.hasFailed;
}

const void* FailingMemory::refused()
{
    return state.refused;
}
