#include "FileReplacement.h"

#include "DraftFile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

constexpr mode_t kModeBits = 07777;

/// Where the file itself stands, or is to stand.
QString targetOf(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    return info.isSymLink() ? info.symLinkTarget() : info.absoluteFilePath();
}

FaultCode kindOf(mode_t mode)
{
    if (S_ISDIR(mode)) {
        return FaultCode::IsFolder;
    }
    if (S_ISFIFO(mode)) {
        return FaultCode::IsPipe;
    }
    if (S_ISSOCK(mode)) {
        return FaultCode::IsSocket;
    }
    return FaultCode::IsDevice;
}

/// A new file beside the one that it is to replace. It goes with the object, unless it has taken
/// that one's place.
class Draft
{
public:
    explicit Draft(const QString& target)
        : m_target(QFile::encodeName(target))
        , m_name(QFile::encodeName(draftPath(target)))
    {
        // Only one of a former program with the same number could stand there.
        ::unlink(m_name.constData());
        m_handle =
            ::open(m_name.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    }
    ~Draft()
    {
        if (m_handle >= 0) {
            ::close(m_handle);
            ::unlink(m_name.constData());
        }
    }
    Q_DISABLE_COPY(Draft)

    /// Each of these is false, with the reason in errno, when it could not be done.
    bool isOpen() const { return m_handle >= 0; }
    bool setMode(mode_t mode) const { return ::fchmod(m_handle, mode & kModeBits) == 0; }
    bool write(const QByteArray& content) const;
    bool sync() const { return ::fdatasync(m_handle) == 0; }
    bool pass(const FileInspection& inspect) const { return inspect(m_handle); }
    bool takePlace();

private:
    QByteArray m_target;
    QByteArray m_name;
    int m_handle = -1;
};

bool Draft::write(const QByteArray& content) const
{
    const char* from = content.constData();
    for (auto left = static_cast<std::size_t>(content.size()); left > 0;) {
        const ssize_t written = ::write(m_handle, from, left);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return false;
        }
        from += written;
        left -= static_cast<std::size_t>(written);
    }
    return true;
}

bool Draft::takePlace()
{
    if (std::rename(m_name.constData(), m_target.constData()) != 0) {
        return false;
    }
    ::close(m_handle);
    m_handle = -1;
    return true;
}

} // namespace

void syncFolder(const QString& target)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(target).path());
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        ::fsync(handle);
        ::close(handle);
    }
}

Fault replaceFile(const QString& path, const QByteArray& content)
{
    return replaceFile(path, content, [](int) { return true; });
}

Fault replaceFile(const QString& path, const QByteArray& content, const FileInspection& inspect)
{
    const QString target = targetOf(path);
    const QByteArray name = QFile::encodeName(target);
    struct stat former = {};
    const bool isThere = ::stat(name.constData(), &former) == 0;
    // Of a disk that does not answer it is not known what would be replaced.
    if (!isThere && errno != ENOENT) {
        return faultOf(FaultCode::System, errno);
    }
    if (isThere && !S_ISREG(former.st_mode)) {
        return {kindOf(former.st_mode), {}};
    }
    if (isThere && ::access(name.constData(), W_OK) != 0) {
        return faultOf(FaultCode::System, errno);
    }
    Draft draft(target);
    if (!draft.isOpen() || (isThere && !draft.setMode(former.st_mode)) || !draft.write(content) ||
        !draft.sync() || !draft.pass(inspect) || !draft.takePlace()) {
        return faultOf(FaultCode::System, errno);
    }
    removeLeftDrafts(target);
    syncFolder(target);
    return {};
}

} // namespace trel::mediadispatch
