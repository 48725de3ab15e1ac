#include "ContentReader.h"

#include "media/MediaFile.h"

#include <QCryptographicHash>

#include <cerrno>
#include <optional>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

/// As much as is read at once: some milliseconds of work between two questions whether to go on.
constexpr std::size_t kPart = std::size_t(1024) * 1024;

/// Size and time of change of an open file; unknown where the system does not tell.
ProgramContent stampOf(const MediaFile& file)
{
    constexpr qint64 nanoseconds = 1'000'000'000;
    ProgramContent stamp;
    struct stat seen = {};
    if (::fstat(file.descriptor(), &seen) == 0) {
        stamp.size = seen.st_size;
        stamp.modifiedNs = seen.st_mtim.tv_sec * nanoseconds + seen.st_mtim.tv_nsec;
    }
    return stamp;
}

bool isSameStamp(const ProgramContent& a, const ProgramContent& b)
{
    return a.size >= 0 && a.size == b.size && a.modifiedNs == b.modifiedNs;
}

/// Reads up to a part of a file; 0 at its end, and none where it cannot be read.
std::optional<std::size_t> readPart(const MediaFile& file, std::vector<char>& part)
{
    for (;;) {
        const ssize_t read = ::read(file.descriptor(), part.data(), part.size());
        if (read >= 0) {
            return static_cast<std::size_t>(read);
        }
        if (errno != EINTR) {
            return std::nullopt;
        }
    }
}

/// The hash of all that is still to be read; empty where that came to no end.
QByteArray hashOf(const MediaFile& file, const ContentCancelled& isCancelled)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    std::vector<char> part(kPart);
    for (;;) {
        if (isCancelled && isCancelled()) {
            return {};
        }
        const std::optional<std::size_t> read = readPart(file, part);
        if (!read) {
            return {};
        }
        if (*read == 0) {
            return hash.result().toHex();
        }
        hash.addData(part.data(), static_cast<int>(*read));
    }
}

ProgramContent contentOf(const MediaFile& file, const ProgramContent& known,
                         const ContentCancelled& isCancelled)
{
    ProgramContent content = stampOf(file);
    if (known.isKnown() && isSameStamp(content, known)) {
        return known;
    }
    content.sha256 = hashOf(file, isCancelled);
    // What is written while it is read is neither the one nor the other.
    return content.isKnown() && isSameStamp(content, stampOf(file)) ? content : ProgramContent();
}

} // namespace

ProgramContent readContent(const QString& path, const ProgramContent& known,
                           const ContentCancelled& isCancelled)
{
    const MediaFile file(path);
    return file.descriptor() >= 0 ? contentOf(file, known, isCancelled) : ProgramContent();
}

ContentState contentState(const QString& path, const ProgramContent& known,
                          const ContentCancelled& isCancelled)
{
    if (!known.isKnown()) {
        return ContentState::NotKnown;
    }
    const MediaFile file(path);
    if (file.fault().code == FaultCode::EmptyFile) {
        return ContentState::Changed;
    }
    if (file.descriptor() < 0) {
        return ContentState::Unreadable;
    }
    if (stampOf(file).size != known.size) {
        return ContentState::Changed;
    }
    const ProgramContent now = contentOf(file, known, isCancelled);
    if (!now.isKnown()) {
        return ContentState::Unreadable;
    }
    return now.sha256 == known.sha256 ? ContentState::Same : ContentState::Changed;
}

} // namespace trel::mediadispatch
