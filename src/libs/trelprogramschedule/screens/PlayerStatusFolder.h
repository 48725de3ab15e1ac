#pragma once

#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule/screens/PlayerStatus.h"
#include "trelprogramschedule_export.h"

#include <QString>

#include <vector>

namespace trel::mediadispatch {

/// What the players that follow a store tell of themselves: a small file for each screen, in a
/// folder beside the store, so that no player is ever in the way of a save. A file is there whole
/// or not at all; nothing is waited for.
///
/// What stands in the folder is not trusted: what is no status of a screen is left out.
class TRELPROGRAMSCHEDULE_EXPORT PlayerStatusFolder
{
public:
    explicit PlayerStatusFolder(const QString& store);

    /// Whether a text can be the name of a screen: it is not empty, holds no control character, and
    /// is short enough for the name of a file: 240 Latin letters, 26 of other scripts.
    static bool takesName(const QString& screen);

    /// Where a program that plays for a screen keeps others from doing the same. The folder is made
    /// where it is missing and may be made.
    QString lockPath(const QString& screen) const;

    /// Puts a status in the place of the former one of its screen; why it could not be, for what
    /// went wrong. Long words are cut.
    Fault write(const PlayerStatus& status) const;
    /// Takes the status of a screen away whose player ends.
    void remove(const QString& screen) const;
    /// All there are, in the order of their names.
    std::vector<PlayerStatus> read() const;

private:
    QString statusPath(const QString& screen) const;

    QString m_folder;
};

} // namespace trel::mediadispatch
