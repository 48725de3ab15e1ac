#include "deck/PlayedFile.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trel::player {

using screen::DeckFault;
using screen::DeckTrouble;

namespace {

DeckFault faultOfError(int error)
{
    const QString words = qt_error_string(error);
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return {DeckTrouble::Missing, words};
    case EACCES:
    case EPERM:
    case ELOOP:
    case ENXIO:
        return {DeckTrouble::Refused, words};
    default:
        return {DeckTrouble::Unreadable, words};
    }
}

} // namespace

PlayedFile::PlayedFile(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat seen = {};
    // Looked at before it is opened, and once more afterwards, in case another took its place.
    if (::stat(name.constData(), &seen) != 0) {
        m_fault = faultOfError(errno);
        return;
    }
    if (S_ISREG(seen.st_mode)) {
        m_descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
        if (m_descriptor < 0 || ::fstat(m_descriptor, &seen) != 0) {
            m_fault = faultOfError(errno);
            return;
        }
    }
    if (!S_ISREG(seen.st_mode)) {
        m_fault = {DeckTrouble::Refused, QStringLiteral("Not a regular file")};
    } else if (seen.st_size == 0) {
        m_fault = {DeckTrouble::Unreadable, QStringLiteral("The file is empty")};
    }
}

PlayedFile::~PlayedFile()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

std::int64_t PlayedFile::size() const
{
    struct stat seen = {};
    return ::fstat(m_descriptor, &seen) == 0 ? seen.st_size : -1;
}

std::int64_t PlayedFile::read(char* room, std::uint64_t count)
{
    ssize_t got = -1;
    do {
        got = ::pread(m_descriptor, room, count, m_place);
    } while (got < 0 && errno == EINTR);
    if (got > 0) {
        m_place += got;
    }
    return got;
}

bool PlayedFile::seek(std::int64_t place)
{
    if (place < 0) {
        return false;
    }
    m_place = place;
    return true;
}

} // namespace trel::player
