#include "ProgramFileScan.h"

#include "FileLook.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QSet>
#include <QThread>

#include <algorithm>
#include <iterator>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// The folder itself or, while it is not there, the nearest one above it that is.
QString standingFolder(QString path)
{
    for (QFileInfo info(path); !info.isDir() && info.path() != path; info.setFile(path)) {
        path = info.path();
    }
    return path;
}

QStringList without(const QStringList& all, const QStringList& some)
{
    const QSet<QString> taken(some.begin(), some.end());
    QStringList rest;
    std::copy_if(all.begin(), all.end(), std::back_inserter(rest),
                 [&taken](const QString& one) { return !taken.contains(one); });
    return rest;
}

bool isStopping()
{
    return QThread::currentThread()->isInterruptionRequested();
}

} // namespace

FileScanHabits::FileScanHabits()
    : isThere([](const QString& path) { return FileLook::current().isThere(path); })
{}

ProgramFileScan::ProgramFileScan(FileScanHabits habits)
    : m_habits(std::move(habits))
    , m_pause(new QTimer(this))
    , m_round(new QTimer(this))
{
    m_pause->setSingleShot(true);
    connect(m_pause, &QTimer::timeout, this, [this] { look(std::exchange(m_due, {})); });
    m_round->setSingleShot(true);
    connect(m_round, &QTimer::timeout, this, &ProgramFileScan::lookAtAll);
}

void ProgramFileScan::take(int generation, ProgramFiles files)
{
    m_generation = generation;
    std::map<QString, ProgramFiles> folders;
    for (ProgramFile& file : files) {
        folders[QFileInfo(file.path).path()].push_back(std::move(file));
    }
    m_folders.clear();
    for (auto& [path, content] : folders) {
        m_folders.push_back({path, std::move(content)});
    }
    std::stable_sort(m_folders.begin(), m_folders.end(), [](const Folder& a, const Folder& b) {
        return a.files.size() > b.files.size();
    });
    m_due.clear();
    lookAtAll();
}

void ProgramFileScan::lookSoon()
{
    if (!m_folders.empty()) {
        m_round->start(0);
    }
}

void ProgramFileScan::noteChange(const QString& watched)
{
    const auto [begin, end] = m_watched.equal_range(watched);
    for (auto folder = begin; folder != end; ++folder) {
        m_due.insert(folder->second);
    }
    if (!m_pause->isActive()) {
        m_pause->start(std::max(m_habits.gather, m_rest));
    }
}

void ProgramFileScan::lookAtAll()
{
    Due all;
    for (std::size_t folder = 0; folder < m_folders.size(); ++folder) {
        all.insert(all.end(), folder);
    }
    look(all);
    if (!m_folders.empty()) {
        m_round->start(std::max(m_habits.round, m_rest));
    }
}

void ProgramFileScan::look(const Due& due)
{
    QElapsedTimer time;
    time.start();
    // First, so that nothing happens between the look and the watch.
    watchFolders();
    ProgramFiles changed;
    for (const std::size_t folder : due) {
        lookAt(m_folders[folder], changed);
    }
    m_rest = std::chrono::milliseconds(time.elapsed() * m_habits.rest);
    if (!changed.empty() && !isStopping()) {
        emit found(m_generation, changed);
    }
}

void ProgramFileScan::lookAt(Folder& folder, ProgramFiles& changed) const
{
    for (ProgramFile& file : folder.files) {
        if (isStopping()) {
            return;
        }
        const bool isThere = m_habits.isThere(file.path);
        if (std::exchange(file.isThere, isThere) != isThere) {
            changed.push_back(file);
        }
    }
}

void ProgramFileScan::watchFolders()
{
    if (!m_system) {
        m_system = std::make_unique<QFileSystemWatcher>();
        connect(m_system.get(), &QFileSystemWatcher::directoryChanged, this,
                &ProgramFileScan::noteChange);
    }
    m_watched.clear();
    QStringList wanted;
    const std::size_t count = std::min(m_habits.mostFolders, m_folders.size());
    for (std::size_t folder = 0; folder < count && !isStopping(); ++folder) {
        const QString path = standingFolder(m_folders[folder].path);
        m_watched.emplace(path, folder);
        wanted.append(path);
    }
    wanted.removeDuplicates();
    const QStringList former = m_system->directories();
    if (const QStringList idle = without(former, wanted); !idle.isEmpty()) {
        m_system->removePaths(idle);
    }
    if (const QStringList fresh = without(wanted, former); !fresh.isEmpty()) {
        // What the system refuses is found by the rounds.
        m_system->addPaths(fresh);
    }
}

} // namespace trel::mediadispatch
