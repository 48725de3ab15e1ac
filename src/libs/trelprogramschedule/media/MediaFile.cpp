#include "media/MediaFile.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

Fault faultOfError(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return {FaultCode::FileMissing, {}};
    case EACCES:
    case EPERM:
        return {FaultCode::NoPermission, {}};
    default:
        return faultOf(FaultCode::CannotOpen, error);
    }
}

} // namespace

MediaFile::MediaFile(const QString& path)
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
        m_fault.code = FaultCode::NotAFile;
    } else if (seen.st_size == 0) {
        m_fault.code = FaultCode::EmptyFile;
    }
    if (m_fault && m_descriptor >= 0) {
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
