#include "StoreWatch.h"

#include <QStringList>

#include <chrono>

namespace {

/// A save is several writes; this is how long they are gathered.
constexpr std::chrono::milliseconds kPause{50};

} // namespace

StoreWatch::StoreWatch(const QString& store)
{
    // The log is there, and stays, as long as the store is open.
    const QStringList files = {store, store + QStringLiteral("-wal")};
    m_isWatching = m_files.addPaths(files).isEmpty();
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPause);
    connect(&m_pause, &QTimer::timeout, this, &StoreWatch::written);
    connect(&m_files, &QFileSystemWatcher::fileChanged, this, [this] {
        if (!m_pause.isActive()) {
            m_pause.start();
        }
    });
}
