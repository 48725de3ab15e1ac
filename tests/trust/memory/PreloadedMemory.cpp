// Loaded in front of a program: from its main() on, the allocation of the number in TRUST_FAIL_AT
// fails, and where TRUST_FAIL_FOR_GOOD is set all that follow. How many there were goes into the
// file of the name in TRUST_COUNT_INTO. Where a signal ends the program, the name of the file whose
// code raised it goes to the standard error, and that of the file whose code got no memory.

#include "FailingMemory.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include <dlfcn.h>
#include <execinfo.h>
#include <unistd.h>

namespace {

using Main = int (*)(int, char**, char**);
using Start = int (*)(Main, int, char**, void (*)(), void (*)(), void (*)(), void*);

Main programMain = nullptr;

constexpr int kDeepest = 64;

/// Whether what stands in a file only carries out what its callers wish, an end of the program too.
bool isTool(const char* name)
{
    constexpr const char* tools[] = {"libc.so",  "libstdc++.so", "libgcc_s.so",
                                     "ld-linux", "linux-vdso",   "preloaded_memory"};
    for (const char* const tool : tools) {
        if (std::strstr(name, tool) != nullptr) {
            return true;
        }
    }
    return false;
}

/// The file that some code stands in, an empty text where that is not known.
const char* fileOf(const void* code)
{
    Dl_info place = {};
    return code != nullptr && ::dladdr(code, &place) != 0 ? place.dli_fname : "";
}

/// Whether code of the language's own library is at work on an exception. What it does for memory
/// of threads is not.
bool isOnException(const void* code)
{
    Dl_info place = {};
    return ::dladdr(code, &place) != 0 && std::strstr(place.dli_fname, "libstdc++.so") != nullptr &&
           (place.dli_sname == nullptr || std::strcmp(place.dli_sname, "__cxa_thread_atexit") != 0);
}

void tell(const char* text)
{
    if (::write(STDERR_FILENO, text, std::strlen(text)) < 0) {
        return;
    }
}

void tellName(const char* what, const char* file)
{
    const char* const slash = std::strrchr(file, '/');
    tell(what);
    tell(slash == nullptr ? file : slash + 1);
    tell("\n");
}

void tellPlaceOfEnd(int signal, siginfo_t* information, void* /*context*/)
{
    FailingMemory::heal();
    tellName("no memory for ", fileOf(FailingMemory::refused()));
    // What the program does to itself in the name of an exception that nothing has caught.
    const bool isOwn = information->si_code == SI_TKILL;
    void* frames[kDeepest];
    const int depth = ::backtrace(frames, kDeepest);
    for (int i = 0; i < depth; ++i) {
        const char* const file = fileOf(frames[i]);
        if (*file != '\0' && (!isTool(file) || (isOwn && isOnException(frames[i])))) {
            tellName("ended within ", file);
            break;
        }
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void watchForEnds()
{
    void* frame = nullptr;
    ::backtrace(&frame, 1); // Loads what it needs.
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP}) {
        struct sigaction action = {};
        action.sa_sigaction = tellPlaceOfEnd;
        action.sa_flags = SA_SIGINFO;
        ::sigaction(signal, &action, nullptr);
    }
}

int countedMain(int count, char** arguments, char** environment)
{
    const char* const nth = std::getenv("TRUST_FAIL_AT");
    const char* const report = std::getenv("TRUST_COUNT_INTO");
    watchForEnds();
    FailingMemory::failAt(nth == nullptr ? 0 : std::atol(nth),
                          std::getenv("TRUST_FAIL_FOR_GOOD") == nullptr
                              ? FailingMemory::Lasting::Once
                              : FailingMemory::Lasting::ForGood);
    const int status = programMain(count, arguments, environment);
    FailingMemory::heal();
    if (report != nullptr) {
        if (std::FILE* const file = std::fopen(report, "w")) {
            std::fprintf(file, "%ld", FailingMemory::count());
            std::fclose(file);
        }
    }
    return status;
}

} // namespace

extern "C" __attribute__((visibility("default"))) int
// NOLINTNEXTLINE(bugprone-reserved-identifier)
__libc_start_main(Main main, int count, char** arguments, void (*initialise)(), void (*finish)(),
                  void (*finishLinker)(), void* stackEnd)
{
    programMain = main;
    const auto start = reinterpret_cast<Start>(dlsym(RTLD_NEXT, "__libc_start_main"));
    return start(countedMain, count, arguments, initialise, finish, finishLinker, stackEnd);
}
