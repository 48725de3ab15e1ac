#pragma once

#include <QString>

namespace trel::player {

/// Where the user's mirrors are when no folder is named.
QString defaultMirrorFolder();

/// The file of the mirror of a schedule, in a folder that was named for it.
QString mirrorPath(const QString& folder);

/// The same in a folder that has those of many schedules and screens: one for each screen, since
/// two players may run beside each other.
QString mirrorPath(const QString& folder, const QString& address, const QString& screen);

} // namespace trel::player
