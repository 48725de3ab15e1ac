#pragma once

#include "trelprogramschedule/media/MediaFolder.h"
#include "trelscreen/media/NeededMedia.h"

#include <QString>
#include <QtGlobal>

#include <cstddef>

namespace trel::screen {

/// The files that a screen keeps on its own disk, by what they hold, and those that are on their
/// way there. Takes as long as the disk does.
class MediaCache
{
public:
    /// What the disk keeps free where no limit is given, in bytes.
    static constexpr qint64 kReserve = 1024LL * 1024 * 1024;

    /// All files take so many bytes at most; with 0 all that the disk has, but the reserve. Makes
    /// the folder, whose parent may be missing.
    explicit MediaCache(const QString& folder, qint64 limit = 0);

    const mediadispatch::MediaFolder& folder() const { return m_folder; }
    bool holds(const mediadispatch::ProgramContent& content) const
    {
        return m_folder.holds(content);
    }
    /// Where a file is made; what is there of it already outlasts the program.
    QString partOf(const mediadispatch::ProgramContent& content) const;

    /// Sees to it that one of the needed files has room, by removing what nobody needs, and then
    /// what is needed last, but nothing that is needed before it. False, and nothing is removed,
    /// where that would not be enough.
    bool makeRoom(const NeededFiles& needed, std::size_t wanted) const;

private:
    qint64 room(qint64 used) const;

    mediadispatch::MediaFolder m_folder;
    qint64 m_limit;
};

} // namespace trel::screen
