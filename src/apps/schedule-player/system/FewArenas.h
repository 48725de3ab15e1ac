#pragma once

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace trel::player {

/// Has the allocator serve all threads from two arenas. By itself it makes new ones for new threads
/// and keeps in each what was given back there; every program that plays has threads of its own, so
/// that a player would grow by a megabyte with each of its first hundred programs.
///
/// To be called first of all in a program. Other allocators are left alone.
inline void keepToFewArenas()
{
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 2);
#endif
}

} // namespace trel::player
