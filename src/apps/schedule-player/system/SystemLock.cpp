#include "system/SystemLock.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace trel::player {

namespace {

constexpr mode_t kForAll = 0666;

int openAt(const QByteArray& path)
{
    constexpr int kQuietly = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    const int file = ::open(path.constData(), O_RDWR | O_CREAT | kQuietly, kForAll);
    // One that another user has made can be locked all the same.
    return file < 0 ? ::open(path.constData(), O_RDONLY | kQuietly) : file;
}

} // namespace

SystemLock::SystemLock(const QString& path)
    : m_file(openAt(QFile::encodeName(path)))
{
    if (m_file < 0) {
        return;
    }
    if (::flock(m_file, LOCK_EX | LOCK_NB) == 0) {
        m_state = State::Held;
    } else if (errno == EWOULDBLOCK) {
        m_state = State::Refused;
    }
}

SystemLock::~SystemLock()
{
    if (m_file >= 0) {
        ::close(m_file);
    }
}

} // namespace trel::player
