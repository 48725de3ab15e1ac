#include "StoreFile.h"

#include "StoreMessages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <cstdio>

#include <sys/stat.h>

namespace trel::mediadispatch {

namespace {

/// Where a database of SQLite says what it is.
constexpr int kHeaderSize = 100;
constexpr int kSchemaOffset = 60;
constexpr int kApplicationOffset = 68;
constexpr char kMagic[] = "SQLite format 3"; // with the zero that ends it

QString resolved(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    return info.isSymLink() ? info.symLinkTarget() : QDir::current().absoluteFilePath(path);
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
    const QFileInfo info(m_path);
    return !info.exists() || (info.isFile() && info.size() == 0);
}

StoreResult StoreFile::judge(StoreOpenMode mode, qint64 applicationId, int newestSchema) const
{
    const QFileInfo info(m_path);
    if (!QFileInfo(info.absolutePath()).isDir()) {
        return refusal(StoreProblem::FolderMissing, m_path);
    }
    if (info.exists() && !info.isFile()) {
        return refusal(StoreProblem::NotADatabase, m_path);
    }
    const StoreResult content =
        isVacant() ? judgeVacant(mode) : judgeHeader(applicationId, newestSchema);
    return content ? judgeWritable() : content;
}

StoreResult StoreFile::judgeVacant(StoreOpenMode mode) const
{
    if (QFileInfo(logPath()).size() > 0) {
        // The log would be replayed into whatever is put here next.
        return refusal(StoreProblem::Damaged, m_path,
                       QStringLiteral("it has gone or is empty, yet its log %1 is still there")
                           .arg(QFileInfo(logPath()).fileName()));
    }
    if (mode == StoreOpenMode::CreateIfMissing) {
        return {};
    }
    return refusal(
        QFileInfo::exists(m_path) ? StoreProblem::NotADatabase : StoreProblem::FileMissing, m_path);
}

StoreResult StoreFile::judgeHeader(qint64 applicationId, int newestSchema) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return refusal(StoreProblem::Other, m_path, file.errorString());
    }
    const QByteArray header = file.read(kHeaderSize);
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
    if ((info.exists() && isMarkedReadOnly(info)) ||
        isMarkedReadOnly(QFileInfo(info.absolutePath()))) {
        return refusal(StoreProblem::ReadOnly, m_path);
    }
    return {};
}

bool StoreFile::hasSidecars() const
{
    return QFileInfo::exists(logPath()) || hasLogIndex();
}

bool StoreFile::hasLogIndex() const
{
    return QFileInfo::exists(logIndexPath());
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

bool StoreFile::fillFrom(const QString& finished) const
{
    if (!QFileInfo::exists(m_path)) {
        // Unlike the call below this leaves a file alone that another program makes meanwhile.
        return QFile::rename(finished, m_path);
    }
    return std::rename(QFile::encodeName(finished).constData(),
                       QFile::encodeName(m_path).constData()) == 0;
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
