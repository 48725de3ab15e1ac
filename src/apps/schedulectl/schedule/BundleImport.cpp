#include "BundleImport.h"

#include "common/DisplayText.h"
#include "text/Console.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QFileInfo>

#include <algorithm>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

bool isLacking(const ProgramMatch& match)
{
    return match.trait == ProgramTrait::None || match.trait == ProgramTrait::Name ||
           match.isOtherContent || match.isGone;
}

/// Whether what a bundle says of a live source is all that it takes to play it: where there is a
/// user, a password may have been left out. No path of a file is taken for an address.
bool isWholeAddress(const NamedProgram& program)
{
    const QString address = QString::fromStdString(program.path);
    return program.kind == ProgramKind::Live && !address.startsWith(QLatin1Char('/')) &&
           address.indexOf(QLatin1String("://")) > 0 &&
           !address.startsWith(QLatin1String("file:"), Qt::CaseInsensitive) &&
           !address.contains(QLatin1Char('@')) && !address.contains(QLatin1String("***")) &&
           !QFileInfo::exists(address);
}

/// Shows how far the media have come, on their way to where they go.
class ShownSink final : public BundleSink
{
public:
    ShownSink(BundleSink& target, int total, Console& console)
        : m_target(target)
        , m_total(total)
        , m_console(console)
    {}

    BundleFault begin(const BundleMedia& media, bool& isWanted) override
    {
        m_console.showProgress(++m_done, m_total, QString::fromLatin1(bundleEntry(media)));
        return m_target.begin(media, isWanted);
    }
    BundleFault write(const char* bytes, std::size_t size) override
    {
        return m_target.write(bytes, size);
    }
    BundleFault end() override { return m_target.end(); }

private:
    BundleSink& m_target;
    int m_total;
    int m_done = 0;
    Console& m_console;
};

/// What is put into the catalogue, by its path or address.
std::map<QString, MediaSource> sourcesAt(const std::set<QString>& places, const FileContents& known,
                                         Console& console)
{
    const ImportScan scan = scanMedia(
        QStringList(places.begin(), places.end()),
        [&console](int done, int total, const QString& path) {
            console.showProgress(done + 1, total, shownAddress(path));
            return true;
        },
        {}, {}, known);
    for (const ImportRefusal& refusal : scan.refusals) {
        console.tell(QStringLiteral("%1: %2").arg(printable(shownAddress(refusal.path)),
                                                  englishSentence(refusal.fault)));
    }
    std::map<QString, MediaSource> sources;
    for (const MediaSource& source : scan.sources) {
        sources[source.path] = source;
    }
    return sources;
}

} // namespace

bool BundleImport::isBundle(const QString& path)
{
    // Only what lies on a disk, as a pipe is read once.
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) &&
           BundleReader::isArchive(file);
}

BundleImport::BundleImport(const QString& path)
    : m_path(path)
    , m_file(path)
    , m_reader(m_file)
{}

QString BundleImport::open()
{
    if (!m_file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("it cannot be read: ") + m_file.errorString();
    }
    if (const BundleFault fault = m_reader.open()) {
        return englishClause(fault);
    }
    for (const BundleMedia& media : m_reader.media()) {
        m_hashes.insert(media.sha256);
    }
    return QString();
}

const NamedScheduleFromJson& BundleImport::schedule() const
{
    return m_reader.schedule();
}

bool BundleImport::choose(std::vector<FoundProgram>& programs, bool hasFolder) const
{
    bool isFolderMissed = false;
    for (FoundProgram& program : programs) {
        const bool hasMedia = m_hashes.count(program.sought.sha256) > 0;
        const bool isMissing = program.match.trait == ProgramTrait::None;
        const bool isBrought = hasMedia ? hasFolder && isLacking(program.match)
                                        : isMissing && isWholeAddress(program.sought);
        isFolderMissed =
            isFolderMissed || (hasMedia && !hasFolder && isMissing && program.isPlayed);
        if (isBrought) {
            program.isBrought = true;
            program.match = {};
        }
    }
    return isFolderMissed;
}

QString BundleImport::placeOf(const NamedProgram& program) const
{
    const auto file = m_folder->files().find(program.sha256);
    return file != m_folder->files().end() ? file->second.path
                                           : QString::fromStdString(program.path);
}

bool BundleImport::bring(const QString& folder, std::vector<FoundProgram>& programs,
                         ScheduleImport& import, Console& console)
{
    std::map<std::string, NamedProgram> wanted;
    for (const FoundProgram& program : programs) {
        if (program.isBrought && m_hashes.count(program.sought.sha256) > 0) {
            wanted.try_emplace(program.sought.sha256, program.sought);
        }
    }
    m_folderPath = folder;
    m_folder = std::make_unique<BundleFolder>(folder, std::move(wanted));
    ShownSink sink(*m_folder, static_cast<int>(m_reader.media().size()), console);
    if (const BundleFault fault = m_reader.readMedia(sink)) {
        console.tell(
            QStringLiteral("%1: %2.").arg(printable(m_path), printable(englishClause(fault))));
        return false;
    }
    std::set<QString> places;
    for (const FoundProgram& program : programs) {
        if (program.isBrought) {
            places.insert(placeOf(program.sought));
        }
    }
    FileContents known;
    for (const auto& [hash, file] : m_folder->files()) {
        known[file.path] = file.content;
    }
    const std::map<QString, MediaSource> sources = sourcesAt(places, known, console);
    std::map<QString, std::size_t> added;
    for (FoundProgram& program : programs) {
        const auto source = sources.find(program.isBrought ? placeOf(program.sought) : QString());
        program.isBrought = source != sources.end();
        if (!program.isBrought) {
            continue;
        }
        const auto [place, isNew] = added.try_emplace(source->first, import.sources.size());
        if (isNew) {
            import.sources.push_back(source->second);
            import.sources.back().name = QString::fromStdString(program.sought.name);
        }
        import.coming[program.sought.progIndex] = place->second;
        program.place = source->first;
    }
    return true;
}

void BundleImport::keep()
{
    if (m_folder) {
        m_folder->keep();
    }
}

QString BundleImport::filesText() const
{
    if (!m_folder || m_folder->files().empty()) {
        return QString();
    }
    const auto& files = m_folder->files();
    const auto wereThere = std::count_if(files.begin(), files.end(),
                                         [](const auto& file) { return file.second.wasThere; });
    return QStringLiteral("%1 written to %2, %3 there already.")
        .arg(counted(static_cast<qint64>(files.size()) - wereThere, QStringLiteral("media file")),
             printable(m_folderPath), QString::number(wereThere));
}

} // namespace trel::console
