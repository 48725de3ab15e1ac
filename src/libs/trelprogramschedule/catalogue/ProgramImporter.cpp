#include "ProgramImporter.h"

#include "ContentReader.h"
#include "ShownAddress.h"
#include "media/MediaReaderClient.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>
#include <QTextCodec>
#include <QUrl>

#include <algorithm>
#include <memory>

#include <dirent.h>

namespace trel::mediadispatch {

namespace {

constexpr char kFilms[] = "3gp asf avi dv f4v flv h264 h265 hevc m1v m2ts m2v m4v mkv mov mp4 mpe "
                          "mpeg mpg mts mxf ogv ts "
                          "vob webm wmv";
constexpr char kImages[] =
    "apng avif bmp gif heic heif ico jp2 jpe jpeg jpg png svg tga tif tiff webp";
constexpr char kSounds[] = "aac ac3 aif aiff amr flac m4a mka mp2 mp3 oga ogg opus wav wma";

QStringList wordsOf(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

/// What a name alone tells about a file found in a folder: with one of these suffixes it is meant
/// to be media, and is worth a word when it cannot be read.
const QSet<QString>& allSuffixes()
{
    static const QSet<QString> suffixes = [] {
        const QStringList list = wordsOf(kFilms) + wordsOf(kImages) + wordsOf(kSounds);
        return QSet<QString>(list.begin(), list.end());
    }();
    return suffixes;
}

bool isNamedAsMedia(const QString& path)
{
    return allSuffixes().contains(QFileInfo(path).suffix().toLower());
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

bool isUtf8(const QByteArray& name)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(name.constData(), name.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

/// A name that is not UTF-8, with its foreign bytes written out, such as "caf\xe9.wav".
QString withEscapes(const QByteArray& name)
{
    QString shown;
    for (const char letter : name) {
        const auto byte = static_cast<unsigned char>(letter);
        shown += byte < 0x80 ? QString(QLatin1Char(letter))
                             : QStringLiteral("\\x%1").arg(int(byte), 2, 16, QLatin1Char('0'));
    }
    return shown;
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
    std::vector<ImportRefusal> takeRefusals() { return std::move(m_refusals); }

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
    void refuseForeignNames(const QString& path);

    const ImportSearch& m_search;
    bool m_isEnded = false;
    std::vector<Candidate> m_files;
    std::vector<ImportRefusal> m_refusals;
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
    refuseForeignNames(path);
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

/// The toolkit passes over names that are not UTF-8 without a word.
void Walk::refuseForeignNames(const QString& path)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(QFile::encodeName(path).constData()),
                                                     &::closedir);
    const dirent* entry = folder ? ::readdir(folder.get()) : nullptr;
    for (; entry != nullptr; entry = ::readdir(folder.get())) {
        const QByteArray name(entry->d_name);
        if (!name.startsWith('.') && !isUtf8(name)) {
            m_refusals.push_back(
                {path + QLatin1Char('/') + withEscapes(name), {FaultCode::ForeignName, {}}});
        }
    }
}

void scanAddress(const QString& address, ImportScan& scan)
{
    const QString scheme = schemeOf(address);
    const QUrl url(address);
    if (!isLiveScheme(scheme) || address.size() == scheme.size() + 3) {
        scan.refusals.push_back({address, {FaultCode::AddressNotPlayed, {}}});
        return;
    }
    if (scheme.startsWith(QLatin1String("http")) && isNamedAsMedia(url.path())) {
        scan.refusals.push_back({address, {FaultCode::RemoteFile, {}}});
        return;
    }
    scan.sources.push_back({shownAddress(address), address, 0.0, ProgramKind::Live, {}});
}

/// The base name; all of it where there is nothing in front of the suffix.
QString shownName(const QFileInfo& info)
{
    const QString name = info.completeBaseName();
    return name.isEmpty() ? info.fileName() : name;
}

/// Looks at one file. False when that was cancelled, and nothing came of it.
bool scanFile(const Candidate& candidate, MediaReaderClient& reader,
              const ImportCancelled& isCancelled, const FileContents& known, ImportScan& scan)
{
    const QFileInfo info(candidate.path);
    const bool isMediaByName = isNamedAsMedia(candidate.path);
    // A name that was handed over as text has lost its foreign bytes by now.
    if (candidate.path.contains(QChar(QChar::ReplacementCharacter)) && !info.exists()) {
        scan.refusals.push_back({candidate.path, {FaultCode::ForeignName, {}}});
        return true;
    }
    const MediaFacts facts = reader.facts(candidate.path, isMediaByName, isCancelled);
    if (!facts.fault) {
        if (facts.kind == ProgramKind::Other) {
            return false;
        }
        const auto before = known.find(candidate.path);
        const ProgramContent content = readContent(
            candidate.path, before == known.end() ? ProgramContent() : before->second, isCancelled);
        scan.sources.push_back(
            {shownName(info), candidate.path, facts.durationMs, facts.kind, content});
        return !isCancelled || !isCancelled();
    }
    if (candidate.isNamed || isMediaByName) {
        scan.refusals.push_back({candidate.path, facts.fault});
    }
    return true;
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

QStringList mediaSuffixes(ProgramKind kind)
{
    switch (kind) {
    case ProgramKind::Video:
        return wordsOf(kFilms);
    case ProgramKind::Audio:
        return wordsOf(kSounds);
    case ProgramKind::Image:
        return wordsOf(kImages);
    case ProgramKind::Live:
    case ProgramKind::Other:
        break;
    }
    return {};
}

ImportScan scanMedia(const QStringList& paths, const ImportProgress& progress,
                     const ImportSearch& search, const ImportCancelled& isCancelled,
                     const FileContents& known)
{
    ImportScan scan;
    Walk walk(search);
    addTo(walk, paths);
    if (walk.isEnded()) {
        scan.cancelled = true;
        return scan;
    }
    const std::vector<Candidate> found = walk.takeFiles();
    scan.refusals = walk.takeRefusals();
    MediaReaderClient reader(MediaReaderClient::Purpose::Facts, mediaReading());
    int done = 0;
    for (const Candidate& candidate : found) {
        if (progress && !progress(done, static_cast<int>(found.size()), candidate.path)) {
            scan.cancelled = true;
            return scan;
        }
        if (isAddress(candidate.path)) {
            scanAddress(candidate.path, scan);
        } else if (!scanFile(candidate, reader, isCancelled, known, scan)) {
            scan.cancelled = true;
            return scan;
        }
        ++done;
    }
    return scan;
}

} // namespace trel::mediadispatch
