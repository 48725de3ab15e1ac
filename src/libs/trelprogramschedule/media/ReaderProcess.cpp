#include "media/ReaderProcess.h"

#include "media/MediaProtocol.h"

#include <QFile>
#include <QMutex>
#include <QMutexLocker>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

using namespace std::chrono_literals;

/// How often somebody who waits is asked whether it is still wanted.
constexpr std::chrono::milliseconds kLook = 25ms;
/// How long an ended program is waited for. One that is held up in the system, by a disk that does
/// not answer, is left to be collected later.
constexpr int kCollections = 50;
constexpr useconds_t kBetweenCollections = 1000;

/// The processes that were ended and have not gone yet.
class Leftovers
{
public:
    void add(pid_t pid)
    {
        const QMutexLocker lock(&m_mutex);
        m_pids.push_back(pid);
    }

    void collect()
    {
        const QMutexLocker lock(&m_mutex);
        m_pids.erase(
            std::remove_if(m_pids.begin(), m_pids.end(),
                           [](pid_t pid) { return ::waitpid(pid, nullptr, WNOHANG) != 0; }),
            m_pids.end());
    }

private:
    QMutex m_mutex;
    std::vector<pid_t> m_pids;
};

Leftovers& leftovers()
{
    static Leftovers instance;
    return instance;
}

/// What is set before the program runs: the line under its number, nothing else of this process's
/// open files, and no signal that this process ignores or holds back.
class SpawnSetting
{
public:
    explicit SpawnSetting(int line)
    {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, line, wire::kDescriptor);
        posix_spawn_file_actions_addclosefrom_np(&actions, wire::kDescriptor + 1);
        posix_spawnattr_init(&attributes);
        sigset_t numbers;
        sigemptyset(&numbers);
        posix_spawnattr_setsigmask(&attributes, &numbers);
        sigfillset(&numbers);
        posix_spawnattr_setsigdefault(&attributes, &numbers);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnSetting()
    {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    Q_DISABLE_COPY(SpawnSetting)

    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
};

} // namespace

ReaderProcess::~ReaderProcess()
{
    kill();
}

int ReaderProcess::start(const QString& program, const char* argument)
{
    kill();
    leftovers().collect();
    int ends[2] = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        return errno;
    }
    // An end that has the very number already would keep its mark to be closed.
    const int theirs = ::fcntl(ends[1], F_DUPFD_CLOEXEC, wire::kDescriptor + 1);
    ::close(ends[1]);
    QByteArray name = QFile::encodeName(program);
    QByteArray wish(argument);
    char* const arguments[] = {name.data(), wish.data(), nullptr};
    const SpawnSetting setting(theirs);
    pid_t pid = -1;
    const int error = theirs < 0 ? errno
                                 : ::posix_spawn(&pid, name.constData(), &setting.actions,
                                                 &setting.attributes, arguments, environ);
    ::close(theirs);
    if (error != 0) {
        ::close(ends[0]);
        return error;
    }
    m_pid = pid;
    m_line = ends[0];
    return 0;
}

void ReaderProcess::kill()
{
    if (m_line >= 0) {
        ::close(std::exchange(m_line, -1));
    }
    if (m_pid <= 0) {
        return;
    }
    const pid_t pid = std::exchange(m_pid, -1);
    ::kill(pid, SIGKILL);
    for (int attempt = 0; attempt < kCollections; ++attempt) {
        if (::waitpid(pid, nullptr, WNOHANG) != 0) {
            return;
        }
        ::usleep(kBetweenCollections);
    }
    leftovers().add(pid);
}

bool ReaderProcess::send(const void* record, std::size_t size, int descriptor) const
{
    iovec part = {const_cast<void*>(record), size};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    cmsghdr* header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof(int));
    std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
    ssize_t sent = -1;
    do {
        sent = ::sendmsg(m_line, &message, MSG_NOSIGNAL | MSG_DONTWAIT);
    } while (sent < 0 && errno == EINTR);
    return sent == static_cast<ssize_t>(size);
}

ReaderProcess::Transfer ReaderProcess::receive(void* room, std::size_t size, Moment until,
                                               const Cancelled& isCancelled) const
{
    using std::chrono::milliseconds;
    auto* next = static_cast<char*>(room);
    while (size > 0) {
        if (isCancelled && isCancelled()) {
            return Transfer::Cancelled;
        }
        const auto left = std::chrono::ceil<milliseconds>(until - std::chrono::steady_clock::now());
        if (left <= 0ms) {
            return Transfer::Late;
        }
        pollfd line = {m_line, POLLIN, 0};
        if (::poll(&line, 1, static_cast<int>(std::min<milliseconds>(left, kLook).count())) <= 0) {
            continue;
        }
        const ssize_t count = ::recv(m_line, next, size, MSG_DONTWAIT);
        if (count > 0) {
            next += count;
            size -= static_cast<std::size_t>(count);
        } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
            return Transfer::Ended;
        }
    }
    return Transfer::Done;
}

bool ReaderProcess::hasUnread() const
{
    char byte = 0;
    const ssize_t count = ::recv(m_line, &byte, 1, MSG_DONTWAIT | MSG_PEEK);
    return count >= 0 || (errno != EAGAIN && errno != EINTR);
}

} // namespace trel::mediadispatch
