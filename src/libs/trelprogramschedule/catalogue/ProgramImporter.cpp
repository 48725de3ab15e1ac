#include "ProgramImporter.h"

#include "ShownAddress.h"
#include "media/MediaModule.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>
#include <QUrl>

#include <algorithm>
#include <optional>

namespace trel::mediadispatch {

namespace {

/// What a name alone tells about a file found in a folder: with one of these suffixes it is meant
/// to be media, and is worth a word when it cannot be read.
const QSet<QString>& mediaSuffixes()
{
    static const QSet<QString> suffixes = [] {
        const QString names = QStringLiteral(
            "3gp aac ac3 aif aiff amr apng asf avi avif bmp dv f4v flac flv gif h264 h265 heic "
            "heif hevc ico jp2 jpe jpeg jpg m1v m2ts m2v m4a m4v mka mkv mov mp2 mp3 mp4 mpe mpeg "
            "mpg mts mxf oga ogg ogv opus png svg tga tif tiff ts vob wav webm webp wma wmv");
        const QStringList list = names.split(QLatin1Char(' '));
        return QSet<QString>(list.begin(), list.end());
    }();
    return suffixes;
}

bool isNamedAsMedia(const QString& path)
{
    return mediaSuffixes().contains(QFileInfo(path).suffix().toLower());
}

/// A local path, or the address of a live source, as somebody gave it.
struct Candidate
{
    QString path;
    bool isNamed = false; ///< Named itself, as opposed to found in a folder.
};

bool isLiveScheme(const QString& scheme)
{
    static const QSet<QString> schemes = {
        QStringLiteral("http"),  QStringLiteral("https"), QStringLiteral("mms"),
        QStringLiteral("mmsh"),  QStringLiteral("rist"),  QStringLiteral("rtmp"),
        QStringLiteral("rtmps"), QStringLiteral("rtp"),   QStringLiteral("rtsp"),
        QStringLiteral("rtsps"), QStringLiteral("srt"),   QStringLiteral("tcp"),
        QStringLiteral("udp")};
    return schemes.contains(scheme);
}

/// The scheme in front of "://", in lower case; empty for a path.
QString schemeOf(const QString& path)
{
    const int end = path.indexOf(QLatin1String("://"));
    return end < 0 ? QString() : path.left(end).toLower();
}

/// Collects the files of folders, in the order of their names, until it is told to end.
class Walk
{
public:
    explicit Walk(const ImportSearch& search)
        : m_search(search)
    {}

    void addNamed(const QString& path);

    bool isEnded() const { return m_isEnded; }
    std::vector<Candidate> takeFiles() { return std::move(m_files); }

private:
    struct Entry
    {
        QString name;
        QString path;
        bool isFolder = false;
    };

    /// Asks whether to go on; once it is not, nothing goes on any more.
    bool goesOn();
    /// False for a file that was found before.
    bool findFile(const QString& path);
    void addFolder(const QString& path);
    std::vector<Entry> entries(const QString& path);

    const ImportSearch& m_search;
    bool m_isEnded = false;
    std::vector<Candidate> m_files;
    QSet<QString> m_found;   ///< Files, those included that do not stand in the list yet.
    QSet<QString> m_folders; ///< Folders that were gone through, behind any links.
};

void Walk::addNamed(const QString& path)
{
    if (!goesOn()) {
        return;
    }
    if (QFileInfo(path).isDir()) {
        addFolder(path);
    } else if (findFile(path)) {
        m_files.push_back({path, true});
    }
}

bool Walk::goesOn()
{
    m_isEnded = m_isEnded || (m_search && !m_search(m_found.size()));
    return !m_isEnded;
}

bool Walk::findFile(const QString& path)
{
    const int before = m_found.size();
    m_found.insert(path);
    return m_found.size() > before;
}

void Walk::addFolder(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (m_folders.contains(canonical)) {
        return; // A link may lead back up.
    }
    m_folders.insert(canonical);
    for (const Entry& entry : entries(path)) {
        if (m_isEnded) {
            return;
        }
        if (!entry.isFolder) {
            m_files.push_back({entry.path, false});
        } else if (goesOn()) {
            addFolder(entry.path);
        }
    }
}

/// What stands in a folder and was not found before, by name. Read one by one, since a single
/// folder may hold very many.
std::vector<Walk::Entry> Walk::entries(const QString& path)
{
    std::vector<Entry> list;
    QDirIterator next(path, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (next.hasNext() && goesOn()) {
        const QString inner = next.next();
        const bool isFolder = next.fileInfo().isDir();
        if (isFolder || findFile(inner)) {
            list.push_back({next.fileName(), inner, isFolder});
        }
    }
    std::sort(list.begin(), list.end(), [](const Entry& a, const Entry& b) {
        const int order = a.name.compare(b.name, Qt::CaseInsensitive);
        return order == 0 ? a.name < b.name : order < 0;
    });
    return list;
}

/// Why a file cannot be read, before its content is looked at; empty when it can.
QString obstacle(const QFileInfo& info)
{
    if (!info.exists()) {
        return QStringLiteral("There is no such file.");
    }
    if (!info.isFile()) {
        return QStringLiteral("It is not a file.");
    }
    if (!info.isReadable()) {
        return QStringLiteral("You do not have permission to read it.");
    }
    return info.size() == 0 ? QStringLiteral("It is empty.") : QString();
}

void scanAddress(const QString& address, ImportScan& scan)
{
    const QString scheme = schemeOf(address);
    const QUrl url(address);
    if (!isLiveScheme(scheme) || address.size() == scheme.size() + 3) {
        scan.refusals.push_back(
            {address, QStringLiteral("Addresses of this kind are not played.")});
        return;
    }
    if (scheme.startsWith(QLatin1String("http")) && isNamedAsMedia(url.path())) {
        scan.refusals.push_back(
            {address, QStringLiteral("It is a file on another machine; copy it here first.")});
        return;
    }
    scan.sources.push_back({shownAddress(address), address, 0.0, ProgramKind::Live});
}

/// The base name; all of it where there is nothing in front of the suffix.
QString shownName(const QFileInfo& info)
{
    const QString name = info.completeBaseName();
    return name.isEmpty() ? info.fileName() : name;
}

/// The module for media files, opened with the first file of a scan and asked for once in it: where
/// it cannot be opened, trying again for each of many files would only take its time.
class Probe
{
public:
    MediaFacts facts(const QString& path, bool isNamedAsMedia)
    {
        if (!m_opened) {
            m_opened = MediaModule::instance().open();
        }
        return m_opened->reader == nullptr ? MediaFacts{ProgramKind::Other, 0.0, m_opened->problem}
                                           : m_opened->reader->facts(path, isNamedAsMedia);
    }

private:
    std::optional<MediaModule::Opened> m_opened;
};

void scanFile(const Candidate& candidate, Probe& probe, ImportScan& scan)
{
    const QFileInfo info(candidate.path);
    const bool isMediaByName = isNamedAsMedia(candidate.path);
    QString reason = obstacle(info);
    if (reason.isEmpty()) {
        const MediaFacts facts = probe.facts(candidate.path, isMediaByName);
        if (facts.reason.isEmpty()) {
            scan.sources.push_back({shownName(info), candidate.path, facts.durationMs, facts.kind});
            return;
        }
        reason = facts.reason;
    }
    if (candidate.isNamed || isMediaByName) {
        scan.refusals.push_back({candidate.path, reason});
    }
}

/// A path as given, without a scheme for files and absolute.
QString localPath(const QString& path)
{
    const QString given = schemeOf(path) == QLatin1String("file") ? QUrl(path).toLocalFile() : path;
    return QDir::cleanPath(QDir().absoluteFilePath(given));
}

bool isAddress(const QString& path)
{
    const QString scheme = schemeOf(path);
    return !scheme.isEmpty() && scheme != QLatin1String("file") && !QFileInfo::exists(path);
}

void addTo(Walk& walk, const QStringList& paths)
{
    for (const QString& path : paths) {
        if (isAddress(path)) {
            walk.addNamed(path);
        } else if (!path.isEmpty()) {
            walk.addNamed(localPath(path));
        }
    }
}

} // namespace

ImportScan scanMedia(const QStringList& paths, const ImportProgress& progress,
                     const ImportSearch& search)
{
    ImportScan scan;
    Walk walk(search);
    addTo(walk, paths);
    if (walk.isEnded()) {
        scan.cancelled = true;
        return scan;
    }
    const std::vector<Candidate> found = walk.takeFiles();
    Probe probe;
    int done = 0;
    for (const Candidate& candidate : found) {
        if (progress && !progress(done, static_cast<int>(found.size()), candidate.path)) {
            scan.cancelled = true;
            return scan;
        }
        if (isAddress(candidate.path)) {
            scanAddress(candidate.path, scan);
        } else {
            scanFile(candidate, probe, scan);
        }
        ++done;
    }
    return scan;
}

} // namespace trel::mediadispatch
