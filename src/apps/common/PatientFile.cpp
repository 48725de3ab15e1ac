#include "common/PatientFile.h"

#include "trelprogramschedule/faults/FaultWords.h"

#include <QFile>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace trel::hosts {

PatientFile::PatientFile(const QString& path, std::chrono::milliseconds patience)
    : m_path(path)
    , m_patience(patience)
{}

PatientFile::~PatientFile()
{
    PatientFile::close();
}

bool PatientFile::open(OpenMode mode)
{
    Q_UNUSED(mode)
    const QByteArray name = QFile::encodeName(m_path);
    struct stat seen = {};
    // Looked at first, since opening alone moves some devices.
    if (::stat(name.constData(), &seen) != 0) {
        return fail(faultOf(FaultCode::System, errno)) == 0;
    }
    m_isPipe = S_ISFIFO(seen.st_mode);
    if (!m_isPipe && !S_ISREG(seen.st_mode)) {
        return fail({FaultCode::NotAFile, {}}) == 0;
    }
    m_descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (m_descriptor < 0) {
        return fail(faultOf(FaultCode::System, errno)) == 0;
    }
    return QIODevice::open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void PatientFile::close()
{
    QIODevice::close();
    if (m_descriptor >= 0) {
        ::close(std::exchange(m_descriptor, -1));
    }
}

qint64 PatientFile::readData(char* data, qint64 maxSize)
{
    for (;;) {
        if (m_isPipe && !waitForData()) {
            return fail(
                faultOf(FaultCode::PipeSilent, std::chrono::duration<double>(m_patience).count()));
        }
        const ssize_t count = ::read(m_descriptor, data, static_cast<std::size_t>(maxSize));
        if (count >= 0) {
            return count;
        }
        if (errno != EINTR && errno != EAGAIN) {
            return fail(faultOf(FaultCode::System, errno));
        }
    }
}

qint64 PatientFile::writeData(const char* /*data*/, qint64 /*maxSize*/)
{
    return -1;
}

/// The end of a pipe is something that comes, too.
bool PatientFile::waitForData()
{
    pollfd pipe = {m_descriptor, POLLIN, 0};
    int ready = -1;
    do {
        ready = ::poll(&pipe, 1, static_cast<int>(m_patience.count()));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

qint64 PatientFile::fail(const Fault& fault)
{
    m_fault = fault;
    setErrorString(englishClause(fault));
    return -1;
}

} // namespace trel::hosts
