#include "DiskLimit.h"

#include <QFile>

#include <csignal>

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>

namespace {

bool mountDisk(const QString& folder)
{
    if (::unshare(CLONE_NEWNS) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        return false;
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, "size=6m") == 0;
}

void limitFiles(rlim_t bytes)
{
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

QString ballast(const QString& folder)
{
    return folder + QStringLiteral("/ballast");
}

} // namespace

DiskLimit::DiskLimit(const QString& folder)
    : m_folder(folder)
    , m_isDisk(mountDisk(folder))
{
    // Without this a write beyond the limit ends the process.
    std::signal(SIGXFSZ, SIG_IGN);
}

QString DiskLimit::kind() const
{
    return m_isDisk ? QStringLiteral("disk") : QStringLiteral("limit");
}

void DiskLimit::fill()
{
    if (!m_isDisk) {
        limitFiles(4096);
        return;
    }
    QFile file(ballast(m_folder));
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        const QByteArray block(4096, 'x');
        while (file.write(block) == block.size()) {
        }
    }
}

void DiskLimit::free()
{
    if (m_isDisk) {
        QFile::remove(ballast(m_folder));
    } else {
        limitFiles(RLIM_INFINITY);
    }
}
