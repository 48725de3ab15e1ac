#include "StoreWatch.h"

#include <QFile>

#include <chrono>

#include <sys/stat.h>

namespace trel::console {

namespace {

/// A save is several writes; this is how long they are gathered.
constexpr std::chrono::milliseconds kPause{50};

} // namespace

StoreWatch::StoreWatch(const QString& store)
    // The log is there, and stays, as long as the store is open.
    : m_paths({store, store + QStringLiteral("-wal")})
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPause);
    connect(&m_pause, &QTimer::timeout, this, &StoreWatch::written);
    connect(&m_files, &QFileSystemWatcher::fileChanged, this, [this] {
        if (!m_pause.isActive()) {
            m_pause.start();
        }
    });
    renew();
}

bool StoreWatch::renew()
{
    Identities now = identities();
    if (now == m_watched) {
        return false;
    }
    if (const QStringList former = m_files.files(); !former.isEmpty()) {
        m_files.removePaths(former);
    }
    m_isWatching = m_files.addPaths(m_paths).isEmpty();
    m_watched = std::move(now);
    return true;
}

StoreWatch::Identities StoreWatch::identities() const
{
    Identities identities;
    for (const QString& path : m_paths) {
        struct stat status = {};
        ::stat(QFile::encodeName(path).constData(), &status);
        identities.emplace_back(status.st_dev, status.st_ino);
    }
    return identities;
}

} // namespace trel::console
