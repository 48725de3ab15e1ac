#include "DraftLock.h"

#include <QFile>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

/// Another process may put a file in the place of the one that was just opened, or take it away.
constexpr int kMostTries = 8;

} // namespace

DraftLock::DraftLock(QString path, int handle)
    : m_path(std::move(path))
    , m_handle(handle)
{}

DraftLock::~DraftLock()
{
    ::close(m_handle);
}

std::unique_ptr<DraftLock> DraftLock::of(const QString& path, Missing missing)
{
    const QByteArray name = QFile::encodeName(path);
    const int making = missing == Missing::IsMade ? O_CREAT : 0;
    for (int attempt = 0; attempt < kMostTries; ++attempt) {
        const int handle =
            ::open(name.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | making,
                   S_IRUSR | S_IWUSR);
        if (handle < 0) {
            return nullptr;
        }
        std::unique_ptr<DraftLock> lock(new DraftLock(path, handle));
        struct stat status = {};
        if (::fstat(handle, &status) != 0) {
            return nullptr;
        }
        if (!S_ISREG(status.st_mode)) {
            errno = EINVAL;
            return nullptr;
        }
        if (::flock(handle, LOCK_EX | LOCK_NB) != 0) {
            const int error = errno;
            lock.reset();
            errno = error;
            return nullptr;
        }
        if (lock->isInPlace()) {
            return lock;
        }
    }
    errno = EWOULDBLOCK;
    return nullptr;
}

std::unique_ptr<DraftLock> DraftLock::ofHandle(const QString& path, int handle)
{
    // Both handles are one file to the system, with one lock.
    const int own = ::fcntl(handle, F_DUPFD_CLOEXEC, 0);
    if (own < 0) {
        return nullptr;
    }
    std::unique_ptr<DraftLock> lock(new DraftLock(path, own));
    return ::flock(own, LOCK_EX | LOCK_NB) == 0 ? std::move(lock) : nullptr;
}

bool DraftLock::isInPlace() const
{
    struct stat here = {};
    struct stat there = {};
    return ::fstat(m_handle, &here) == 0 &&
           ::lstat(QFile::encodeName(m_path).constData(), &there) == 0 &&
           here.st_dev == there.st_dev && here.st_ino == there.st_ino;
}

bool DraftLock::remove() const
{
    return !isInPlace() || ::unlink(QFile::encodeName(m_path).constData()) == 0 || errno == ENOENT;
}

} // namespace trel::mediadispatch
