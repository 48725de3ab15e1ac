#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

class QFileSystemWatcher;

namespace trel::mediadispatch {

/// Watches files and directories, and writes to the debug stream what changed in a directory: a
/// rename, additions or deletions, told apart by comparing its entries with the last known ones.
///
/// Only a change of a watched file emits a signal; a change in a directory shows in the log alone.
/// Nothing stops the watch of a path. Lives on one thread, which runs an event loop.
class FileSystemWatcher : public QObject
{
    Q_OBJECT

public:
    /// The parent also becomes the owner of the toolkit's watcher, which outlives this object until
    /// the parent goes. So give one: without it that watcher is never freed.
    explicit FileSystemWatcher(QObject* parent);
    ~FileSystemWatcher() override;

    /// Starts watching a file or a directory. Every call makes every later change, of this path and
    /// of all others, arrive once more. A path that does not exist or cannot be watched is ignored
    /// without a word.
    void addWatchPath(QString path);

signals:
    /// A watched file changed. Emitted once per addWatchPath call made so far.
    void signalFileChange();

public slots:
    /// A directory changed. A path that was never watched is taken for one that was empty.
    void directoryUpdated(QString path);
    void fileUpdated(QString path);

private:
    QFileSystemWatcher* m_watcher;             ///< Owned by the parent.
    QMap<QString, QStringList> m_currContents; ///< By directory, the entries as last read.
};

} // namespace trel::mediadispatch
