#include "Confinement.h"

#include <cerrno>
#include <csignal>
#include <initializer_list>

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#if defined(TREL_ADDRESS_SANITIZER) || defined(TREL_THREAD_SANITIZER)
#define READER_IS_SANITIZED
#endif

#if defined(READER_HAS_SECCOMP) && !defined(READER_IS_SANITIZED)
#include <seccomp.h>
#define READER_IS_FILTERED
#endif

namespace trel::mediareader::confinement {

namespace {

/// What a process may take in all, were it to raise its own bound.
constexpr rlim_t kMostSeconds = 3600;

void limit(__rlimit_resource resource, rlim_t value)
{
    const rlimit bound = {value, value};
    setrlimit(resource, &bound);
}

#ifdef READER_IS_FILTERED

/// A filter that is being made.
class CallFilter
{
public:
    CallFilter()
        : m_context(seccomp_init(SCMP_ACT_ERRNO(EPERM)))
        , m_isComplete(m_context != nullptr)
    {}
    ~CallFilter()
    {
        if (m_context != nullptr) {
            seccomp_release(m_context);
        }
    }
    CallFilter(const CallFilter&) = delete;
    CallFilter& operator=(const CallFilter&) = delete;

    void allow(std::initializer_list<int> calls)
    {
        for (const int call : calls) {
            add(call, {});
        }
    }
    void allow(std::initializer_list<int> calls, std::initializer_list<scmp_arg_cmp> conditions)
    {
        for (const int call : calls) {
            add(call, conditions);
        }
    }
    /// Puts it in force for every thread of the process.
    bool load()
    {
        return m_isComplete && seccomp_attr_set(m_context, SCMP_FLTATR_CTL_TSYNC, 1) == 0 &&
               seccomp_load(m_context) == 0;
    }

private:
    void add(int call, std::initializer_list<scmp_arg_cmp> conditions)
    {
        m_isComplete =
            m_isComplete && seccomp_rule_add_array(m_context, SCMP_ACT_ALLOW, call,
                                                   static_cast<unsigned>(conditions.size()),
                                                   conditions.begin()) == 0;
    }

    scmp_filter_ctx m_context;
    bool m_isComplete;
};

scmp_arg_cmp argumentIs(unsigned place, scmp_datum_t value)
{
    return {place, SCMP_CMP_EQ, value, 0};
}

scmp_arg_cmp argumentLacks(unsigned place, scmp_datum_t bit)
{
    return {place, SCMP_CMP_MASKED_EQ, bit, 0};
}

#endif

} // namespace

void dieWithParent()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    prctl(PR_SET_DUMPABLE, 0);
}

void setLimits()
{
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
    limit(RLIMIT_NOFILE, kMostFiles);
    limit(RLIMIT_CPU, kMostSeconds);
#ifndef READER_IS_SANITIZED
    limit(RLIMIT_AS, kMostMemory);
    limit(RLIMIT_NPROC, 0);
#endif
}

Filter refuseCalls(int line)
{
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
#ifdef READER_IS_FILTERED
    const auto own = static_cast<scmp_datum_t>(line);
    CallFilter filter;
    filter.allow({SCMP_SYS(read), SCMP_SYS(readv), SCMP_SYS(pread64), SCMP_SYS(lseek),
                  SCMP_SYS(fstat), SCMP_SYS(close)});
    filter.allow({SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(madvise), SCMP_SYS(brk)});
    // Memory that can be written never becomes code.
    filter.allow({SCMP_SYS(mmap), SCMP_SYS(mprotect)}, {argumentLacks(2, PROT_EXEC)});
    filter.allow({SCMP_SYS(futex), SCMP_SYS(sched_yield), SCMP_SYS(sched_getaffinity),
                  SCMP_SYS(clock_gettime), SCMP_SYS(clock_nanosleep), SCMP_SYS(nanosleep),
                  SCMP_SYS(gettimeofday), SCMP_SYS(getrandom), SCMP_SYS(getrusage),
                  SCMP_SYS(getpid), SCMP_SYS(gettid)});
    filter.allow({SCMP_SYS(rt_sigreturn), SCMP_SYS(rt_sigprocmask), SCMP_SYS(restart_syscall),
                  SCMP_SYS(exit), SCMP_SYS(exit_group)});
    filter.allow({SCMP_SYS(write), SCMP_SYS(sendto), SCMP_SYS(recvmsg)}, {argumentIs(0, own)});
    // Of the limits only that of the processor time moves.
    filter.allow({SCMP_SYS(prlimit64)}, {argumentIs(0, 0), argumentIs(1, RLIMIT_CPU)});
    if (filter.load()) {
        return Filter::InForce;
    }
#else
    static_cast<void>(line);
#endif
    return Filter::NotThere;
}

void allowProcessorTime(unsigned seconds)
{
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    const rlim_t taken = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + 2;
    const rlimit bound = {taken + seconds, kMostSeconds};
    setrlimit(RLIMIT_CPU, &bound);
}

} // namespace trel::mediareader::confinement
