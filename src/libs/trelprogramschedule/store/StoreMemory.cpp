#include "StoreMemory.h"

#include <sqlite3.h>

namespace trel::mediadispatch {

namespace {

/// What the database itself does to get memory.
sqlite3_mem_methods usualMemory = {};
void (*endProgram)() = nullptr;

void* orEnd(void* memory)
{
    if (memory == nullptr) {
        endProgram();
    }
    return memory;
}

void* allocate(int size)
{
    return orEnd(usualMemory.xMalloc(size));
}

void* reallocate(void* former, int size)
{
    return orEnd(usualMemory.xRealloc(former, size));
}

} // namespace

void endWithoutDatabaseMemory(void (*end)())
{
    endProgram = end;
    if (sqlite3_config(SQLITE_CONFIG_GETMALLOC, &usualMemory) == SQLITE_OK) {
        sqlite3_mem_methods methods = usualMemory;
        methods.xMalloc = allocate;
        methods.xRealloc = reallocate;
        sqlite3_config(SQLITE_CONFIG_MALLOC, &methods);
    }
}

} // namespace trel::mediadispatch
