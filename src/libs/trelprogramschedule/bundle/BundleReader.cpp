#include "BundleReader.h"

#include "ScheduleLimits.h"

#include <QCryptographicHash>
#include <QIODevice>

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <new>
#include <string>
#include <vector>

namespace trel::mediadispatch {

namespace {

/// As much as is read at once.
constexpr int kPart = 256 * 1024;

/// The first head of an archive, and where the mark stands in it.
constexpr int kHead = 512;
constexpr int kMarkPlace = 257;
const QByteArray kMark = QByteArrayLiteral("ustar");

QByteArray hexOf(const QCryptographicHash& hash)
{
    return hash.result().toHex();
}

} // namespace

BundleSink::~BundleSink() = default;

struct BundleReader::Source
{
    static la_ssize_t read(archive*, void* self, const void** part)
    {
        auto& reader = *static_cast<BundleReader*>(self);
        const qint64 count = reader.m_device.read(reader.m_part.data(), reader.m_part.size());
        reader.m_isUnread = count < 0;
        *part = reader.m_part.constData();
        return reader.m_isUnread ? ARCHIVE_FATAL : static_cast<la_ssize_t>(count);
    }

    /// As far as the device goes; what is beyond shows with the next read.
    static la_int64_t skip(archive*, void* self, la_int64_t size)
    {
        QIODevice& device = static_cast<BundleReader*>(self)->m_device;
        const qint64 from = device.pos();
        const qint64 to =
            std::min<qint64>(from + std::min<qint64>(size, device.size()), device.size());
        return to > from && device.seek(to) ? to - from : 0;
    }
};

void BundleReader::Free::operator()(archive* reader) const
{
    archive_read_free(reader);
}

BundleReader::BundleReader(QIODevice& device)
    : m_device(device)
    , m_part(kPart, '\0')
    , m_archive(archive_read_new())
{}

BundleReader::~BundleReader() = default;

bool BundleReader::isArchive(QIODevice& device)
{
    const QByteArray head = device.peek(kHead);
    return head.size() == kHead && head.mid(kMarkPlace, kMark.size()) == kMark;
}

BundleFault BundleReader::open()
{
    archive* const reader = m_archive.get();
    if (reader == nullptr) {
        return fault(BundleProblem::Unreadable, {}, {FaultCode::NoMemory, {}});
    }
    if (!isArchive(m_device)) {
        return fault(BundleProblem::NotABundle);
    }
    // One form and nothing around it: what is packed could become any size.
    const bool isOpen = archive_read_support_format_tar(reader) == ARCHIVE_OK &&
                        archive_read_open2(reader, this, nullptr, Source::read, Source::skip,
                                           nullptr) == ARCHIVE_OK;
    if (!isOpen) {
        return m_isUnread ? faultOfArchive()
                          : fault(BundleProblem::NotABundle,
                                  QString::fromUtf8(archive_error_string(reader)));
    }
    BundleFault found = readManifest();
    return found ? found : readSchedule();
}

BundleFault BundleReader::fault(BundleProblem problem, const QString& words,
                                const Fault& cause) const
{
    BundleFault made;
    made.problem = problem;
    made.entry = QString::fromLatin1(m_name);
    made.position = m_position + m_read;
    made.words = words;
    made.cause = cause;
    return made;
}

BundleFault BundleReader::faultOfArchive() const
{
    if (m_isUnread) {
        return fault(BundleProblem::Unreadable, {}, {FaultCode::DiskError, {}});
    }
    const QString words = QString::fromUtf8(archive_error_string(m_archive.get()));
    return words.startsWith(QLatin1String("Truncated")) ? fault(BundleProblem::Cut)
                                                        : fault(BundleProblem::Damaged, words);
}

BundleFault BundleReader::next(const QByteArray& name, qint64 most)
{
    m_name = name;
    m_position = std::max<qint64>(archive_filter_bytes(m_archive.get(), -1), 0);
    m_read = 0;
    archive_entry* entry = nullptr;
    const int status = archive_read_next_header(m_archive.get(), &entry);
    if (status == ARCHIVE_EOF) {
        return fault(BundleProblem::Cut);
    }
    if (status != ARCHIVE_OK) {
        return faultOfArchive();
    }
    m_position = archive_read_header_position(m_archive.get());
    const char* const found = archive_entry_pathname(entry);
    if (found == nullptr || name != found) {
        return fault(BundleProblem::Unexpected,
                     QString::fromUtf8(QByteArray(found == nullptr ? "" : found).left(100)));
    }
    // A file that is one: no link, and with no holes, which would take no room in the archive.
    const bool isPlain =
        archive_entry_filetype(entry) == AE_IFREG && archive_entry_hardlink(entry) == nullptr &&
        archive_entry_symlink(entry) == nullptr && archive_entry_size_is_set(entry) != 0 &&
        archive_entry_sparse_count(entry) == 0;
    if (!isPlain) {
        return fault(BundleProblem::Unexpected);
    }
    m_size = archive_entry_size(entry);
    if (m_size < 0 || m_size > most) {
        return fault(BundleProblem::TooLarge);
    }
    if (m_position + m_size > m_device.size()) {
        m_read = std::max<qint64>(m_device.size() - m_position, 0);
        return fault(BundleProblem::Cut);
    }
    return {};
}

BundleFault BundleReader::expectSize(qint64 size) const
{
    return m_size == size ? BundleFault() : fault(BundleProblem::OtherSize);
}

/// Hands over the content of the entry, a part at a time.
template <typename Take>
BundleFault BundleReader::readContent(const Take& take)
{
    std::vector<char> part(kPart);
    for (;;) {
        const la_ssize_t count = archive_read_data(m_archive.get(), part.data(), part.size());
        if (count == 0) {
            return m_read == m_size ? BundleFault() : fault(BundleProblem::Cut);
        }
        if (count < 0) {
            return faultOfArchive();
        }
        m_read += count;
        if (BundleFault found = take(part.data(), static_cast<std::size_t>(count))) {
            return found;
        }
    }
}

BundleFault BundleReader::readWhole(QByteArray& content)
{
    return readContent([&content](const char* bytes, std::size_t size) {
        content.append(bytes, static_cast<int>(size));
        return BundleFault();
    });
}

BundleFault BundleReader::readManifest()
{
    QByteArray json;
    BundleFault found = next(kBundleManifest, kLargestManifest);
    if (found.problem == BundleProblem::Unexpected) {
        return fault(BundleProblem::NotABundle, QStringLiteral("an archive of other files"));
    }
    if (!found) {
        found = readWhole(json);
    }
    if (found) {
        return found;
    }
    BundleManifestFromJson read = manifestFromJson(json);
    if (read.fault) {
        return fault(BundleProblem::BadText, read.place, read.fault);
    }
    m_manifest = std::move(read.manifest);
    return {};
}

BundleFault BundleReader::readSchedule()
{
    QByteArray json;
    BundleFault found = next(kBundleSchedule, kLargestJson);
    if (!found) {
        found = expectSize(m_manifest.scheduleSize);
    }
    if (!found) {
        found = readWhole(json);
    }
    if (found) {
        return found;
    }
    const QByteArray hash = QCryptographicHash::hash(json, QCryptographicHash::Sha256).toHex();
    if (hash.toStdString() != m_manifest.scheduleSha256) {
        return fault(BundleProblem::OtherContent);
    }
    m_schedule = namedScheduleFromJson(json);
    if (m_schedule.fault) {
        return fault(BundleProblem::BadText, m_schedule.place, m_schedule.fault);
    }
    // One without its programs has no use for their media.
    return m_schedule.isNamed ? BundleFault()
                              : fault(BundleProblem::BadText, QStringLiteral("version"),
                                      faultOf(FaultCode::NoSuchVersion, 1));
}

BundleFault BundleReader::readMedia(BundleSink& sink)
{
    for (const BundleMedia& media : m_manifest.media) {
        if (BundleFault found = readOne(media, sink)) {
            return found;
        }
    }
    return expectEnd();
}

BundleFault BundleReader::readOne(const BundleMedia& media, BundleSink& sink)
{
    BundleFault found = next(bundleEntry(media), kLargestMedia);
    if (!found) {
        found = expectSize(media.size);
    }
    bool isWanted = false;
    if (!found) {
        found = sink.begin(media, isWanted);
    }
    if (found || !isWanted) {
        return found;
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    found = readContent([&](const char* bytes, std::size_t size) {
        hash.addData(bytes, static_cast<int>(size));
        return sink.write(bytes, size);
    });
    if (!found && hexOf(hash).toStdString() != media.sha256) {
        found = fault(BundleProblem::OtherContent);
    }
    return found ? found : sink.end();
}

BundleFault BundleReader::expectEnd()
{
    m_name.clear();
    m_position = std::max<qint64>(archive_filter_bytes(m_archive.get(), -1), 0);
    m_read = 0;
    archive_entry* entry = nullptr;
    const int status = archive_read_next_header(m_archive.get(), &entry);
    if (status == ARCHIVE_EOF) {
        return {};
    }
    if (status != ARCHIVE_OK) {
        return faultOfArchive();
    }
    m_position = archive_read_header_position(m_archive.get());
    const char* const found = archive_entry_pathname(entry);
    return fault(BundleProblem::MoreBehind,
                 QString::fromUtf8(QByteArray(found == nullptr ? "" : found).left(100)));
}

} // namespace trel::mediadispatch
