#include "memory/LastFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

namespace trel::desktop {

namespace {

/// No file system takes longer ones.
constexpr int kLongestPath = 4096;

} // namespace

LastFolders::LastFolders(QWidget& window)
    : QObject(&window)
{}

LastFolders* LastFolders::of(const QWidget* widget)
{
    for (const QWidget* at = widget; at != nullptr; at = at->parentWidget()) {
        if (auto* folders = at->findChild<LastFolders*>(QString(), Qt::FindDirectChildrenOnly)) {
            return folders;
        }
    }
    return nullptr;
}

QString LastFolders::folder(const QString& kind) const
{
    const QString folder = m_folders.value(kind);
    return QFileInfo(folder).isDir() ? folder : QString();
}

void LastFolders::remember(const QString& kind, const QString& path)
{
    if (path.size() <= kLongestPath && QDir::isAbsolutePath(path)) {
        const QFileInfo file(path);
        m_folders.insert(kind, file.isDir() ? path : file.path());
    }
}

} // namespace trel::desktop
