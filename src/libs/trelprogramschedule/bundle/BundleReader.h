#pragma once

#include "BundleFault.h"
#include "BundleManifest.h"
#include "trelprogramschedule/json/NamedSchedule.h"
#include "trelprogramschedule_export.h"

#include <cstddef>
#include <memory>
#include <vector>

class QIODevice;
struct archive;

namespace trel::mediadispatch {

/// Takes what the media of a bundle hold, one after the other.
class TRELPROGRAMSCHEDULE_EXPORT BundleSink
{
public:
    BundleSink() = default;
    virtual ~BundleSink();
    Q_DISABLE_COPY(BundleSink)

    /// The next one; it is passed over unless it is wanted.
    virtual BundleFault begin(const BundleMedia& media, bool& isWanted) = 0;
    /// More of its bytes.
    virtual BundleFault write(const char* bytes, std::size_t size) = 0;
    /// All of them have come, and have its hash.
    virtual BundleFault end() = 0;
};

/// Reads a bundle: a schedule with its programs and their media in one archive, as writeBundle()
/// makes it. What it reads comes from anywhere: nothing is unpacked but what has the size and the
/// hash that the bundle tells of it, each entry has to be the one that belongs to its place, and no
/// name in the archive is taken for the name of a file. Sizes are bounded.
class TRELPROGRAMSCHEDULE_EXPORT BundleReader
{
public:
    /// Reads a device that is open, has a size and stays as long as the reader.
    explicit BundleReader(QIODevice& device);
    ~BundleReader();
    Q_DISABLE_COPY(BundleReader)

    /// Whether what begins at the place of the device is an archive, and so perhaps a bundle. Reads
    /// nothing.
    static bool isArchive(QIODevice& device);

    /// Reads all but the media. Once, before anything else; where it fails nothing else is read.
    BundleFault open();
    const NamedScheduleFromJson& schedule() const { return m_schedule; }
    /// In the order in which they stand.
    const std::vector<BundleMedia>& media() const { return m_manifest.media; }

    /// Goes through the media to the end of the bundle. Once, behind open().
    BundleFault readMedia(BundleSink& sink);

private:
    struct Free
    {
        void operator()(archive* reader) const;
    };

    /// What the library of archives reads by.
    struct Source;

    BundleFault readManifest();
    BundleFault readSchedule();
    BundleFault readOne(const BundleMedia& media, BundleSink& sink);
    BundleFault expectEnd();
    /// Goes to the next entry, which has to be this one and of a size that is read.
    BundleFault next(const QByteArray& name, qint64 most);
    BundleFault expectSize(qint64 size) const;
    /// Reads all of a small entry.
    BundleFault readWhole(QByteArray& content);
    template <typename Take>
    BundleFault readContent(const Take& take);
    /// A fault at the place up to which the entry has been read.
    BundleFault fault(BundleProblem problem, const QString& words = {},
                      const Fault& cause = {}) const;
    /// What the library of archives says has gone wrong.
    BundleFault faultOfArchive() const;

    QIODevice& m_device;
    QByteArray m_part; ///< What the library of archives reads from.
    std::unique_ptr<archive, Free> m_archive;
    QByteArray m_name;       ///< Of the entry that is read.
    qint64 m_position = 0;   ///< Where its head begins.
    qint64 m_size = 0;       ///< Of its content.
    qint64 m_read = 0;       ///< Of this, so far.
    bool m_isUnread = false; ///< The device refused to be read.
    BundleManifest m_manifest;
    NamedScheduleFromJson m_schedule;
};

} // namespace trel::mediadispatch
