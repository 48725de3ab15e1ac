#include "media/MediaFile.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

QString reasonOf(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return QStringLiteral("There is no such file.");
    case EACCES:
    case EPERM:
        return QStringLiteral("You do not have permission to read it.");
    default:
        return QStringLiteral("It cannot be opened: %1.").arg(qt_error_string(error));
    }
}

} // namespace

MediaFile::MediaFile(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat seen = {};
    // Looked at before it is opened, and once more afterwards, in case another took its place.
    if (::stat(name.constData(), &seen) != 0) {
        m_reason = reasonOf(errno);
        return;
    }
    if (S_ISREG(seen.st_mode)) {
        m_descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
        if (m_descriptor < 0 || ::fstat(m_descriptor, &seen) != 0) {
            m_reason = reasonOf(errno);
            return;
        }
    }
    if (!S_ISREG(seen.st_mode)) {
        m_reason = QStringLiteral("It is not a file.");
    } else if (seen.st_size == 0) {
        m_reason = QStringLiteral("It is empty.");
    }
    if (!m_reason.isEmpty() && m_descriptor >= 0) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

MediaFile::~MediaFile()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

} // namespace trel::mediadispatch
