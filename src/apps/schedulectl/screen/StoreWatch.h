#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <cstdint>
#include <utility>
#include <vector>

namespace trel::console {

/// Notices that somebody writes into a store that is open here, or takes it away. Sleeps until the
/// system tells of a change of the database or of its log, where every commit goes first.
class StoreWatch : public QObject
{
    Q_OBJECT

public:
    explicit StoreWatch(const QString& store);

    /// False when the system does not tell of changes.
    bool isWatching() const { return m_isWatching; }
    /// Watches the files that stand there now. True when they are not those that were watched, so
    /// that what was written into them up to now went unnoticed.
    bool renew();

signals:
    /// Once for all that is written within a moment. What was written need not be a save.
    void written();

private:
    /// Device and number of each file.
    using Identities = std::vector<std::pair<std::uint64_t, std::uint64_t>>;

    Identities identities() const;

    QStringList m_paths;
    Identities m_watched;
    QFileSystemWatcher m_files;
    QTimer m_pause;
    bool m_isWatching = false;
};

} // namespace trel::console
