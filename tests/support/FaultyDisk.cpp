#include "FaultyDisk.h"

#include <sqlite3.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <new>

namespace {

struct Fault
{
    int count = 0;
    int nth = 0; ///< 0 for none.
    bool isForGood = false;
    int systemError = 0;
};

std::array<Fault, FaultyDisk::CallCount> faults;
bool anyFailed = false;
int lastError = 0;
sqlite3_vfs* real = nullptr;
sqlite3_vfs faulty;

/// Whether this call is the one, or one of those, to fail.
bool fails(FaultyDisk::Call call)
{
    Fault& fault = faults[call];
    ++fault.count;
    const bool isDue =
        fault.nth > 0 && (fault.isForGood ? fault.count >= fault.nth : fault.count == fault.nth);
    if (isDue) {
        lastError = fault.systemError;
        anyFailed = true;
    }
    return isDue;
}

/// What the database makes of a failed write, by the system's error.
int writeError()
{
    return lastError == ENOSPC ? SQLITE_FULL : SQLITE_IOERR_WRITE;
}

struct File : sqlite3_file
{
    sqlite3_file* real; ///< Stands behind this object, in the same piece of memory.
};

sqlite3_file* realOf(sqlite3_file* file)
{
    return static_cast<File*>(file)->real;
}

int closeFile(sqlite3_file* file)
{
    sqlite3_file* const inner = realOf(file);
    return inner->pMethods == nullptr ? SQLITE_OK : inner->pMethods->xClose(inner);
}

int readFile(sqlite3_file* file, void* to, int size, sqlite3_int64 at)
{
    return fails(FaultyDisk::Read) ? SQLITE_IOERR_READ
                                   : realOf(file)->pMethods->xRead(realOf(file), to, size, at);
}

int writeFile(sqlite3_file* file, const void* from, int size, sqlite3_int64 at)
{
    return fails(FaultyDisk::Write) ? writeError()
                                    : realOf(file)->pMethods->xWrite(realOf(file), from, size, at);
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size)
{
    return fails(FaultyDisk::Truncate) ? SQLITE_IOERR_TRUNCATE
                                       : realOf(file)->pMethods->xTruncate(realOf(file), size);
}

int syncFile(sqlite3_file* file, int flags)
{
    return fails(FaultyDisk::Sync) ? SQLITE_IOERR_FSYNC
                                   : realOf(file)->pMethods->xSync(realOf(file), flags);
}

int sizeOfFile(sqlite3_file* file, sqlite3_int64* size)
{
    return fails(FaultyDisk::Size) ? SQLITE_IOERR_FSTAT
                                   : realOf(file)->pMethods->xFileSize(realOf(file), size);
}

int lockFile(sqlite3_file* file, int kind)
{
    return fails(FaultyDisk::Lock) ? SQLITE_IOERR_LOCK
                                   : realOf(file)->pMethods->xLock(realOf(file), kind);
}

int unlockFile(sqlite3_file* file, int kind)
{
    return realOf(file)->pMethods->xUnlock(realOf(file), kind);
}

int checkLock(sqlite3_file* file, int* result)
{
    return realOf(file)->pMethods->xCheckReservedLock(realOf(file), result);
}

int controlFile(sqlite3_file* file, int what, void* argument)
{
    return realOf(file)->pMethods->xFileControl(realOf(file), what, argument);
}

int sectorSize(sqlite3_file* file)
{
    return realOf(file)->pMethods->xSectorSize(realOf(file));
}

int characteristics(sqlite3_file* file)
{
    return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file));
}

int mapIndex(sqlite3_file* file, int page, int size, int extend, void volatile** to)
{
    return fails(FaultyDisk::Map)
               ? SQLITE_IOERR_SHMMAP
               : realOf(file)->pMethods->xShmMap(realOf(file), page, size, extend, to);
}

int lockIndex(sqlite3_file* file, int offset, int count, int flags)
{
    const bool isUnlock = (flags & SQLITE_SHM_UNLOCK) != 0;
    return !isUnlock && fails(FaultyDisk::Lock)
               ? SQLITE_IOERR_SHMLOCK
               : realOf(file)->pMethods->xShmLock(realOf(file), offset, count, flags);
}

void fenceIndex(sqlite3_file* file)
{
    realOf(file)->pMethods->xShmBarrier(realOf(file));
}

int unmapIndex(sqlite3_file* file, int deletes)
{
    return realOf(file)->pMethods->xShmUnmap(realOf(file), deletes);
}

/// Without the mapping of the database itself, so that every page is read and written by a call.
constexpr sqlite3_io_methods kMethods = {
    2,         closeFile,  readFile,   writeFile,   truncateFile, syncFile,        sizeOfFile,
    lockFile,  unlockFile, checkLock,  controlFile, sectorSize,   characteristics, mapIndex,
    lockIndex, fenceIndex, unmapIndex, nullptr,     nullptr};

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* const own = static_cast<File*>(file);
    own->pMethods = nullptr;
    own->real = reinterpret_cast<sqlite3_file*>(own + 1);
    own->real->pMethods = nullptr;
    if (fails(FaultyDisk::Open)) {
        return SQLITE_CANTOPEN;
    }
    const int result = real->xOpen(real, name, own->real, flags, outFlags);
    if (own->real->pMethods != nullptr) {
        own->pMethods = &kMethods;
    }
    return result;
}

int deleteFile(sqlite3_vfs*, const char* name, int syncsFolder)
{
    return fails(FaultyDisk::Delete) ? SQLITE_IOERR_DELETE : real->xDelete(real, name, syncsFolder);
}

int systemErrorOf(sqlite3_vfs*, int size, char* text)
{
    return lastError != 0 ? lastError : real->xGetLastError(real, size, text);
}

} // namespace

FaultyDisk::FaultyDisk()
{
    heal();
    real = sqlite3_vfs_find(nullptr);
    faulty = *real;
    faulty.zName = "faulty";
    faulty.szOsFile = static_cast<int>(sizeof(File)) + real->szOsFile;
    faulty.xOpen = openFile;
    faulty.xDelete = deleteFile;
    faulty.xGetLastError = systemErrorOf;
    sqlite3_vfs_register(&faulty, 1);
}

FaultyDisk::~FaultyDisk()
{
    sqlite3_vfs_unregister(&faulty);
    sqlite3_vfs_register(real, 1);
}

void FaultyDisk::fail(Call call, int nth, Lasting lasting, int systemError)
{
    faults[call] = {0, nth, lasting == Lasting::ForGood, systemError};
}

void FaultyDisk::heal()
{
    faults = {};
    anyFailed = false;
    lastError = 0;
}

int FaultyDisk::count(Call call) const
{
    return faults[call].count;
}

bool FaultyDisk::hasFailed() const
{
    return anyFailed;
}
