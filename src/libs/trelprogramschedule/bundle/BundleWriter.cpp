#include "BundleWriter.h"

#include "BundleManifest.h"
#include "media/MediaFile.h"
#include "json/FileReplacement.h"
#include "json/NamedSchedule.h"

#include <QCryptographicHash>

#include <archive.h>
#include <archive_entry.h>

#include <cerrno>
#include <memory>
#include <vector>

#include <unistd.h>

namespace trel::mediadispatch {

namespace {

/// As much as is written at once.
constexpr std::size_t kPart = std::size_t(256) * 1024;

BundleFault faultOf(BundleProblem problem, const QString& words = {}, const Fault& cause = {})
{
    BundleFault fault;
    fault.problem = problem;
    fault.words = words;
    fault.cause = cause;
    return fault;
}

struct FreeArchive
{
    void operator()(archive* writer) const { archive_write_free(writer); }
};

struct FreeEntry
{
    void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};

/// A file of the contents, with what is to be in it.
struct SourceFile
{
    BundleMedia media;
    QString path;
};

/// The files in the order of their programs, each once.
std::vector<SourceFile> sourceFiles(const BundleContents& contents)
{
    std::map<std::string, QString> left = contents.files;
    std::vector<SourceFile> files;
    for (const NamedProgram& program : contents.programs) {
        const auto file = left.find(program.sha256);
        if (file != left.end()) {
            files.push_back({{program.sha256, program.size}, file->second});
            left.erase(file);
        }
    }
    return files;
}

/// An archive on its way into a file.
class Bundle
{
public:
    explicit Bundle(int handle);

    BundleFault write(const BundleContents& contents, const BundleProgress& progress);

private:
    /// The head of an entry.
    BundleFault begin(const QByteArray& name, qint64 size);
    BundleFault add(const QByteArray& name, const QByteArray& content);
    BundleFault add(const SourceFile& file);
    /// More of the content of the entry that was begun last.
    BundleFault put(const char* bytes, std::size_t size);
    /// Why the file could not be written.
    BundleFault fault() const;

    std::unique_ptr<archive, FreeArchive> m_archive;
    bool m_isOpen = false;
};

Bundle::Bundle(int handle)
    : m_archive(archive_write_new())
{
    archive* const writer = m_archive.get();
    // What takes no more than the first form of all is written in that.
    m_isOpen = writer != nullptr && archive_write_set_format_pax_restricted(writer) == ARCHIVE_OK &&
               archive_write_set_bytes_in_last_block(writer, 1) == ARCHIVE_OK &&
               archive_write_open_fd(writer, handle) == ARCHIVE_OK;
}

BundleFault Bundle::fault() const
{
    archive* const writer = m_archive.get();
    const int error = writer == nullptr ? ENOMEM : archive_errno(writer);
    return faultOf(BundleProblem::CannotWrite, {},
                   mediadispatch::faultOf(FaultCode::System, error > 0 ? error : EIO));
}

BundleFault Bundle::begin(const QByteArray& name, qint64 size)
{
    const std::unique_ptr<archive_entry, FreeEntry> entry(archive_entry_new());
    if (!entry) {
        return faultOf(BundleProblem::CannotWrite, {}, {FaultCode::NoMemory, {}});
    }
    constexpr unsigned mode = 0644;
    archive_entry_set_pathname(entry.get(), name.constData());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), mode);
    archive_entry_set_size(entry.get(), size);
    archive_entry_set_mtime(entry.get(), 0, 0);
    return archive_write_header(m_archive.get(), entry.get()) == ARCHIVE_OK ? BundleFault()
                                                                            : fault();
}

BundleFault Bundle::put(const char* bytes, std::size_t size)
{
    while (size > 0) {
        const la_ssize_t count = archive_write_data(m_archive.get(), bytes, size);
        if (count <= 0) {
            return fault();
        }
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
    return {};
}

BundleFault Bundle::add(const QByteArray& name, const QByteArray& content)
{
    BundleFault found = begin(name, content.size());
    return found ? found : put(content.constData(), static_cast<std::size_t>(content.size()));
}

/// Reads up to a part of a file; 0 at its end, and below where it cannot be read.
ssize_t readPart(const MediaFile& file, std::vector<char>& part)
{
    for (;;) {
        const ssize_t count = ::read(file.descriptor(), part.data(), part.size());
        if (count >= 0 || errno != EINTR) {
            return count;
        }
    }
}

BundleFault Bundle::add(const SourceFile& file)
{
    const MediaFile source(file.path);
    if (source.descriptor() < 0) {
        return faultOf(BundleProblem::SourceGone, file.path, source.fault());
    }
    BundleFault found = begin(bundleEntry(file.media), file.media.size);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    std::vector<char> part(kPart);
    qint64 left = file.media.size;
    while (!found) {
        const ssize_t count = readPart(source, part);
        if (count < 0) {
            return faultOf(BundleProblem::SourceGone, file.path);
        }
        if (count == 0 || count > left) {
            break;
        }
        left -= count;
        hash.addData(part.data(), static_cast<int>(count));
        found = put(part.data(), static_cast<std::size_t>(count));
    }
    const bool isSame = hash.result().toHex().toStdString() == file.media.sha256;
    return found || isSame ? found : faultOf(BundleProblem::SourceChanged, file.path);
}

BundleFault Bundle::write(const BundleContents& contents, const BundleProgress& progress)
{
    if (!m_isOpen) {
        return fault();
    }
    const std::vector<SourceFile> files = sourceFiles(contents);
    const QByteArray schedule = namedScheduleToJson(contents.tasks, contents.programs);
    BundleManifest manifest;
    manifest.scheduleSize = schedule.size();
    manifest.scheduleSha256 =
        QCryptographicHash::hash(schedule, QCryptographicHash::Sha256).toHex().toStdString();
    for (const SourceFile& file : files) {
        manifest.media.push_back(file.media);
    }
    BundleFault found = add(kBundleManifest, manifestToJson(manifest));
    if (!found) {
        found = add(kBundleSchedule, schedule);
    }
    for (std::size_t i = 0; !found && i < files.size(); ++i) {
        const bool goesOn = !progress || progress(static_cast<int>(i),
                                                  static_cast<int>(files.size()), files[i].path);
        found = goesOn ? add(files[i]) : faultOf(BundleProblem::CannotWrite);
    }
    if (!found && archive_write_close(m_archive.get()) != ARCHIVE_OK) {
        found = fault();
    }
    return found;
}

} // namespace

BundleFault writeBundle(const QString& path, const BundleContents& contents,
                        const BundleProgress& progress)
{
    BundleFault found;
    const Fault refused = replaceFile(path, QByteArray(), [&](int handle) {
        found = Bundle(handle).write(contents, progress);
        if (found) {
            errno = EIO;
        }
        return !found && ::fdatasync(handle) == 0;
    });
    return found || !refused ? found : faultOf(BundleProblem::CannotWrite, {}, refused);
}

} // namespace trel::mediadispatch
