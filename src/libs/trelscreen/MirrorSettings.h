#pragma once

#include <QString>
#include <QtGlobal>

namespace trel::screen {

/// What a screen follows by way of a mirror.
struct MirrorSettings
{
    QString address; ///< Of the schedule on a server.
    /// Where the files of programs are fetched from: a folder, or the address of a web server.
    /// Empty where the screen has them at the paths that the catalog names.
    QString media;
    qint64 mediaLimit = 0; ///< As many bytes of them are kept at most; see MediaCache.
};

} // namespace trel::screen
