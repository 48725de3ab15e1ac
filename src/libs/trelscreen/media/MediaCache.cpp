#include "MediaCache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <iterator>
#include <map>
#include <numeric>

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

const QString kPartEnd = QStringLiteral(".part");

/// Of a file, or of a part of one.
QString hashOf(QString name)
{
    if (name.startsWith(QLatin1Char('.'))) {
        name.remove(0, 1);
    }
    if (name.endsWith(kPartEnd)) {
        name.chop(kPartEnd.size());
    }
    return name;
}

} // namespace

MediaCache::MediaCache(const QString& folder, qint64 limit)
    : m_folder(folder)
    , m_limit(limit)
{
    QDir().mkpath(folder);
}

QString MediaCache::partOf(const ProgramContent& content) const
{
    return QStringLiteral("%1/.%2%3")
        .arg(m_folder.path(), QString::fromLatin1(content.sha256), kPartEnd);
}

qint64 MediaCache::room(qint64 used) const
{
    const qint64 free = QStorageInfo(m_folder.path()).bytesAvailable();
    return m_limit > 0 ? std::min(m_limit - used, free) : free - kReserve;
}

bool MediaCache::makeRoom(const NeededFiles& needed, std::size_t wanted) const
{
    std::map<QString, std::size_t> places; // Of the hashes among those that are needed.
    for (std::size_t place = 0; place < needed.size(); ++place) {
        places.emplace(QString::fromLatin1(needed[place].content.sha256), place);
    }
    // What goes first comes last; nothing that is needed sooner is among them.
    std::multimap<std::size_t, QFileInfo> removable;
    qint64 used = 0;
    qint64 missing = needed[wanted].content.size;
    const QFileInfoList files =
        QDir(m_folder.path()).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& file : files) {
        used += file.size();
        const auto place = places.find(hashOf(file.fileName()));
        const std::size_t rank = place == places.end() ? needed.size() : place->second;
        if (rank > wanted) {
            removable.emplace(rank, file);
        } else if (rank == wanted) {
            missing -= file.size();
        }
    }
    qint64 present = room(used);
    const qint64 gained =
        std::accumulate(removable.begin(), removable.end(), qint64(0),
                        [](qint64 sum, const auto& one) { return sum + one.second.size(); });
    if (present + gained < missing) {
        return false;
    }
    while (present < missing && !removable.empty()) {
        const auto last = std::prev(removable.end());
        if (QFile::remove(last->second.filePath())) {
            present += last->second.size();
        }
        removable.erase(last);
    }
    return present >= missing;
}

} // namespace trel::screen
