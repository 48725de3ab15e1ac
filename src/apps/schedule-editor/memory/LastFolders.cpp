#include "memory/LastFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

namespace trel::desktop {

namespace {

/// No file system takes longer ones.
constexpr int kLongestPath = 4096;

bool isPath(const QString& text)
{
    return text.size() <= kLongestPath && QDir::isAbsolutePath(text);
}

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
    if (isPath(path)) {
        const QFileInfo file(path);
        m_folders.insert(kind, file.isDir() ? path : file.path());
    }
}

void LastFolders::restore(const QString& kind, const QString& folder)
{
    if (isPath(folder)) {
        m_folders.insert(kind, folder);
    }
}

} // namespace trel::desktop
