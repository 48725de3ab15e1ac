#include "WatchedProcess.h"

#include <QFile>

#include <seccomp.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kPathRoom = 4096;

/// Where a call says which file it is about.
enum class Subject {
    Handle, ///< The argument is a descriptor.
    Path,   ///< The argument is a path.
};

struct Watched
{
    FileCall call;
    Subject subject;
    unsigned argument;
};

const std::map<int, Watched>& watchedCalls()
{
    static const std::map<int, Watched> calls = {
        {SCMP_SYS(open), {FileCall::Open, Subject::Path, 0}},
        {SCMP_SYS(creat), {FileCall::Open, Subject::Path, 0}},
        {SCMP_SYS(openat), {FileCall::Open, Subject::Path, 1}},
        {SCMP_SYS(read), {FileCall::Read, Subject::Handle, 0}},
        {SCMP_SYS(readv), {FileCall::Read, Subject::Handle, 0}},
        {SCMP_SYS(pread64), {FileCall::Read, Subject::Handle, 0}},
        {SCMP_SYS(preadv), {FileCall::Read, Subject::Handle, 0}},
        {SCMP_SYS(write), {FileCall::Write, Subject::Handle, 0}},
        {SCMP_SYS(writev), {FileCall::Write, Subject::Handle, 0}},
        {SCMP_SYS(pwrite64), {FileCall::Write, Subject::Handle, 0}},
        {SCMP_SYS(pwritev), {FileCall::Write, Subject::Handle, 0}},
        {SCMP_SYS(fsync), {FileCall::Sync, Subject::Handle, 0}},
        {SCMP_SYS(fdatasync), {FileCall::Sync, Subject::Handle, 0}},
        {SCMP_SYS(ftruncate), {FileCall::Truncate, Subject::Handle, 0}},
        {SCMP_SYS(fallocate), {FileCall::Truncate, Subject::Handle, 0}},
        {SCMP_SYS(truncate), {FileCall::Truncate, Subject::Path, 0}},
        {SCMP_SYS(rename), {FileCall::Rename, Subject::Path, 0}},
        {SCMP_SYS(renameat), {FileCall::Rename, Subject::Path, 1}},
        {SCMP_SYS(renameat2), {FileCall::Rename, Subject::Path, 1}},
        {SCMP_SYS(link), {FileCall::Rename, Subject::Path, 0}},
        {SCMP_SYS(linkat), {FileCall::Rename, Subject::Path, 1}},
        {SCMP_SYS(unlink), {FileCall::Remove, Subject::Path, 0}},
        {SCMP_SYS(unlinkat), {FileCall::Remove, Subject::Path, 1}},
        {SCMP_SYS(mmap), {FileCall::Map, Subject::Handle, 4}},
        {SCMP_SYS(fcntl), {FileCall::Lock, Subject::Handle, 0}},
        {SCMP_SYS(stat), {FileCall::Look, Subject::Path, 0}},
        {SCMP_SYS(lstat), {FileCall::Look, Subject::Path, 0}},
        {SCMP_SYS(fstat), {FileCall::Look, Subject::Handle, 0}},
        {SCMP_SYS(newfstatat), {FileCall::Look, Subject::Path, 1}},
        {SCMP_SYS(statx), {FileCall::Look, Subject::Path, 1}},
        {SCMP_SYS(access), {FileCall::Look, Subject::Path, 0}},
        {SCMP_SYS(faccessat), {FileCall::Look, Subject::Path, 1}},
        {SCMP_SYS(chmod), {FileCall::Mode, Subject::Path, 0}},
        {SCMP_SYS(fchmod), {FileCall::Mode, Subject::Handle, 0}},
        {SCMP_SYS(fchmodat), {FileCall::Mode, Subject::Path, 1}},
        {SCMP_SYS(chown), {FileCall::Mode, Subject::Path, 0}},
        {SCMP_SYS(fchown), {FileCall::Mode, Subject::Handle, 0}},
    };
    return calls;
}

bool readMemory(pid_t process, std::uint64_t address, void* room, std::size_t size)
{
    const std::string name = "/proc/" + std::to_string(process) + "/mem";
    const int memory = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t count = ::pread(memory, room, size, static_cast<off_t>(address));
    ::close(memory);
    return count > 0;
}

/// Whether a call of fcntl takes a lock; it does much else, and giving a lock back does not fail.
bool takesLock(pid_t process, const seccomp_data& data)
{
    const auto what = static_cast<int>(data.args[1]);
    struct flock lock = {};
    return (what == F_SETLK || what == F_SETLKW || what == F_GETLK) &&
           readMemory(process, data.args[2], &lock, sizeof lock) && lock.l_type != F_UNLCK;
}

QByteArray handlePath(pid_t process, int handle)
{
    const std::string link = "/proc/" + std::to_string(process) + "/fd/" + std::to_string(handle);
    char room[kPathRoom] = {};
    const ssize_t size = ::readlink(link.c_str(), room, sizeof room);
    return size < 0 ? QByteArray() : QByteArray(room, static_cast<int>(size));
}

/// A text in the memory of another process.
QByteArray textOf(pid_t process, std::uint64_t address)
{
    char room[kPathRoom] = {};
    return readMemory(process, address, room, sizeof room - 1) ? QByteArray(room) : QByteArray();
}

bool sendHandle(int line, int handle)
{
    char byte = 0;
    iovec part = {&byte, 1};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof handle)] = {};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    cmsghdr* const header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof handle);
    std::memcpy(CMSG_DATA(header), &handle, sizeof handle);
    return ::sendmsg(line, &message, 0) == 1;
}

int receiveHandle(int line)
{
    char byte = 0;
    iovec part = {&byte, 1};
    int handle = -1;
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof handle)] = {};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    const ssize_t count = ::recvmsg(line, &message, MSG_CMSG_CLOEXEC);
    const cmsghdr* const header = CMSG_FIRSTHDR(&message);
    if (count == 1 && header != nullptr) {
        std::memcpy(&handle, CMSG_DATA(header), sizeof handle);
    }
    return handle;
}

/// Has this process tell of the calls from now on; the descriptor on which it does, -1 on failure.
int beginTelling()
{
    // What is mapped without a file is memory. Under the sanitizers the process may need some
    // before anybody listens, and would wait for an answer for ever.
    constexpr unsigned flags = 3;
    const scmp_arg_cmp isOfFile = {flags, SCMP_CMP_MASKED_EQ, MAP_ANONYMOUS, 0};
    scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    bool isMade = filter != nullptr;
    for (const auto& [number, watched] : watchedCalls()) {
        const unsigned conditions = watched.call == FileCall::Map ? 1 : 0;
        isMade = isMade && seccomp_rule_add_array(filter, SCMP_ACT_NOTIFY, number, conditions,
                                                  &isOfFile) == 0;
    }
    const bool isLoaded = isMade && seccomp_load(filter) == 0;
    return isLoaded ? seccomp_notify_fd(filter) : -1;
}

/// The process that becomes the program.
[[noreturn]] void becomeProgram(int line, int output, int errors, char* const* arguments)
{
    ::dup2(::open("/dev/null", O_RDONLY), STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(errors, STDERR_FILENO);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int notes = beginTelling();
    if (notes < 0 || !sendHandle(line, notes)) {
        ::_exit(127);
    }
    ::close(notes);
    ::close(line);
    ::execv(arguments[0], arguments);
    ::_exit(127);
}

QByteArray contentOf(int file)
{
    QByteArray content(static_cast<int>(::lseek(file, 0, SEEK_END)), Qt::Uninitialized);
    const ssize_t size = ::pread(file, content.data(), static_cast<std::size_t>(content.size()), 0);
    content.truncate(static_cast<int>(std::max<ssize_t>(size, 0)));
    ::close(file);
    return content;
}

/// Listens to one process until it has gone.
class Listener
{
public:
    Listener(int notes, pid_t process, QByteArray folder, const WatchedProcess::Decide& decide)
        : m_notes(notes)
        , m_process(process)
        , m_folder(std::move(folder))
        , m_decide(decide)
    {
        seccomp_notify_alloc(&m_note, &m_answer);
    }
    ~Listener()
    {
        seccomp_notify_free(m_note, m_answer);
        ::close(m_notes);
    }
    Q_DISABLE_COPY(Listener)

    /// False when the time came first.
    bool listen(Clock::time_point until)
    {
        for (;;) {
            const auto left =
                std::chrono::duration_cast<std::chrono::microseconds>(until - Clock::now());
            if (left <= 0us) {
                return false;
            }
            const timespec wait = {left.count() / 1000000, left.count() % 1000000 * 1000};
            pollfd notes = {m_notes, POLLIN, 0};
            if (::ppoll(&notes, 1, &wait, nullptr) <= 0) {
                continue;
            }
            if ((notes.revents & POLLIN) == 0) {
                return true; // Nobody is left who could tell.
            }
            std::memset(m_note, 0, sizeof *m_note);
            if (seccomp_notify_receive(m_notes, m_note) == 0) {
                answer();
            }
        }
    }

private:
    void answer()
    {
        const auto process = static_cast<pid_t>(m_note->pid);
        const std::optional<FileCall> call = callOf(process);
        const CallFate fate = call ? m_decide(*call) : CallFate();
        if (fate.kind == CallFate::Kills) {
            ::kill(m_process, SIGKILL);
            return;
        }
        std::memset(m_answer, 0, sizeof *m_answer);
        m_answer->id = m_note->id;
        if (fate.kind == CallFate::Fails) {
            m_answer->error = -fate.systemError;
        } else {
            m_answer->flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
        }
        seccomp_notify_respond(m_notes, m_answer);
    }

    /// Nothing for a call that is about something else.
    std::optional<FileCall> callOf(pid_t process) const
    {
        const auto found = watchedCalls().find(m_note->data.nr);
        if (found == watchedCalls().end() ||
            (found->second.call == FileCall::Lock && !takesLock(process, m_note->data))) {
            return std::nullopt;
        }
        const Watched& watched = found->second;
        const std::uint64_t argument = m_note->data.args[watched.argument];
        const QByteArray path = watched.subject == Subject::Path
                                    ? textOf(process, argument)
                                    : handlePath(process, static_cast<int>(argument));
        return path.startsWith(m_folder) ? std::make_optional(watched.call) : std::nullopt;
    }

    int m_notes;
    pid_t m_process;
    QByteArray m_folder;
    const WatchedProcess::Decide& m_decide;
    seccomp_notif* m_note = nullptr;
    seccomp_notif_resp* m_answer = nullptr;
};

} // namespace

const char* nameOf(FileCall call)
{
    constexpr const char* names[] = {"open",   "read", "write", "sync", "truncate", "rename",
                                     "remove", "map",  "lock",  "look", "mode"};
    return names[int(call)];
}

WatchedProcess::WatchedProcess(QString program, QString folder, std::chrono::seconds patience)
    : m_program(std::move(program))
    , m_folder(std::move(folder))
    , m_patience(patience)
{}

bool WatchedProcess::isPossible()
{
    const WatchedProcess self(QStringLiteral("/bin/true"), QStringLiteral("/nowhere"));
    return self.run({}, [](FileCall) { return CallFate(); }).status == 0;
}

ProcessEnd WatchedProcess::run(const QStringList& arguments, const Decide& decide,
                               std::chrono::microseconds killAfter) const
{
    std::vector<QByteArray> texts = {QFile::encodeName(m_program)};
    for (const QString& argument : arguments) {
        texts.push_back(QFile::encodeName(argument));
    }
    std::vector<char*> words;
    for (QByteArray& text : texts) {
        words.push_back(text.data());
    }
    words.push_back(nullptr);

    int line[2] = {-1, -1};
    ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, line);
    const int output = ::memfd_create("output", MFD_CLOEXEC);
    const int errors = ::memfd_create("errors", MFD_CLOEXEC);
    const pid_t process = ::fork();
    if (process == 0) {
        becomeProgram(line[1], output, errors, words.data());
    }
    ::close(line[1]);
    const int notes = receiveHandle(line[0]);
    ::close(line[0]);

    ProcessEnd end;
    if (notes >= 0) {
        Listener listener(notes, process, QFile::encodeName(m_folder), decide);
        const bool isToBeKilled = killAfter > 0us;
        const auto until = Clock::now() + (isToBeKilled ? killAfter : m_patience);
        if (!listener.listen(until)) {
            end.isLate = !isToBeKilled;
            if (end.isLate) {
                // It may say where it waits.
                ::kill(process, SIGABRT);
                listener.listen(Clock::now() + 1s);
            }
            ::kill(process, SIGKILL);
        }
    }
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    end.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    end.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    end.output = contentOf(output);
    end.errors = contentOf(errors);
    return end;
}
