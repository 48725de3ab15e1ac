#pragma once

#include <QString>

namespace trel::player {

/// Where the records of a screen of a store are kept until they are handed in, in a folder of its
/// own for each user: $XDG_STATE_HOME/schedule-player, ~/.local/state/schedule-player when that is
/// not set.
QString defaultSpoolFolder();

/// The file in a folder. No other screen, and no screen of another store, has the same.
QString spoolPath(const QString& folder, const QString& store, const QString& screen);

} // namespace trel::player
