#pragma once

#include <QString>
#include <QtGlobal>

namespace trel::mediadispatch {

/// Where the service looks whether files are there. A look may wait for a disk or a server, and
/// comes from several threads.
///
/// An instance of a derived class takes the place of the machine's file systems for as long as it
/// lives; instances nest and go in the reverse order of their making. It is made and goes while no
/// other thread looks.
class FileLook
{
public:
    /// The one in force.
    static const FileLook& current();

    virtual ~FileLook() = default;

    /// Whether there is a file of this path; a folder is none.
    virtual bool isThere(const QString& path) const;

protected:
    FileLook() = default;
    Q_DISABLE_COPY(FileLook)

    /// Puts one in force and returns the one it takes the place of.
    static const FileLook* install(const FileLook* look);
};

} // namespace trel::mediadispatch
