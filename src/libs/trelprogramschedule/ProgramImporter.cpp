#include "ProgramImporter.h"

#include "ShownAddress.h"
#include "media/MediaModule.h"

#include <QDir>
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

/// Collects the files of folders, in the order of their names.
class Walk
{
public:
    void add(const QString& path, bool isNamed);

    std::vector<Candidate> takeFiles() { return std::move(m_files); }

private:
    void addFolder(const QString& path);

    std::vector<Candidate> m_files;
    QSet<QString> m_known;   ///< Files that stand in the list.
    QSet<QString> m_folders; ///< Folders that were gone through, behind any links.
};

void Walk::add(const QString& path, bool isNamed)
{
    if (QFileInfo(path).isDir()) {
        addFolder(path);
        return;
    }
    if (!m_known.contains(path)) {
        m_known.insert(path);
        m_files.push_back({path, isNamed});
    }
}

void Walk::addFolder(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (m_folders.contains(canonical)) {
        return; // A link may lead back up.
    }
    m_folders.insert(canonical);
    const QDir folder(path);
    QStringList names = folder.entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order == 0 ? a < b : order < 0;
    });
    for (const QString& name : qAsConst(names)) {
        add(folder.filePath(name), false);
    }
}

/// Why a file cannot be read, before its content is looked at; empty when it can.
QString obstacle(const QFileInfo& info)
{
    if (!info.exists()) {
        return QStringLiteral("There is no such file.");
    }
    if (!info.isFile()) {
        return QStringLiteral("It is no file.");
    }
    if (!info.isReadable()) {
        return QStringLiteral("It may not be read.");
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

std::vector<Candidate> candidates(const QStringList& paths)
{
    Walk walk;
    for (const QString& path : paths) {
        if (isAddress(path)) {
            walk.add(path, true);
        } else if (!path.isEmpty()) {
            walk.add(localPath(path), true);
        }
    }
    return walk.takeFiles();
}

} // namespace

ImportScan scanMedia(const QStringList& paths, const ImportProgress& progress)
{
    ImportScan scan;
    const std::vector<Candidate> found = candidates(paths);
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
