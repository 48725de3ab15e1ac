#include "ZoneWatch.h"

#include <QDateTime>
#include <QFileInfo>

#include <utility>

namespace trel::mediadispatch {

ZoneWatch::ZoneWatch(std::function<void()> changed, const QString& file)
    : m_changed(std::move(changed))
    , m_file(file)
{
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher,
                     [this] { look(); });
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher, [this] { look(); });
    // A watched link is followed to its target, so that its being replaced shows in its folder
    // only.
    m_watcher.addPath(QFileInfo(m_file).path());
    follow();
    m_seen = fingerprint();
}

void ZoneWatch::look()
{
    follow();
    const QString now = fingerprint();
    if (std::exchange(m_seen, now) == now) {
        return;
    }
    const std::function<void()> changed = m_changed;
    changed();
}

QString ZoneWatch::fingerprint() const
{
    const QFileInfo zone(m_file);
    return zone.canonicalFilePath() + QLatin1Char('|') + QString::number(zone.size()) +
           QLatin1Char('|') + QString::number(zone.lastModified().toMSecsSinceEpoch());
}

void ZoneWatch::follow()
{
    const QString target = QFileInfo(m_file).canonicalFilePath();
    const QStringList watched = m_watcher.files();
    if (watched == QStringList(target)) {
        return;
    }
    if (!watched.isEmpty()) {
        m_watcher.removePaths(watched);
    }
    if (!target.isEmpty()) {
        m_watcher.addPath(target);
    }
}

} // namespace trel::mediadispatch
