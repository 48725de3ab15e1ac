#include "FileSystemWatcher.h"

#include "toolkit/DirectoryChange.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>

namespace trel::mediadispatch {

namespace {

QStringList entriesOf(const QString& path)
{
    return QDir(path).entryList(QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot,
                                QDir::DirsFirst);
}

void report(const DirectoryChange& change)
{
    if (!change.added.isEmpty() && !change.removed.isEmpty()) {
        // With more names than one on a side it is unknown which became which.
        if (change.added.size() == 1 && change.removed.size() == 1) {
            qDebug().noquote() << QStringLiteral("File Renamed from %1 to %2")
                                      .arg(change.removed.first(), change.added.first());
        }
        return;
    }
    if (!change.added.isEmpty())
        qDebug().nospace() << "New Files/Dirs added: " << change.added;
    if (!change.removed.isEmpty())
        qDebug().nospace() << "Files/Dirs deleted: " << change.removed;
}

} // namespace

FileSystemWatcher::FileSystemWatcher(QObject* parent)
    : QObject(parent)
    , m_watcher(new QFileSystemWatcher(parent))
{}

FileSystemWatcher::~FileSystemWatcher() = default;

void FileSystemWatcher::addWatchPath(QString path)
{
    qDebug().noquote() << QStringLiteral("Add to watch: %1").arg(path);
    // Connected again on every call: a caller that adds a path once more asks to hear of changes
    // once more.
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this,
            &FileSystemWatcher::directoryUpdated);
    connect(m_watcher, &QFileSystemWatcher::fileChanged, this, &FileSystemWatcher::fileUpdated);
    // The toolkit would refuse an empty path too, with a warning.
    if (!path.isEmpty())
        m_watcher->addPath(path);
    if (QFileInfo(path).isDir())
        m_currContents[path] = entriesOf(path);
}

void FileSystemWatcher::directoryUpdated(QString path)
{
    qDebug().noquote() << QStringLiteral("Directory updated: %1").arg(path);
    QStringList& known = m_currContents[path];
    const QStringList fresh = entriesOf(path);
    const DirectoryChange change = directoryChange(known, fresh);
    known = fresh;
    report(change);
}

void FileSystemWatcher::fileUpdated(QString path)
{
    const QFileInfo info(path);
    qDebug().noquote() << QStringLiteral("The file %1 at path %2 is updated")
                              .arg(info.fileName(), info.absolutePath());
    emit signalFileChange();
}

} // namespace trel::mediadispatch
