#include "BundleFolder.h"

#include "DraftFile.h"
#include "MediaName.h"
#include "catalogue/ContentReader.h"
#include "json/FileReplacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QStringList>

#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

/// Digits of its hash that tell a file from another one with its name.
constexpr int kMarkDigits = 12;

/// Whether anything stands there, a link that leads nowhere included.
bool isTaken(const QString& path)
{
    struct stat seen = {};
    return ::lstat(QFile::encodeName(path).constData(), &seen) == 0;
}

/// Gives a file its name, unless that is taken.
bool takeName(const QByteArray& from, const QByteArray& to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    // Not all file systems know of that; then a look has to do.
    if (errno != EINVAL && errno != ENOSYS) {
        return false;
    }
    if (::access(to.constData(), F_OK) == 0) {
        errno = EEXIST;
        return false;
    }
    return std::rename(from.constData(), to.constData()) == 0;
}

ProgramContent contentOf(int handle, const std::string& hash)
{
    constexpr qint64 nanoseconds = 1'000'000'000;
    ProgramContent content;
    struct stat seen = {};
    if (::fstat(handle, &seen) == 0) {
        content.size = seen.st_size;
        content.modifiedNs = seen.st_mtim.tv_sec * nanoseconds + seen.st_mtim.tv_nsec;
        content.sha256 = QByteArray::fromStdString(hash);
    }
    return content;
}

} // namespace

BundleFolder::BundleFolder(const QString& folder, std::map<std::string, NamedProgram> wanted)
    : m_folder(QDir::cleanPath(QDir(folder).absolutePath()))
    , m_wanted(std::move(wanted))
{}

BundleFolder::~BundleFolder()
{
    dropDraft();
    for (const auto& [hash, file] : m_files) {
        if (!m_isKept && !file.wasThere) {
            QFile::remove(file.path);
        }
    }
}

BundleFault BundleFolder::cannotWrite(int error) const
{
    BundleFault fault;
    fault.problem = BundleProblem::CannotWrite;
    fault.words = m_path.isEmpty() ? m_folder : m_path;
    fault.cause =
        error == ENOSPC ? Fault{FaultCode::DiskFull, {}} : faultOf(FaultCode::System, error);
    return fault;
}

BundleFault BundleFolder::begin(const BundleMedia& media, bool& isWanted)
{
    m_hash = media.sha256;
    const auto program = m_wanted.find(m_hash);
    isWanted = program != m_wanted.end();
    if (!isWanted) {
        return {};
    }
    m_path.clear();
    if (!QDir().mkpath(m_folder)) {
        return cannotWrite(errno);
    }
    if (BundleFault found = choose(media, program->second)) {
        return found;
    }
    isWanted = m_files.count(m_hash) == 0;
    if (!isWanted) {
        return {};
    }
    const QStorageInfo disk(m_folder);
    if (disk.isValid() && disk.bytesAvailable() < media.size) {
        return cannotWrite(ENOSPC);
    }
    return makeDraft();
}

BundleFault BundleFolder::choose(const BundleMedia& media, const NamedProgram& program)
{
    const QString digits = QString::fromStdString(m_hash);
    const QStringList marks = {QString(), QLatin1Char('-') + digits.left(kMarkDigits),
                               QLatin1Char('-') + digits};
    for (const QString& mark : marks) {
        m_path = m_folder + QLatin1Char('/') + mediaFileName(program.name, program.path, mark);
        if (!isTaken(m_path)) {
            return {};
        }
        const ProgramContent there =
            QFileInfo(m_path).size() == media.size ? readContent(m_path) : ProgramContent();
        if (there.isKnown() && there.sha256.toStdString() == m_hash) {
            m_files[m_hash] = {m_path, there, true};
            return {};
        }
    }
    BundleFault fault;
    fault.problem = BundleProblem::NoName;
    fault.words = m_path;
    return fault;
}

BundleFault BundleFolder::makeDraft()
{
    constexpr mode_t mode = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    m_draft = QFile::encodeName(draftPath(m_path));
    // Only one of a former program with the same number could stand there.
    ::unlink(m_draft.constData());
    m_handle =
        ::open(m_draft.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, mode);
    return m_handle >= 0 ? BundleFault() : cannotWrite(errno);
}

void BundleFolder::dropDraft()
{
    if (m_handle >= 0) {
        ::close(std::exchange(m_handle, -1));
        ::unlink(m_draft.constData());
    }
}

BundleFault BundleFolder::write(const char* bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t count = ::write(m_handle, bytes, size);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return cannotWrite(errno);
        }
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
    return {};
}

BundleFault BundleFolder::end()
{
    if (::fdatasync(m_handle) != 0) {
        return cannotWrite(errno);
    }
    const ProgramContent content = contentOf(m_handle, m_hash);
    if (!takeName(m_draft, QFile::encodeName(m_path))) {
        return cannotWrite(errno);
    }
    ::close(std::exchange(m_handle, -1));
    m_files[m_hash] = {m_path, content, false};
    removeLeftDrafts(m_path);
    syncFolder(m_path);
    return {};
}

} // namespace trel::mediadispatch
