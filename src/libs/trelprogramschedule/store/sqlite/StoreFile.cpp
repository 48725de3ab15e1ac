#include "StoreFile.h"

#include "DraftFile.h"
#include "store/StoreRefusals.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

/// Where a database of SQLite says what it is.
constexpr int kHeaderSize = 100;
constexpr int kSchemaOffset = 60;
constexpr int kApplicationOffset = 68;
constexpr char kMagic[] = "SQLite format 3"; // with the zero that ends it

constexpr mode_t kModeBits = 07777;

QString resolved(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    return info.isSymLink() ? info.symLinkTarget() : QDir::current().absoluteFilePath(path);
}

/// The system's error when it is asked for a file; 0 when it knows it. A disk that does not answer
/// must not be taken for one on which the file is missing.
int lookAt(const QString& path, struct stat& status)
{
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? 0 : errno;
}

bool isMissing(int systemError)
{
    return systemError == ENOENT || systemError == ENOTDIR;
}

/// Whether a file system, or a system, does not have a call.
bool isUnknownCall(int systemError)
{
    return systemError == EINVAL || systemError == ENOSYS;
}

bool isEmpty(const struct stat& status)
{
    return S_ISREG(status.st_mode) && status.st_size == 0;
}

bool isMarkedReadOnly(const QFileInfo& info)
{
    constexpr QFile::Permissions anybody =
        QFile::WriteOwner | QFile::WriteUser | QFile::WriteGroup | QFile::WriteOther;
    // The permissions of the user in hand are not asked for: to root they are all granted.
    constexpr QFile::Permissions stored = anybody & ~QFile::Permissions(QFile::WriteUser);
    return !(info.permissions() & stored) || !info.isWritable();
}

StoreFile::Identity identityOf(const QString& path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return {};
    }
    return {status.st_dev, status.st_ino};
}

constexpr const char* kDatabaseSuffixes[] = {"", "-journal", "-wal", "-shm"};

qint64 headerNumber(const QByteArray& header, int offset)
{
    return qFromBigEndian<quint32>(header.constData() + offset);
}

} // namespace

StoreFile::StoreFile(const QString& path)
    : m_path(resolved(path))
{}

bool StoreFile::isThere() const
{
    return QFileInfo::exists(m_path);
}

bool StoreFile::isVacant() const
{
    struct stat status = {};
    const int error = lookAt(m_path, status);
    return error == 0 ? isEmpty(status) : isMissing(error);
}

StoreResult StoreFile::judge(StoreOpenMode mode, qint64 applicationId, int newestSchema) const
{
    struct stat status = {};
    const int folderError = lookAt(QFileInfo(m_path).absolutePath(), status);
    if (isMissing(folderError) || (folderError == 0 && !S_ISDIR(status.st_mode))) {
        return refusal(StoreProblem::FolderMissing, m_path);
    }
    const int error = folderError == 0 ? lookAt(m_path, status) : folderError;
    if (error != 0 && !isMissing(error)) {
        return refusalOfSystem(error, m_path);
    }
    if (error == 0 && !S_ISREG(status.st_mode)) {
        return refusal(StoreProblem::NotADatabase, m_path);
    }
    const StoreResult content = error != 0 || isEmpty(status)
                                    ? judgeVacant(mode, error == 0)
                                    : judgeHeader(applicationId, newestSchema);
    return content && mode != StoreOpenMode::ReadOnly ? judgeWritable() : content;
}

StoreResult StoreFile::judgeVacant(StoreOpenMode mode, bool isFileThere) const
{
    struct stat log = {};
    const int error = lookAt(logPath(), log);
    if (error != 0 && !isMissing(error)) {
        return refusalOfSystem(error, m_path);
    }
    if (log.st_size > 0) {
        // The log would be replayed into whatever is put here next.
        return refusal(StoreProblem::Damaged, m_path,
                       faultOf(FaultCode::LogAlone, QFileInfo(logPath()).fileName()));
    }
    if (mode == StoreOpenMode::CreateIfMissing) {
        return {};
    }
    return refusal(isFileThere ? StoreProblem::NotADatabase : StoreProblem::FileMissing, m_path);
}

StoreResult StoreFile::judgeHeader(qint64 applicationId, int newestSchema) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return refusal(StoreProblem::Other, m_path, faultOf(FaultCode::System, errno));
    }
    const QByteArray header = file.read(kHeaderSize);
    if (file.error() != QFileDevice::NoError) {
        return refusal(StoreProblem::Other, m_path, faultOf(FaultCode::System, errno));
    }
    if (header.size() < kHeaderSize || !header.startsWith(QByteArray(kMagic, sizeof kMagic))) {
        return refusal(StoreProblem::NotADatabase, m_path);
    }
    if (headerNumber(header, kApplicationOffset) != applicationId) {
        return refusal(StoreProblem::Foreign, m_path);
    }
    if (headerNumber(header, kSchemaOffset) > newestSchema) {
        return refusal(StoreProblem::NewerSchema, m_path);
    }
    return {};
}

StoreResult StoreFile::judgeWritable() const
{
    const QFileInfo info(m_path);
    const QFileInfo folder(info.absolutePath());
    if ((info.exists() && isMarkedReadOnly(info)) ||
        (folder.exists() && isMarkedReadOnly(folder))) {
        return refusal(StoreProblem::ReadOnly, m_path);
    }
    return {};
}

bool StoreFile::hasLogIndex() const
{
    return QFileInfo::exists(logIndexPath());
}

bool StoreFile::isLogInUse() const
{
    // Every program that works with a log keeps this byte of its index locked.
    constexpr off_t inUse = 128;
    const int index = ::open(QFile::encodeName(logIndexPath()).constData(), O_RDONLY | O_CLOEXEC);
    if (index < 0) {
        return false;
    }
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = inUse;
    lock.l_len = 1;
    const bool isInUse = ::fcntl(index, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    ::close(index);
    return isInUse;
}

bool StoreFile::canHaveLogIndex() const
{
    const QString folder = QFileInfo(m_path).absolutePath();
    return ::access(QFile::encodeName(folder).constData(), W_OK) == 0;
}

void StoreFile::removeLogIndex() const
{
    QFile::remove(logIndexPath());
}

void StoreFile::removeLog(const Identity& log) const
{
    if (logIdentity() == log && QFile::remove(logPath())) {
        removeLogIndex();
    }
}

QString StoreFile::draftPath() const
{
    return mediadispatch::draftPath(m_path);
}

bool StoreFile::makeDraft() const
{
    removeDraft();
    const int handle = ::open(QFile::encodeName(draftPath()).constData(),
                              O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return handle >= 0 && ::close(handle) == 0;
}

bool StoreFile::fillFromDraft() const
{
    const QByteArray draft = QFile::encodeName(draftPath());
    const QByteArray place = QFile::encodeName(m_path);
    struct stat former = {};
    const int error = lookAt(m_path, former);
    if (error == ENOENT) {
        // Unlike the call below this leaves a file alone that another program makes meanwhile.
        return ::renameat2(AT_FDCWD, draft.constData(), AT_FDCWD, place.constData(),
                           RENAME_NOREPLACE) == 0 ||
               (isUnknownCall(errno) && ::link(draft.constData(), place.constData()) == 0);
    }
    return error == 0 && isEmpty(former) &&
           ::chmod(draft.constData(), former.st_mode & kModeBits) == 0 &&
           std::rename(draft.constData(), place.constData()) == 0;
}

void StoreFile::removeDraft() const
{
    for (const char* suffix : kDatabaseSuffixes) {
        QFile::remove(draftPath() + QLatin1String(suffix));
    }
}

void StoreFile::removeLeftDrafts() const
{
    mediadispatch::removeLeftDrafts(m_path);
}

StoreFile::Stamp StoreFile::stamp() const
{
    Stamp stamp;
    stamp.logSize = QFileInfo(logPath()).size();
    struct stat status = {};
    if (::stat(QFile::encodeName(m_path).constData(), &status) == 0) {
        constexpr std::int64_t second = 1000000000;
        stamp.identity = {status.st_dev, status.st_ino};
        stamp.size = status.st_size;
        stamp.changed = status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec;
    }
    return stamp;
}

StoreFile::Identity StoreFile::identity() const
{
    return identityOf(m_path);
}

StoreFile::Identity StoreFile::logIdentity() const
{
    return identityOf(logPath());
}

QString StoreFile::logPath() const
{
    return m_path + QLatin1String("-wal");
}

QString StoreFile::logIndexPath() const
{
    return m_path + QLatin1String("-shm");
}

} // namespace trel::mediadispatch
