#include "ScheduleMirror.h"

#include "TaskSets.h"
#include "catalogue/ProgramFileWatch.h"
#include "media/MediaFolder.h"
#include "store/StoreAttempt.h"
#include "store/StoreEngines.h"
#include "store/StoreMirror.h"
#include "store/StorePlace.h"
#include "store/StoreRefusals.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// How long files that come are gathered, where many are being fetched.
constexpr std::chrono::seconds kGathering{3};

constexpr const char* kDatabaseSuffixes[] = {"", "-wal", "-shm"};

/// By which name whoever asks, since the user is no part of what is mirrored.
QString sourceOf(const QString& address)
{
    constexpr int usualPort = 5432;
    const StorePlace place(address);
    if (!place.isOnServer() || place.flaw() != StorePlace::Flaw::None) {
        return {};
    }
    return QStringLiteral("%1:%2/%3?schedule=%4")
        .arg(place.host(), QString::number(place.port() < 0 ? usualPort : place.port()),
             place.database(), place.schedule());
}

/// Whether a file is of no use any more, and stands where the mirror has to be.
bool isSpoilt(StoreProblem problem)
{
    return problem == StoreProblem::NotADatabase || problem == StoreProblem::Damaged ||
           problem == StoreProblem::Altered || problem == StoreProblem::NewerSchema;
}

} // namespace

ScheduleMirror::ScheduleMirror(QString file, const QString& address)
    : m_file(std::move(file))
    , m_source(sourceOf(address))
    , m_tasks(std::make_shared<const TaskMap>())
{}

ScheduleMirror::~ScheduleMirror() = default;

StoreResult ScheduleMirror::open()
{
    watchFiles();
    StoreResult result = openToWrite();
    if (!result && result.problem != StoreProblem::Foreign) {
        if (StoreResult read = openAs(StoreOpenMode::ReadOnly); read) {
            // What becomes of it is told when there is something to write.
            m_engine.reset();
            return read;
        }
    }
    return result;
}

void ScheduleMirror::watchFiles()
{
    if (m_files) {
        return;
    }
    FileScanHabits habits;
    if (!m_mediaFolder.isEmpty()) {
        // Each look that finds something makes another schedule, which is recorded as a whole.
        habits.gather = kGathering;
    }
    m_files = std::make_unique<ProgramFileWatch>([this] { return m_catalogue.files(); }, habits);
    connect(m_files.get(), &ProgramFileWatch::found, this, [this](const ProgramFiles& files) {
        if (m_catalogue.takeFiles(files)) {
            emit filesChanged();
        }
    });
}

StoreResult ScheduleMirror::openToWrite()
{
    QDir().mkpath(QFileInfo(m_file).absolutePath());
    StoreResult result = openAs(StoreOpenMode::CreateIfMissing);
    if (isSpoilt(result.problem)) {
        putAside();
        result = openAs(StoreOpenMode::CreateIfMissing);
    }
    return result;
}

StoreResult ScheduleMirror::openAs(StoreOpenMode mode)
{
    m_engine.reset();
    std::unique_ptr<StoreEngine> engine;
    StoreResult result = attempt(m_file, [&] {
        engine = engineFor(m_file, mode, [this](const StoreConnection& connection) {
            look(StoreMirror(connection, m_file));
        });
        if (StoreResult opened = engine->open(); !opened) {
            throw StoreError{std::move(opened)};
        }
    });
    if (!result) {
        return result;
    }
    m_engine = std::move(engine);
    if (!m_seen.to.identity.isEmpty()) {
        hold(m_seen);
    }
    m_state = std::exchange(m_seen, {}).to;
    return result;
}

/// Nothing was written up to here, so that whatever is refused stays as it is.
void ScheduleMirror::look(const StoreMirror& mirror)
{
    m_seen = {};
    const std::optional<StoreMirror::Mark> mark = mirror.mark();
    if (!mark && !mirror.isVacant()) {
        throw StoreError{refusal(StoreProblem::Foreign, m_file)};
    }
    if (mark && mark->source == m_source) {
        m_seen = mirror.read();
    }
}

void ScheduleMirror::putAside() const
{
    const QString aside = m_file + QStringLiteral("-damaged");
    for (const char* const suffix : kDatabaseSuffixes) {
        const QLatin1String end(suffix);
        QFile::remove(aside + end);
        QFile::rename(m_file + end, aside + end);
    }
}

StoreResult ScheduleMirror::take(const MirrorNews& news)
{
    if (!m_engine) {
        if (StoreResult opened = openToWrite(); !opened) {
            return opened;
        }
    }
    if (!m_engine->isInPlace()) {
        // Somebody has taken the file away. The next one begins with nothing.
        m_engine.reset();
        return expectEverything();
    }
    if (!news.isWhole() && news.from != m_state) {
        return expectEverything();
    }
    StoreResult result = m_engine->judgeChange();
    if (result) {
        result = write(news);
    }
    if (result.problem == StoreProblem::MovedOn || result.problem == StoreProblem::Unclear) {
        m_state = MirrorState();
    }
    if (result) {
        hold(news);
        m_state = news.to;
    }
    return result;
}

/// Whatever it held, it has to be given all of it once more.
StoreResult ScheduleMirror::expectEverything()
{
    m_state = MirrorState();
    return refusal(StoreProblem::MovedOn, m_file);
}

StoreResult ScheduleMirror::write(const MirrorNews& news) const
{
    return attempt(m_file, [&] {
        const StoreConnection& connection = *m_engine->connection();
        StoreTransaction transaction(connection, StoreTransaction::Purpose::Write);
        const StoreMirror mirror(connection, m_file);
        // Another player may have the same mirror.
        const std::optional<StoreMirror::Mark> mark = mirror.mark();
        const MirrorState held = mark && mark->source == m_source ? mark->state : MirrorState();
        if (held == news.to) {
            return;
        }
        if (!news.isWhole() && held != news.from) {
            throw StoreError{refusal(StoreProblem::MovedOn, m_file)};
        }
        const bool keepsTasks = news.effect && news.effect->start && held == m_state &&
                                held.identity == news.to.identity && m_start == news.effect->start;
        mirror.take(news, m_source, keepsTasks);
        transaction.commit();
    });
}

void ScheduleMirror::hold(const MirrorNews& news)
{
    if (news.catalogue) {
        m_contents = news.catalogue->contents;
        m_catalogue.assign(withPlaces(*news.catalogue), news.catalogue->removedNames);
        if (!m_mediaFolder.isEmpty()) {
            // None is begun that has not been fetched.
            m_catalogue.takeFiles(ownFiles());
        }
        m_files->renew();
    }
    if (!news.effect) {
        return;
    }
    m_insertions = news.effect->insertions;
    const bool isSame =
        m_start && m_start == news.effect->start && m_state.identity == news.to.identity;
    m_start = news.effect->start;
    if (isSame) {
        return;
    }
    TaskMap tasks = news.effect->tasks;
    for (auto& [id, task] : tasks) {
        markLostEntries(task, [this](int index) { return m_catalogue.contains(index); });
    }
    m_tasks = std::make_shared<const TaskMap>(std::move(tasks));
}

ProgramMap ScheduleMirror::withPlaces(const MirroredCatalogue& catalogue) const
{
    ProgramMap programs = catalogue.programs;
    if (m_mediaFolder.isEmpty()) {
        return programs;
    }
    const MediaFolder folder(m_mediaFolder);
    for (const auto& [index, content] : catalogue.contents) {
        const auto program = programs.find(index);
        if (program != programs.end() && program->second.kind != ProgramKind::Live) {
            program->second.mediaPath = folder.pathOf(content).toStdString();
        }
    }
    return programs;
}

/// Those in the folder of the mirror, and which of them are there now.
ProgramFiles ScheduleMirror::ownFiles() const
{
    ProgramFiles own;
    for (ProgramFile& file : m_catalogue.files()) {
        if (file.path.startsWith(m_mediaFolder + QLatin1Char('/'))) {
            file.isThere = QFile::exists(file.path);
            own.push_back(std::move(file));
        }
    }
    return own;
}

std::shared_ptr<const std::map<int, ProgramIten>> ScheduleMirror::catalogue() const
{
    return m_catalogue.shared();
}

} // namespace trel::mediadispatch
