#include "StoreFollower.h"

#include <QFile>

#include <chrono>

namespace trel::mediadispatch {

namespace {

/// How long the pieces of a writing are gathered.
constexpr std::chrono::milliseconds kGathering{50};
constexpr std::chrono::seconds kRound{1};

} // namespace

StoreFollower::StoreFollower(const QString& store)
    : m_paths({store, store + QStringLiteral("-wal")})
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(kGathering);
    connect(&m_soon, &QTimer::timeout, this, &StoreFollower::look);
    m_round.setTimerType(Qt::PreciseTimer);
    connect(&m_round, &QTimer::timeout, this, &StoreFollower::look);
    connect(&m_files, &QFileSystemWatcher::fileChanged, this, [this] {
        if (!m_soon.isActive()) {
            m_soon.start();
        }
    });
    watch();
    m_round.start(kRound);
}

/// The log may not be there at first, and either file may be replaced.
void StoreFollower::watch()
{
    const QStringList watched = m_files.files();
    for (const QString& path : m_paths) {
        if (!watched.contains(path) && QFile::exists(path)) {
            m_files.addPath(path);
        }
    }
}

void StoreFollower::look()
{
    watch();
    m_round.start();
    emit due();
}

} // namespace trel::mediadispatch
