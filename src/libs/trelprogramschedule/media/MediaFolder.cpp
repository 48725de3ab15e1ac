#include "MediaFolder.h"

#include "MediaFile.h"
#include "store/StoreRefusals.h"
#include "json/FileReplacement.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>
#include <cstdio>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

using Outcome = MediaFolder::Outcome;
using Result = MediaFolder::Result;

/// As much as is copied between two questions whether to go on.
constexpr std::size_t kPart = std::size_t(1024) * 1024;

const QString kDraftEnd = QStringLiteral(".part");

Fault faultOfSystem(int systemError)
{
    return isLackOfSpace(systemError) ? Fault{lackOf(systemError), {}}
                                      : faultOf(FaultCode::System, systemError);
}

/// A new file, which is open for writing for as long as this lives.
class NewFile
{
public:
    explicit NewFile(const QString& path)
        : m_handle(::open(QFile::encodeName(path).constData(),
                          O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC,
                          S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH))
    {}
    ~NewFile()
    {
        if (m_handle >= 0) {
            ::close(m_handle);
        }
    }
    Q_DISABLE_COPY(NewFile)

    bool isOpen() const { return m_handle >= 0; }
    /// False, with the reason in errno.
    bool write(const char* bytes, std::size_t count) const
    {
        while (count > 0) {
            const ssize_t written = ::write(m_handle, bytes, count);
            if (written < 0 && errno != EINTR) {
                return false;
            }
            if (written > 0) {
                bytes += written;
                count -= static_cast<std::size_t>(written);
            }
        }
        return true;
    }
    /// The same.
    bool finish() const { return ::fsync(m_handle) == 0; }

private:
    int m_handle;
};

/// Reads up to a part; negative, with the reason in errno, where that fails.
ssize_t readPart(const MediaFile& file, std::vector<char>& part)
{
    for (;;) {
        const ssize_t read = ::read(file.descriptor(), part.data(), part.size());
        if (read >= 0 || errno != EINTR) {
            return read;
        }
    }
}

Result copy(const MediaFile& from, const NewFile& to, const ProgramContent& content,
            const ContentCancelled& isCancelled)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    std::vector<char> part(kPart);
    qint64 size = 0;
    for (;;) {
        if (isCancelled && isCancelled()) {
            return {Outcome::NotReadable, {FaultCode::ContentUnreadable, {}}};
        }
        const ssize_t read = readPart(from, part);
        if (read < 0) {
            return {Outcome::NotReadable, faultOfSystem(errno)};
        }
        if (read == 0) {
            break;
        }
        size += read;
        if (size > content.size) {
            return {Outcome::Changed, {}};
        }
        hash.addData(part.data(), static_cast<int>(read));
        if (!to.write(part.data(), static_cast<std::size_t>(read))) {
            return {Outcome::NotWritable, faultOfSystem(errno)};
        }
    }
    if (size != content.size || hash.result().toHex() != content.sha256) {
        return {Outcome::Changed, {}};
    }
    return to.finish() ? Result() : Result{Outcome::NotWritable, faultOfSystem(errno)};
}

} // namespace

MediaFolder::MediaFolder(QString path)
    : m_path(std::move(path))
{}

bool MediaFolder::isThere() const
{
    return QFileInfo(m_path).isDir();
}

QString MediaFolder::pathOf(const ProgramContent& content) const
{
    return m_path + QLatin1Char('/') + QString::fromLatin1(content.sha256);
}

bool MediaFolder::holds(const ProgramContent& content) const
{
    const QFileInfo file(pathOf(content));
    return file.isFile() && file.size() == content.size;
}

/// Of this machine and process: others may be about the same file.
QString MediaFolder::draftOf(const ProgramContent& content) const
{
    return QStringLiteral("%1/.%2-%3-%4%5")
        .arg(m_path, QString::fromLatin1(content.sha256),
             QString::fromLatin1(QSysInfo::machineUniqueId().left(8)),
             QString::number(QCoreApplication::applicationPid()), kDraftEnd);
}

Result MediaFolder::put(const QString& file, const ProgramContent& content,
                        const ContentCancelled& isCancelled) const
{
    if (holds(content)) {
        return {Outcome::WasThere, {}};
    }
    const MediaFile source(file);
    if (source.descriptor() < 0) {
        return {Outcome::NotReadable, source.fault()};
    }
    const QString draft = draftOf(content);
    QFile::remove(draft);
    Result result;
    {
        const NewFile made(draft);
        result = made.isOpen() ? copy(source, made, content, isCancelled)
                               : Result{Outcome::NotWritable, faultOfSystem(errno)};
    }
    if (result.outcome == Outcome::Put &&
        std::rename(QFile::encodeName(draft).constData(),
                    QFile::encodeName(pathOf(content)).constData()) != 0) {
        result = {Outcome::NotWritable, faultOfSystem(errno)};
    }
    if (result.outcome == Outcome::Put) {
        syncFolder(pathOf(content));
    } else {
        QFile::remove(draft);
    }
    return result;
}

Result MediaFolder::adopt(const QString& file, const ProgramContent& content,
                          const ContentCancelled& isCancelled) const
{
    {
        const MediaFile made(file);
        if (made.descriptor() < 0) {
            return {Outcome::NotReadable, made.fault()};
        }
        // Before it is read, so that what is read is what will be there.
        if (::fsync(made.descriptor()) != 0) {
            return {Outcome::NotReadable, faultOfSystem(errno)};
        }
    }
    const ProgramContent found = readContent(file, {}, isCancelled);
    if (!found.isKnown()) {
        return {Outcome::NotReadable, {FaultCode::ContentUnreadable, {}}};
    }
    if (found.size != content.size || found.sha256 != content.sha256) {
        QFile::remove(file);
        return {Outcome::Changed, {}};
    }
    if (std::rename(QFile::encodeName(file).constData(),
                    QFile::encodeName(pathOf(content)).constData()) != 0) {
        return {Outcome::NotWritable, faultOfSystem(errno)};
    }
    syncFolder(pathOf(content));
    return {};
}

void MediaFolder::removeLeftovers() const
{
    constexpr qint64 days = 1;
    const QDateTime limit = QDateTime::currentDateTimeUtc().addDays(-days);
    const QFileInfoList drafts = QDir(m_path).entryInfoList(
        {QStringLiteral(".*") + kDraftEnd}, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& draft : drafts) {
        if (draft.lastModified().toUTC() < limit) {
            QFile::remove(draft.filePath());
        }
    }
}

} // namespace trel::mediadispatch
